#include "controls/entry_classes.h"

#include "controls/entry_check.h"
#include "controls/entry_choose_file.h"
#include "controls/entry_drop.h"
#include "controls/entry_image.h"
#include "controls/entry_lines.h"
#include "controls/entry_num_edit.h"
#include "controls/entry_text_edits.h"
#include "controls/num_edit.h"
#include "controls/slider.h"

void RegisterToolkitClasses() {
    IntNumber integer;
    WS_IntEdit(integer).RegisterNumEditClass();
    FloatNumber decimal;
    WS_FloatEdit(decimal).RegisterNumEditClass();
    WS_SliderV::RegisterSliderClass();
}

void RegisterEntryClasses() {
    RegisterToolkitClasses();
    CEntryTitle().RegisterWndClass();
    CEntryImage().RegisterWndClass();
    CEntrySection().RegisterWndClass();
    CEntryText().RegisterWndClass();
    CEntryNumEdit().RegisterWndClass();
    CEntryStrEdit().RegisterWndClass();
    CEntryChooseFile().RegisterWndClass();
    CEntryDrop().RegisterWndClass();
    CEntryCheck().RegisterWndClass();
}
