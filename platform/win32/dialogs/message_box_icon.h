#pragma once

#include <windows.h>

// Width and height, in pixels.
inline constexpr int kMessageBoxIconSize = 32;

// Draws the sign for one of the MB_ICON values.
void DrawMessageBoxIcon(HDC dc, UINT icon, int x, int y);
