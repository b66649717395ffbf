#pragma once

#include <windows.h>

#include <string>

// Windows that write down what they are told.

// All entries since the last call, as "letter:MESSAGE" with the window's name, or the names of the windows
// that got one message.
std::string Noted();
std::string Noted(const char* message);

// Its procedure calls `NotingHook` first, where a test has set one.
HWND MakeNoting(const char* name, HWND parent = nullptr, DWORD style = WS_POPUP | WS_VISIBLE,
                RECT place = {10, 10, 210, 160});
inline void (*NotingHook)(HWND window, UINT message) = nullptr;
