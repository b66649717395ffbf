#pragma once

#include <windows.h>

// Writes what a window of this thread shows, its frame included, as a BMP file; made of calls that every
// world has. False when there is no such window or the file can't be written.
bool SaveWindowBitmap(HWND window, const char* file);
