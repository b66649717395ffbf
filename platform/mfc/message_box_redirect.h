#pragma once

#include "afx_base.h"

using MessageBoxFunction = int(WINAPI*)(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// Sends the calls of MessageBoxA that this module makes to `target`; null ends that.
void RedirectMessageBoxes(MessageBoxFunction target);
