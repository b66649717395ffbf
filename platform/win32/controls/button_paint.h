#pragma once

#include <windows.h>

#include <string>

// The classic look of buttons.
struct ButtonLook {
    RECT area;
    std::string text;
    HBRUSH background;
    bool is_default;
    bool pushed;
    bool checked;
    bool focused;
    bool enabled;
};

void PaintPushButton(HDC dc, const ButtonLook& look);
void PaintCheckBox(HDC dc, const ButtonLook& look);
// Only the frame and its caption: the windows inside it are its siblings.
void PaintGroupBox(HDC dc, const ButtonLook& look);

// Text that is not enabled: grey over its own light shadow.
void PaintGreyText(HDC dc, const std::string& text, RECT area, UINT format);
