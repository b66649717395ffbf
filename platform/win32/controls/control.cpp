#include "control.h"

RECT Control::ClientArea() const {
    RECT area = {};
    GetClientRect(window_, &area);
    return area;
}

std::string Control::WindowText() const {
    std::string text(static_cast<size_t>(GetWindowTextLengthA(window_)) + 1, '\0');
    const int length = GetWindowTextA(window_, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<size_t>(length));
    return text;
}

void Control::Notify(int code) {
    const WPARAM words = MAKEWPARAM(static_cast<WORD>(GetWindowLongPtrA(window_, GWLP_ID)), code);
    SendMessageA(GetParent(window_), WM_COMMAND, words, reinterpret_cast<LPARAM>(window_));
}

HBRUSH Control::BackgroundBrush(UINT message, HDC dc) {
    const HWND parent = GetParent(window_);
    const auto words = reinterpret_cast<WPARAM>(dc);
    const auto child = reinterpret_cast<LPARAM>(window_);
    LRESULT brush = SendMessageA(parent, message, words, child);
    if (!brush) brush = DefWindowProcA(parent, message, words, child);
    return brush ? reinterpret_cast<HBRUSH>(brush) : GetSysColorBrush(COLOR_WINDOW);
}

void Control::RedrawNow() {
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void RegisterControlClass(const char* name, WNDPROC procedure, UINT style) {
    WNDCLASSA record = {};
    record.style = style;
    record.lpfnWndProc = procedure;
    record.cbWndExtra = sizeof(LONG_PTR);
    record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    record.lpszClassName = name;
    RegisterClassA(&record);
}
