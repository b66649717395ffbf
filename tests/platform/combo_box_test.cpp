#include <gtest/gtest.h>

#include "control_host.h"

namespace {

class ComboBoxTest : public testing::Test {
protected:
    void Make(DWORD style, std::initializer_list<const char*> items) {
        combo_ = host_.Add("COMBOBOX", "", WS_VSCROLL | style, 120, 150);
        for (const char* item : items)
            Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
    ~ComboBoxTest() override { DestroyWindow(combo_); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(combo_, message, wParam, lParam);
    }
    // What is selected, what is shown, and whether the list is open.
    std::string State() {
        return std::to_string(Send(CB_GETCURSEL)) + " '" + TextOf(combo_) + "'" +
               (Send(CB_GETDROPPEDSTATE) ? " open" : "");
    }
    void ClickArrow() {
        RECT client = {};
        GetClientRect(combo_, &client);
        MouseDown(combo_, client.right - 8, 8);
        MouseUp(combo_, client.right - 8, 8);
    }
    // The open list is a window of its own; it asks for its colour when it appears.
    HWND OpenList() {
        HWND list = nullptr;
        host_.on_message = [&list](UINT message, WPARAM, LPARAM lParam) -> LRESULT {
            if (message == WM_CTLCOLORLISTBOX) list = reinterpret_cast<HWND>(lParam);
            return 0;
        };
        Send(CB_SHOWDROPDOWN, TRUE);
        PumpMessages();
        host_.on_message = nullptr;
        host_.Told();
        return list;
    }

    struct Step {
        int key;
        const char* state;
        const char* told;
    };
    void Press(HWND window, std::initializer_list<Step> steps) {
        for (const Step& step : steps) {
            PressKey(window, step.key);
            EXPECT_EQ(State(), step.state) << step.key;
            EXPECT_EQ(host_.Told(), step.told) << step.key;
        }
    }

    ControlHost host_;
    HWND combo_ = nullptr;
};

TEST_F(ComboBoxTest, ProgramChoosesSilently) {
    for (const DWORD kind : {DWORD{CBS_DROPDOWNLIST}, DWORD{CBS_DROPDOWN}}) {
        Make(kind, {"pear", "Apple", "fig", "apple"});
        EXPECT_EQ(State(), "-1 ''");
        EXPECT_EQ(Send(CB_SETCURSEL, 2), 2);
        EXPECT_EQ(Send(CB_SETCURSEL, 9), CB_ERR);
        EXPECT_EQ(State(), "2 'fig'");
        EXPECT_EQ(Send(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>("APPLE")), 1);
        EXPECT_EQ(Send(CB_DELETESTRING, 0), 3);
        EXPECT_EQ(State(), "1 'fig'");
        EXPECT_EQ(Send(CB_DELETESTRING, 1), 2);
        EXPECT_EQ(State(), kind == CBS_DROPDOWN ? "-1 'fig'" : "-1 ''") << "an edit keeps its text";
        EXPECT_EQ(Send(CB_DELETESTRING, 2), CB_ERR);
        EXPECT_EQ(Send(CB_GETLBTEXTLEN, 0), 5);
        EXPECT_EQ(Send(CB_GETLBTEXTLEN, 2), CB_ERR);
        SetWindowTextA(combo_, "typed");
        EXPECT_EQ(TextOf(combo_), kind == CBS_DROPDOWN ? "typed" : "");
        EXPECT_EQ(Send(CB_SETCURSEL, static_cast<WPARAM>(-1)), CB_ERR);
        EXPECT_EQ(State(), "-1 ''");
        EXPECT_EQ(host_.Told(), "");
        DestroyWindow(combo_);
    }
}

TEST_F(ComboBoxTest, OnlyItsFieldHasAHeight) {
    Make(CBS_DROPDOWNLIST, {"a"});
    RECT rect = {};
    GetWindowRect(combo_, &rect);
    const LONG height = rect.bottom - rect.top;
    EXPECT_LT(height, 50);
    MoveWindow(combo_, 10, 10, 200, 80, TRUE);
    GetWindowRect(combo_, &rect);
    EXPECT_EQ(rect.bottom - rect.top, height);
    EXPECT_EQ(rect.right - rect.left, 200);
}

TEST_F(ComboBoxTest, ListOpensAndCloses) {
    Make(CBS_DROPDOWNLIST, {"a", "b"});
    const struct {
        WPARAM open;
        const char* told;
    } cases[] = {{TRUE, "open"}, {TRUE, ""}, {FALSE, "given-up close"}, {FALSE, ""}};
    for (const auto& c : cases) {
        EXPECT_EQ(Send(CB_SHOWDROPDOWN, c.open), TRUE);
        EXPECT_EQ(host_.Told(), c.told);
    }
    ClickArrow();
    EXPECT_EQ(host_.Told(), "focus open");
    ClickArrow();
    EXPECT_EQ(host_.Told(), "taken close");
    ClickArrow();
    host_.Told();
    SetFocus(host_.Window());
    EXPECT_EQ(host_.Told(), "given-up close blur");
}

TEST_F(ComboBoxTest, KeysOfADropList) {
    Make(CBS_DROPDOWNLIST, {"Apple", "fig", "Zoo"});
    Send(CB_SETCURSEL, 1);
    SetFocus(combo_);
    EXPECT_EQ(host_.Told(), "focus");
    Press(combo_, {{VK_DOWN, "2 'Zoo'", "taken select"},
                   {VK_DOWN, "2 'Zoo'", "taken select"},
                   {VK_HOME, "0 'Apple'", "taken select"},
                   {VK_NEXT, "2 'Zoo'", "taken select"},
                   {VK_LEFT, "1 'fig'", "taken select"},
                   {VK_F4, "1 'fig' open", "open"},
                   {VK_UP, "0 'Apple' open", "select"},
                   {VK_RETURN, "0 'Apple'", "taken close"},
                   {VK_F4, "0 'Apple' open", "open"},
                   {VK_DOWN, "1 'fig' open", "select"},
                   {VK_ESCAPE, "1 'fig'", "given-up close"},
                   {VK_ESCAPE, "1 'fig'", ""}});
    Send(WM_CHAR, 'z');
    EXPECT_EQ(State(), "2 'Zoo'");
    EXPECT_EQ(host_.Told(), "taken select");
}

TEST_F(ComboBoxTest, EditLeavesTheKeysOfTheListToIt) {
    Make(CBS_DROPDOWN | CBS_AUTOHSCROLL, {"Apple", "fig", "Zoo"});
    Send(CB_SETCURSEL, 1);
    SetFocus(combo_);
    const HWND edit = GetFocus();
    EXPECT_EQ(GetParent(edit), combo_);
    EXPECT_EQ(host_.Told(), "focus");
    Press(edit, {{VK_DOWN, "2 'Zoo'", "taken select"},
                 {VK_HOME, "2 'Zoo'", ""},
                 {VK_PRIOR, "0 'Apple'", "taken select"},
                 {VK_F4, "0 'Apple' open", "open"},
                 {VK_DOWN, "1 'fig' open", "select"},
                 {VK_F4, "1 'fig'", "given-up close"}});
}

TEST_F(ComboBoxTest, WhatIsTypedIsNoItem) {
    Make(CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_SORT, {"Zoo", "fig", "pear"});
    SetFocus(combo_);
    const HWND edit = GetFocus();
    host_.Told();
    SendMessageA(edit, WM_CHAR, 'p', 1);
    EXPECT_EQ(State(), "-1 'p'");
    EXPECT_EQ(host_.Told(), "update change");
    Send(CB_SHOWDROPDOWN, TRUE);
    EXPECT_EQ(State(), "1 'pear' open") << "the item that begins with it";
    host_.Told();
    SendMessageA(edit, WM_CHAR, 'z', 1);
    EXPECT_EQ(State(), "2 'z' open") << "the text was selected";
    SendMessageA(edit, WM_CHAR, '\r', 1);
    EXPECT_EQ(State(), "2 'z'");
    EXPECT_EQ(host_.Told(), "update change taken close");
}

TEST_F(ComboBoxTest, ClickInTheOpenListChooses) {
    Make(CBS_DROPDOWNLIST, {"a", "b", "c"});
    SetFocus(combo_);
    const HWND list = OpenList();
    ASSERT_NE(list, nullptr);
    const int y = static_cast<int>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0)) + 2;
    MouseDown(list, 5, y);
    EXPECT_EQ(State(), "1 'b' open");
    EXPECT_EQ(host_.Told(), "");
    MouseUp(list, 5, y);
    EXPECT_EQ(State(), "1 'b'");
    EXPECT_EQ(host_.Told(), "taken close select");
    EXPECT_EQ(GetFocus(), combo_);
}

}  // namespace
