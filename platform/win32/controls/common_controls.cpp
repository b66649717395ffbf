#include <commctrl.h>

BOOL WINAPI InitCommonControlsEx(const INITCOMMONCONTROLSEX* wanted) {
    return wanted && wanted->dwSize == sizeof *wanted;
}
