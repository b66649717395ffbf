#include "message_box_redirect.h"

// The pointer through which the calls of this module go: the entry of its import table, under the linker's
// name.
#ifdef __i386__
extern "C" MessageBoxFunction imported_message_box __asm__("__imp__MessageBoxA@16");
#else
extern "C" MessageBoxFunction imported_message_box __asm__("__imp_MessageBoxA");
#endif

void RedirectMessageBoxes(MessageBoxFunction target) {
    static const MessageBoxFunction original = imported_message_box;
    DWORD protection = 0;
    if (!VirtualProtect(&imported_message_box, sizeof imported_message_box, PAGE_READWRITE, &protection))
        return;
    *const_cast<volatile MessageBoxFunction*>(&imported_message_box) = target ? target : original;
    VirtualProtect(&imported_message_box, sizeof imported_message_box, protection, &protection);
}
