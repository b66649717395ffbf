#include <algorithm>
#include <utility>

#include "desktop.h"
#include "queue.h"

namespace {

// What the system makes of F1 for the window with the focus.
constexpr UINT kKeyF1 = 0x004D;

LRESULT CopyText(const Window& window, WPARAM size, LPARAM buffer) {
    if (size == 0 || !buffer) return 0;
    const size_t length = std::min<size_t>(window.text.size(), size - 1);
    char* const text = reinterpret_cast<char*>(buffer);
    std::copy_n(window.text.data(), length, text);
    text[length] = 0;
    return static_cast<LRESULT>(length);
}

void TakeText(HWND handle, Window& window, LPCSTR text) {
    {
        const std::lock_guard lock(WindowMutex());
        window.text = text ? text : "";
    }
    if ((window.style & WS_CAPTION) == WS_CAPTION && IsWindowVisible(handle))
        SendMessageA(handle, WM_NCPAINT, 1, 0);
}

LRESULT EraseBackground(const Window& window, HDC dc) {
    HBRUSH brush = window.cls->record.hbrBackground;
    if (!brush) return 0;
    // Small numbers stand for system colours.
    const auto number = reinterpret_cast<UINT_PTR>(brush);
    if (number <= COLOR_3DLIGHT + 1) brush = GetSysColorBrush(static_cast<int>(number) - 1);
    RECT area = {};
    GetClipBox(dc, &area);
    FillRect(dc, &area, brush);
    return 1;
}

LRESULT ColorFor(UINT message, HDC dc) {
    const bool field = message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX;
    const int back = message == WM_CTLCOLORSCROLLBAR ? COLOR_SCROLLBAR : field ? COLOR_WINDOW : COLOR_BTNFACE;
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(back));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(back));
}

// Size and place of the client area, as a change of the window's place made them.
void TellNewPlace(HWND handle, const WINDOWPOS& place) {
    RECT client = {};
    GetClientRect(handle, &client);
    if (!(place.flags & kNoClientMove)) {
        POINT corner = {0, 0};
        ClientToScreen(handle, &corner);
        const HWND parent = GetAncestor(handle, GA_PARENT);
        if (parent && parent != kDesktopWindow) ScreenToClient(parent, &corner);
        SendMessageA(handle, WM_MOVE, 0, MAKELPARAM(corner.x, corner.y));
    }
    if (!(place.flags & kNoClientSize))
        SendMessageA(handle, WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
}

void AskForHelp(HWND handle) {
    HELPINFO info = {};
    info.cbSize = sizeof info;
    info.iContextType = HELPINFO_WINDOW;
    info.iCtrlId = GetDlgCtrlID(handle);
    info.hItemHandle = handle;
    SendMessageA(handle, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
}

void SystemKeyDown(HWND handle, WPARAM key) {
    if (key != VK_F4) return;
    const HWND root = GetAncestor(handle, GA_ROOT);
    if (GetWindowLongA(root, GWL_STYLE) & WS_SYSMENU) PostMessageA(root, WM_SYSCOMMAND, SC_CLOSE, 0);
}

LRESULT ToParent(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND parent = GetWindowLongA(handle, GWL_STYLE) & WS_CHILD ? GetParent(handle) : nullptr;
    return parent && parent != kDesktopWindow ? SendMessageA(parent, message, wParam, lParam) : 0;
}

LRESULT SetRedraw(Window& window, bool redraw) {
    const std::lock_guard lock(WindowMutex());
    window.redraw = redraw;
    return 0;
}

LRESULT CalculateSize(Window& window, LPARAM lParam) {
    if (!lParam) return 0;
    // Both forms of the message begin with the window's rectangle.
    RECT& rect = *reinterpret_cast<RECT*>(lParam);
    rect = CalculateClient(window, rect);
    return 0;
}

LRESULT ExchangeIcon(Window& window, HICON icon) {
    const std::lock_guard lock(WindowMutex());
    return reinterpret_cast<LRESULT>(std::exchange(window.icon, icon));
}

// Messages of the window's life and look; false for those of the user.
bool FrameMessage(HWND handle, Window& window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case WM_NCCREATE:
            if (lParam) TakeText(handle, window, reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpszName);
            result = TRUE;
            return true;
        case WM_NCCALCSIZE: result = CalculateSize(window, lParam); return true;
        case WM_NCPAINT: PaintFrame(handle); return true;
        case WM_NCACTIVATE:
            if (IsWindowVisible(handle)) PaintFrame(handle);
            result = TRUE;
            return true;
        case WM_NCHITTEST: result = HitTest(window, PointOf(lParam)); return true;
        case WM_NCLBUTTONDOWN: FrameButtonDown(handle, wParam, PointOf(lParam)); return true;
        case WM_SETTEXT:
            TakeText(handle, window, reinterpret_cast<LPCSTR>(lParam));
            result = TRUE;
            return true;
        case WM_GETTEXT: result = CopyText(window, wParam, lParam); return true;
        case WM_GETTEXTLENGTH: result = static_cast<LRESULT>(window.text.size()); return true;
        case WM_SETICON: result = ExchangeIcon(window, reinterpret_cast<HICON>(lParam)); return true;
        case WM_GETICON: result = reinterpret_cast<LRESULT>(window.icon); return true;
        case WM_SETREDRAW: result = SetRedraw(window, wParam != 0); return true;
        case WM_WINDOWPOSCHANGED:
            if (lParam) TellNewPlace(handle, *reinterpret_cast<const WINDOWPOS*>(lParam));
            return true;
        default: return false;
    }
}

}  // namespace

LRESULT WINAPI DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return 0;
    LRESULT result = 0;
    if (FrameMessage(handle, *window, message, wParam, lParam, result)) return result;
    switch (message) {
        case WM_CLOSE: DestroyWindow(handle); return 0;
        case WM_CANCELMODE:
            if (GetCapture() == handle) ReleaseCapture();
            return 0;
        case WM_ERASEBKGND: return EraseBackground(*window, reinterpret_cast<HDC>(wParam));
        case WM_PAINT: {
            PAINTSTRUCT paint = {};
            if (BeginPaint(handle, &paint)) EndPaint(handle, &paint);
            return 0;
        }
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) SetFocus(handle);
            return 0;
        case WM_MOUSEACTIVATE: {
            const LRESULT parents = ToParent(handle, message, wParam, lParam);
            return parents != 0 ? parents : MA_ACTIVATE;
        }
        case WM_SYSCOMMAND:
            if ((wParam & 0xFFF0) == SC_CLOSE) SendMessageA(handle, WM_CLOSE, 0, 0);
            return 0;
        case kKeyF1: AskForHelp(handle); return 0;
        case WM_SYSKEYDOWN: SystemKeyDown(handle, wParam); return 0;
        case WM_HELP:
        case WM_MOUSEWHEEL: return ToParent(handle, message, wParam, lParam);
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORSCROLLBAR: return ColorFor(message, reinterpret_cast<HDC>(wParam));
        default: return 0;
    }
}
