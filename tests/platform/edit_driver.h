#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "control_host.h"

// An edit control that is driven by words and shown as one string.
//
// Inputs: Left Right Up Down Home End PageUp PageDown Delete, with + for Shift and ^ for Ctrl before them;
// Back Enter Tab; anything else is typed. Shown: the text with | for the caret or
// [ ] around the selection, and / for CR LF.
class EditDriver {
public:
    EditDriver(ControlHost& host, const char* text, DWORD style, int width = 200, int height = 100)
        : window_(host.Add("EDIT", text, style, width, height)) {
        SendMessageA(window_, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        SetFocus(window_);
        host.Told();
    }

    HWND Window() const { return window_; }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(window_, message, wParam, lParam);
    }
    LRESULT Replace(const char* text) const {
        return Send(EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
    }
    void Do(std::string_view input) const;
    std::string Shown() const;
    size_t SelectionStart() const;
    // Where a character is, in the client area.
    POINT PlaceOf(int position) const;

private:
    HWND window_;
};

struct EditStep {
    const char* input;
    const char* shown;
    const char* told;  // of the parent; null: whatever
};

template <size_t kCount>
void RunSteps(ControlHost& host, const EditDriver& edit, const EditStep (&steps)[kCount]) {
    for (const EditStep& step : steps) {
        SCOPED_TRACE(testing::Message() << "step " << &step - steps << ": " << step.input);
        edit.Do(step.input);
        EXPECT_EQ(edit.Shown(), step.shown);
        const std::string told = host.Told();
        if (step.told) {
            EXPECT_EQ(told, step.told);
        }
    }
}
