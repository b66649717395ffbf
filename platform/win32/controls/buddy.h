#pragma once

#include <windows.h>

// Passes the up and down keys of one window on to another one.
//
// The window is subclassed until it is destroyed. Someone else may have subclassed it in the meantime: then
// the procedure stays in its place and does nothing any more.
void WatchArrowKeys(HWND buddy, HWND listener);
void LeaveArrowKeys(HWND buddy, HWND listener);
