#include "text_control.h"

LRESULT TextControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFONT:
            font_ = reinterpret_cast<HFONT>(wParam);
            if (lParam) Redraw();
            return 0;
        case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
        case WM_ENABLE: Redraw(); return 0;
        default: return Default(message, wParam, lParam);
    }
}

LRESULT LabelControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return 1;
        case WM_ENABLE: RedrawNow(); return 0;
        case WM_SETTEXT: {
            const LRESULT result = Default(message, wParam, lParam);
            RedrawNow();
            return result;
        }
        default: return TextControl::Handle(message, wParam, lParam);
    }
}

int TextControl::Width(const char* text, size_t length) const {
    const FontContext context(Window(), font_);
    SIZE size = {};
    GetTextExtentPoint32A(context.Get(), text, static_cast<int>(length), &size);
    return size.cx;
}

int TextControl::LineHeight() const {
    const FontContext context(Window(), font_);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(context.Get(), &metrics);
    return metrics.tmHeight > 0 ? metrics.tmHeight : 1;
}
