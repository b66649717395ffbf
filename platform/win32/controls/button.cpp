#include "button.h"

#include "button_paint.h"
#include "text_control.h"

namespace {

class Button : public LabelControl {
public:
    explicit Button(HWND window) : LabelControl(window) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    DWORD Type() const { return Style() & static_cast<DWORD>(BS_TYPEMASK); }
    bool IsCheckBox() const { return Type() == BS_CHECKBOX || Type() == BS_AUTOCHECKBOX; }
    LRESULT DialogCode() const;

    void Press();
    void Drag(POINT point);
    void Release(bool inside);
    void GiveUp();
    void Click();
    LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);

    void SetCheck(WPARAM check);
    void SetPushed(bool pushed);
    void SetFocusState(bool focused);
    void SetType(WPARAM type, bool redraw);
    LRESULT HandleState(UINT message, WPARAM wParam, LPARAM lParam);
    void Paint();

    LRESULT state_ = BST_UNCHECKED;  // BST_CHECKED, BST_PUSHED, BST_FOCUS
    bool held_ = false;              // by the mouse or the space bar, even while the mouse is outside
};

LRESULT Button::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: return DialogCode();
        case WM_NCHITTEST: return Type() == BS_GROUPBOX ? HTTRANSPARENT : Default(message, wParam, lParam);
        case WM_PAINT: Paint(); return 0;
        case WM_SETFOCUS: SetFocusState(true); return 0;
        case WM_KILLFOCUS: SetFocusState(false); return 0;
        case WM_KEYDOWN:
            if (wParam == VK_SPACE && !held_) Press();
            return 0;
        case WM_KEYUP:
            if (wParam == VK_SPACE) Release(true);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
        case WM_CAPTURECHANGED: return HandleMouse(message, wParam, lParam);
        default: return HandleState(message, wParam, lParam);
    }
}

LRESULT Button::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            SetFocus(Window());
            Press();
            return 0;
        case WM_MOUSEMOVE:
            if (held_ && (wParam & MK_LBUTTON)) Drag(PointOf(lParam));
            return 0;
        case WM_LBUTTONUP: {
            const RECT area = ClientArea();
            Release(PtInRect(&area, PointOf(lParam)));
            return 0;
        }
        default: GiveUp(); return 0;
    }
}

LRESULT Button::HandleState(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case BM_GETCHECK: return state_ & BST_CHECKED;
        case BM_SETCHECK: SetCheck(wParam); return 0;
        case BM_GETSTATE: return state_;
        case BM_SETSTATE: SetPushed(wParam != 0); return 0;
        case BM_SETSTYLE: SetType(wParam, LOWORD(lParam) != 0); return 0;
        case BM_CLICK: Click(); return 0;
        default: return LabelControl::Handle(message, wParam, lParam);
    }
}

LRESULT Button::DialogCode() const {
    switch (Type()) {
        case BS_PUSHBUTTON: return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BS_DEFPUSHBUTTON: return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
        case BS_GROUPBOX: return DLGC_STATIC;
        default: return DLGC_BUTTON;
    }
}

void Button::Press() {
    SetCapture(Window());
    held_ = true;
    SendMessageA(Window(), BM_SETSTATE, TRUE, 0);
}

void Button::Drag(POINT point) {
    const RECT area = ClientArea();
    SendMessageA(Window(), BM_SETSTATE, PtInRect(&area, point) ? TRUE : FALSE, 0);
}

void Button::Release(bool inside) {
    if (!held_) return;
    held_ = false;
    SendMessageA(Window(), BM_SETSTATE, FALSE, 0);
    ReleaseCapture();
    if (!inside) return;
    if (Type() == BS_AUTOCHECKBOX) {
        SendMessageA(Window(), BM_SETCHECK, state_ & BST_CHECKED ? BST_UNCHECKED : BST_CHECKED, 0);
    }
    Notify(BN_CLICKED);
}

// The capture went elsewhere: there is no click.
void Button::GiveUp() {
    if (!held_) return;
    held_ = false;
    SendMessageA(Window(), BM_SETSTATE, FALSE, 0);
}

void Button::Click() {
    SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    SendMessageA(Window(), WM_LBUTTONUP, 0, 0);
}

void Button::SetCheck(WPARAM check) {
    if (!IsCheckBox()) return;
    const LRESULT state = (state_ & ~BST_CHECKED) | (check ? BST_CHECKED : BST_UNCHECKED);
    if (state == state_) return;
    state_ = state;
    RedrawNow();
}

void Button::SetPushed(bool pushed) {
    const LRESULT state = (state_ & ~BST_PUSHED) | (pushed ? BST_PUSHED : 0);
    if (state == state_) return;
    state_ = state;
    RedrawNow();
}

void Button::SetFocusState(bool focused) {
    state_ = (state_ & ~BST_FOCUS) | (focused ? BST_FOCUS : 0);
    if (!focused && held_) ReleaseCapture();
    Redraw();
}

void Button::SetType(WPARAM type, bool redraw) {
    const DWORD mask = BS_TYPEMASK;
    const DWORD style = (Style() & ~mask) | (static_cast<DWORD>(type) & mask);
    SetWindowLongA(Window(), GWL_STYLE, static_cast<LONG>(style));
    if (!IsCheckBox()) state_ &= ~BST_CHECKED;
    if (redraw) Redraw();
}

void Button::Paint() {
    const PaintContext context(Window(), font_);
    const HDC dc = context.Get();
    if (!dc) return;
    const bool push = Type() == BS_PUSHBUTTON || Type() == BS_DEFPUSHBUTTON;
    ButtonLook look = {};
    look.area = ClientArea();
    look.text = WindowText();
    look.background = BackgroundBrush(push ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC, dc);
    look.is_default = Type() == BS_DEFPUSHBUTTON;
    look.pushed = (state_ & BST_PUSHED) != 0;
    look.checked = (state_ & BST_CHECKED) != 0;
    look.focused = (state_ & BST_FOCUS) != 0;
    look.enabled = IsWindowEnabled(Window());
    if (push) {
        PaintPushButton(dc, look);
    } else if (IsCheckBox()) {
        PaintCheckBox(dc, look);
    } else {
        PaintGroupBox(dc, look);
    }
}

}  // namespace

void RegisterButtonClass() {
    RegisterControlClass("Button", ControlProcedure<Button>, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW);
}
