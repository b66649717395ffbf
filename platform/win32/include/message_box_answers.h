#pragma once

#include <winuser.h>

// Answers the message boxes of the stand-in in the user's place.

using MessageBoxAnswer = int (*)(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// Called on the thread that shows the box; null lets it be a dialog again. For the whole process.
WINBASEAPI void SetMessageBoxAnswer(MessageBoxAnswer answer);
