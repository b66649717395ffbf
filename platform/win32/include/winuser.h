#pragma once

#include <windef.h>
#include <wingdi.h>

#include <winuser_calls.h>
#include <winuser_controls.h>
#include <winuser_records.h>
#include <winuser_values.h>

// Windows, messages, controls and dialogs. The values are those of the published header; it is split by
// subject here.

#define MB_OK 0x0u
#define MB_OKCANCEL 0x1u
#define MB_ABORTRETRYIGNORE 0x2u
#define MB_YESNOCANCEL 0x3u
#define MB_YESNO 0x4u
#define MB_RETRYCANCEL 0x5u
#define MB_TYPEMASK 0xFu
#define MB_ICONHAND 0x10u
#define MB_ICONQUESTION 0x20u
#define MB_ICONEXCLAMATION 0x30u
#define MB_ICONASTERISK 0x40u
#define MB_ICONMASK 0xF0u
#define MB_DEFBUTTON2 0x100u
#define MB_DEFBUTTON3 0x200u
#define MB_DEFMASK 0xF00u

#define IDOK 1
#define IDCANCEL 2
#define IDABORT 3
#define IDRETRY 4
#define IDIGNORE 5
#define IDYES 6
#define IDNO 7

extern "C" {

// The result is the id of the button; IDCANCEL for a box that is closed, whatever its buttons are. Where
// message_box_answers.h was given an answer, that is the result and there is no dialog.
WINBASEAPI int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
}
