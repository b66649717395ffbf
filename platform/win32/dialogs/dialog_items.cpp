// Controls of a dialog by their ids.

#include <windows.h>

HWND WINAPI GetDlgItem(HWND dialog, int id) {
    if (!IsWindow(dialog)) return nullptr;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetDlgCtrlID(child) == id) return child;
    SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
    return nullptr;
}

int WINAPI GetDlgCtrlID(HWND window) {
    return static_cast<int>(GetWindowLongPtrA(window, GWLP_ID));
}

BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    const HWND control = GetDlgItem(dialog, id);
    return control && SetWindowTextA(control, text);
}

UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size) {
    if (text && size > 0) *text = 0;
    const HWND control = GetDlgItem(dialog, id);
    return control ? static_cast<UINT>(GetWindowTextA(control, text, size)) : 0;
}

LRESULT WINAPI SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND control = GetDlgItem(dialog, id);
    return control ? SendMessageA(control, message, wParam, lParam) : 0;
}
