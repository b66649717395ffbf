#include "static_text.h"

#include "button_paint.h"
#include "control.h"

namespace {

class StaticText : public Control {
public:
    explicit StaticText(HWND window) : Control(window) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    UINT TextFormat() const;
    void Paint();

    HFONT font_ = nullptr;
};

LRESULT StaticText::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_NCHITTEST: return HTTRANSPARENT;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(); return 0;
        case WM_ENABLE: RedrawNow(); return 0;
        case WM_SETTEXT: {
            const LRESULT result = Default(message, wParam, lParam);
            RedrawNow();
            return result;
        }
        case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
        case WM_SETFONT:
            font_ = reinterpret_cast<HFONT>(wParam);
            if (lParam) Redraw();
            return 0;
        default: return Default(message, wParam, lParam);
    }
}

UINT StaticText::TextFormat() const {
    UINT format = DT_EXPANDTABS;
    switch (Style() & static_cast<DWORD>(SS_TYPEMASK)) {
        case SS_CENTER: format |= DT_CENTER | DT_WORDBREAK; break;
        case SS_RIGHT: format |= DT_RIGHT | DT_WORDBREAK; break;
        case SS_LEFTNOWORDWRAP: break;
        default: format |= DT_WORDBREAK; break;
    }
    if (HasStyle(SS_NOPREFIX)) format |= DT_NOPREFIX;
    return format;
}

void StaticText::Paint() {
    PAINTSTRUCT paint = {};
    const HDC dc = BeginPaint(Window(), &paint);
    if (!dc) return;
    const HGDIOBJ former = font_ ? SelectObject(dc, font_) : nullptr;
    RECT area = ClientArea();
    FillRect(dc, &area, BackgroundBrush(WM_CTLCOLORSTATIC, dc));
    const std::string text = WindowText();
    if (IsWindowEnabled(Window())) {
        DrawTextA(dc, text.data(), static_cast<int>(text.size()), &area, TextFormat());
    } else {
        PaintGreyText(dc, text, area, TextFormat());
    }
    if (former) SelectObject(dc, former);
    EndPaint(Window(), &paint);
}

}  // namespace

void RegisterStaticClass() {
    RegisterControlClass("Static", ControlProcedure<StaticText>, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW);
}
