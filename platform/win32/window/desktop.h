#pragma once

#include <windows.h>

// The desktop: the parent of all top-level windows. It has a size and nothing to see.
inline const HWND kDesktopWindow = reinterpret_cast<HWND>(static_cast<UINT_PTR>(0x10001));
inline constexpr int kScreenWidth = 1024;
inline constexpr int kScreenHeight = 768;

// Without a message to anybody.
void RemoveWindowsOfThread(DWORD thread);
