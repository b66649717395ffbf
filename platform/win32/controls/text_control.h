#pragma once

#include "control.h"

// A control that shows text in a font of its own.
class TextControl : public Control {
protected:
    explicit TextControl(HWND window) : Control(window) {}
    ~TextControl() = default;

    // Font and enabling; everything else by default.
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

    HWND Parent() const { return GetParent(Window()); }
    bool Enabled() const { return IsWindowEnabled(Window()); }
    bool Focused() const { return GetFocus() == Window(); }
    int Width(const char* text, size_t length) const;
    int LineHeight() const;

    HFONT font_ = nullptr;
};

// One whose text is the window's own. What changes it is seen at once.
class LabelControl : public TextControl {
protected:
    using TextControl::TextControl;
    ~LabelControl() = default;

    // A new text, enabling and the font; everything else by default.
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
};
