#pragma once

#include "window.h"

// Where a bar lies in its window; empty without one.
RECT ScrollBarRect(const Window& window, int bar);
void PaintScrollBars(HDC dc, const Window& window);
// Tells the window which part of the bar was pressed.
void PressScrollBar(HWND handle, int bar, POINT screen);
