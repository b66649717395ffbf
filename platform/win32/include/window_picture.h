#pragma once

#include <windows.h>

// Writes what a window shows, its frame and its children included, as a PNG file. To be called on the thread
// of the window. False when there is no such window or the file can't be written.
WINUSERAPI bool SaveWindowPicture(HWND window, const char* file);
