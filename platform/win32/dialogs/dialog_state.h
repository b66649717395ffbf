#pragma once

#include <windows.h>

#include <memory>

// What a dialog keeps besides its words.
struct DialogState {
    ~DialogState() {
        if (font) DeleteObject(font);
    }

    HFONT font = nullptr;  // owned
    SIZE units = {};       // width of 4 and height of 8 dialog units, in pixels
    HWND focus = nullptr;  // to come back to when the dialog is activated again
    int default_id = 0;    // of the button that Return means; 0 without one
    bool modal = false;
    bool ended = false;
    INT_PTR result = 0;
};

// Null for a window that is no dialog. Who calls a handler holds on to the state, as it may destroy the
// dialog.
std::shared_ptr<DialogState> DialogStateOf(HWND dialog);
std::shared_ptr<DialogState> MakeDialogState(HWND dialog);
void ForgetDialogState(HWND dialog);
