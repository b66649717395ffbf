#pragma once

#include <afxwin.h>

#include "controls/slider_geometry.h"

// Draws the whole client area of a slider; `style` holds the look bits of WS_SliderV.
void PaintSlider(CDC& dc, const RECT& client, const SliderRange& range, DWORD style);
