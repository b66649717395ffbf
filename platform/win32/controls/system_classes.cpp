#include "system_classes.h"

#include "button.h"
#include "combo_box.h"
#include "dialogs/dialog_class.h"
#include "edit.h"
#include "list_box.h"
#include "static_text.h"
#include "tab_control.h"
#include "up_down.h"

void RegisterSystemClasses() {
    RegisterButtonClass();
    RegisterStaticClass();
    RegisterEditClass();
    RegisterListBoxClass();
    RegisterComboBoxClass();
    RegisterTabControlClass();
    RegisterUpDownClass();
    RegisterDialogClass();
}
