#pragma once

#include <windows.h>

// Passes the up and down keys of one window on to another one.
//
// The window is subclassed until it is destroyed. Someone else may have subclassed it in the meantime: then
// the procedure stays in its place and does nothing any more.
// The listener gets them as kBuddyKey, with the key's wParam: two windows may listen to each other.
inline constexpr UINT kBuddyKey = WM_USER + 0x300;

void WatchArrowKeys(HWND buddy, HWND listener);
void LeaveArrowKeys(HWND buddy, HWND listener);
