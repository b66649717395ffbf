#include "static_text.h"

#include "button_paint.h"
#include "text_control.h"

namespace {

class StaticText : public LabelControl {
public:
    explicit StaticText(HWND window) : LabelControl(window) {}
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    UINT TextFormat() const;
    void Paint();
};

LRESULT StaticText::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE: return DLGC_STATIC;
        case WM_NCHITTEST: return HTTRANSPARENT;
        case WM_PAINT: Paint(); return 0;
        default: return LabelControl::Handle(message, wParam, lParam);
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
    const PaintContext context(Window(), font_);
    const HDC dc = context.Get();
    if (!dc) return;
    RECT area = ClientArea();
    FillRect(dc, &area, BackgroundBrush(WM_CTLCOLORSTATIC, dc));
    const std::string text = WindowText();
    if (IsWindowEnabled(Window())) {
        DrawTextA(dc, text.data(), static_cast<int>(text.size()), &area, TextFormat());
    } else {
        PaintGreyText(dc, text, area, TextFormat());
    }
}

}  // namespace

void RegisterStaticClass() {
    RegisterControlClass("Static", ControlProcedure<StaticText>, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW);
}
