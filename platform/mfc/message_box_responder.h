#pragma once

#include <functional>
#include <string>

#include "afx_base.h"

// Lets a program answer the message boxes that its own code shows: tests, and the command line, which has no
// window. It catches MessageBoxA itself, in both worlds, so that the callers stay as they are. A program that
// does not use this leaves the boxes to the user.

struct ShownMessageBox {
    HWND owner;
    std::string text;
    std::string caption;
    UINT type;
};

// Gives the id of the button. Called on the thread that shows the box.
using MessageBoxResponder = std::function<int(const ShownMessageBox& box)>;

// For all boxes of this module from now on; an empty one hands them back to the system.
void SetMessageBoxResponder(MessageBoxResponder responder);
