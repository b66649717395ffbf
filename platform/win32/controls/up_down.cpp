#include "up_down.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstring>

#include "buddy.h"
#include "control.h"

namespace {

enum class Arrow { kNone, kUp, kDown };

bool IsEdit(HWND window) {
    char name[8] = "";
    return GetClassNameA(window, name, sizeof name) > 0 && std::strcmp(name, "Edit") == 0;
}

class UpDown : public Control {
public:
    explicit UpDown(HWND window) : Control(window) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    LRESULT HandleValues(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);

    Arrow ArrowAt(POINT point) const;
    HWND SetBuddy(HWND buddy);
    int SetPosition(int position);
    int Clamped(int position) const {
        return std::clamp(position, std::min(low_, high_), std::max(low_, high_));
    }
    void Step(Arrow arrow);
    void TellScroll(int code);
    void Press(Arrow arrow);
    void Release();
    void Show(Arrow pressed);

    void Paint();
    RECT HalfOf(Arrow arrow) const;
    void PaintArrow(HDC dc, Arrow arrow) const;

    HWND buddy_ = nullptr;
    // The value at the lower end may be the greater one: then the upper arrow counts down.
    int low_ = 100;
    int high_ = 0;
    int position_ = 0;
    Arrow pressed_ = Arrow::kNone;  // held by the mouse, and the mouse is still inside
};

LRESULT UpDown::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY: SetBuddy(nullptr); return 0;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(); return 0;
        case WM_ENABLE: Redraw(); return 0;
        case kBuddyKey:
        case WM_KEYDOWN:
            if (!HasStyle(UDS_ARROWKEYS)) break;
            if (wParam == VK_UP) Step(Arrow::kUp);
            if (wParam == VK_DOWN) Step(Arrow::kDown);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED: return HandleMouse(message, wParam, lParam);
        default: break;
    }
    return HandleValues(message, wParam, lParam);
}

LRESULT UpDown::HandleValues(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case UDM_SETRANGE:
            high_ = static_cast<short>(LOWORD(lParam));
            low_ = static_cast<short>(HIWORD(lParam));
            return 0;
        case UDM_GETRANGE: return MAKELRESULT(high_, low_);
        case UDM_SETPOS: return SetPosition(static_cast<short>(LOWORD(lParam)));
        // The upper word says that the buddy's text has not been asked.
        case UDM_GETPOS: return MAKELRESULT(position_, 1);
        case UDM_SETBUDDY: return reinterpret_cast<LRESULT>(SetBuddy(reinterpret_cast<HWND>(wParam)));
        case UDM_GETBUDDY: return reinterpret_cast<LRESULT>(buddy_);
        default: return Default(message, wParam, lParam);
    }
}

LRESULT UpDown::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN: Press(ArrowAt(PointOf(lParam))); return 0;
        case WM_MOUSEMOVE:
            if (pressed_ != Arrow::kNone && ArrowAt(PointOf(lParam)) != pressed_) Show(Arrow::kNone);
            return 0;
        case WM_LBUTTONUP: Release(); return 0;
        case WM_CAPTURECHANGED: Show(Arrow::kNone); return 0;
        default: return Default(message, wParam, lParam);
    }
}

RECT UpDown::HalfOf(Arrow arrow) const {
    RECT area = ClientArea();
    const LONG middle = (area.top + area.bottom) / 2;
    (arrow == Arrow::kUp ? area.bottom : area.top) = middle;
    return area;
}

Arrow UpDown::ArrowAt(POINT point) const {
    for (const Arrow arrow : {Arrow::kUp, Arrow::kDown}) {
        const RECT half = HalfOf(arrow);
        if (PtInRect(&half, point)) return arrow;
    }
    return Arrow::kNone;
}

HWND UpDown::SetBuddy(HWND buddy) {
    const HWND former = buddy_;
    if (buddy == former) return former;
    if (former) LeaveArrowKeys(former, Window());
    buddy_ = buddy;
    if (buddy && HasStyle(UDS_ARROWKEYS)) WatchArrowKeys(buddy, Window());
    return former;
}

int UpDown::SetPosition(int position) {
    const int former = position_;
    position_ = Clamped(position);
    return former;
}

// The parent may change the step, or refuse it by any answer but 0. It is told the position in any case.
void UpDown::Step(Arrow arrow) {
    const bool increase = (arrow == Arrow::kUp) == (high_ >= low_);
    const auto id = static_cast<UINT_PTR>(GetWindowLongPtrA(Window(), GWLP_ID));
    NMUPDOWN step = {{Window(), id, UDN_DELTAPOS}, position_, increase ? 1 : -1};
    if (!SendMessageA(GetParent(Window()), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&step))) {
        position_ = Clamped(position_ + step.iDelta);
    }
    TellScroll(SB_THUMBPOSITION);
}

void UpDown::TellScroll(int code) {
    SendMessageA(GetParent(Window()), WM_VSCROLL, MAKEWPARAM(code, position_),
                 reinterpret_cast<LPARAM>(Window()));
}

void UpDown::Press(Arrow arrow) {
    if (arrow == Arrow::kNone || (buddy_ && !IsWindowEnabled(buddy_))) return;
    if (IsEdit(buddy_)) SetFocus(buddy_);
    SetCapture(Window());
    Show(arrow);
    Step(arrow);
}

void UpDown::Release() {
    const bool held = pressed_ != Arrow::kNone;
    Show(Arrow::kNone);
    if (GetCapture() == Window()) ReleaseCapture();
    if (!held) return;
    TellScroll(SB_ENDSCROLL);
    if (IsEdit(buddy_)) SendMessageA(buddy_, EM_SETSEL, 0, -1);
}

void UpDown::Show(Arrow pressed) {
    if (pressed == pressed_) return;
    pressed_ = pressed;
    Redraw();
}

void UpDown::Paint() {
    const PaintContext context(Window(), nullptr);
    const HDC dc = context.Get();
    if (!dc) return;
    PaintArrow(dc, Arrow::kUp);
    PaintArrow(dc, Arrow::kDown);
}

void UpDown::PaintArrow(HDC dc, Arrow arrow) const {
    RECT half = HalfOf(arrow);
    const bool pressed = pressed_ == arrow;
    FillRect(dc, &half, GetSysColorBrush(COLOR_BTNFACE));
    RECT edge = half;
    DrawEdge(dc, &edge, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    const LONG shift = pressed ? 1 : 0;
    const LONG middle = (half.left + half.right - 1) / 2 + shift;
    const LONG rows = std::max<LONG>(1, std::min((half.right - half.left) / 4, (half.bottom - half.top) / 3));
    const LONG top = (half.top + half.bottom - rows) / 2 + shift;
    const int color = IsWindowEnabled(Window()) ? COLOR_BTNTEXT : COLOR_GRAYTEXT;
    for (LONG row = 0; row < rows; ++row) {
        const LONG reach = arrow == Arrow::kUp ? row : rows - 1 - row;
        const RECT line = {middle - reach, top + row, middle + reach + 1, top + row + 1};
        FillRect(dc, &line, GetSysColorBrush(color));
    }
}

}  // namespace

void RegisterUpDownClass() {
    RegisterControlClass("msctls_updown32", ControlProcedure<UpDown>, CS_HREDRAW | CS_VREDRAW);
}
