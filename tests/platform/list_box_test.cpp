#include <gtest/gtest.h>

#include "control_host.h"

namespace {

class ListBoxTest : public testing::Test {
protected:
    void Make(DWORD style, std::initializer_list<const char*> items) {
        list_ = host_.Add("LISTBOX", "", WS_VSCROLL | style, 100, 70);
        for (const char* item : items)
            Send(LB_ADDSTRING, 0, item);
        row_ = static_cast<int>(Send(LB_GETITEMHEIGHT));
        host_.Told();
    }
    ~ListBoxTest() override { DestroyWindow(list_); }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(list_, message, wParam, lParam);
    }
    LRESULT Send(UINT message, WPARAM wParam, const char* text) {
        return Send(message, wParam, reinterpret_cast<LPARAM>(text));
    }
    int Selected() { return static_cast<int>(Send(LB_GETCURSEL)); }
    std::string Items() {
        std::string items;
        for (int index = 0; index < Send(LB_GETCOUNT); ++index) {
            char text[16] = "";
            EXPECT_EQ(Send(LB_GETTEXT, static_cast<WPARAM>(index), text),
                      Send(LB_GETTEXTLEN, static_cast<WPARAM>(index)));
            items += std::string(items.empty() ? "" : " ") + text;
        }
        return items;
    }
    int TopRow() {
        RECT first = {};
        Send(LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
        return static_cast<int>(-first.top) / row_;
    }
    // The middle of a visible row.
    int RowY(int row) const { return row * row_ + row_ / 2; }

    ControlHost host_;
    HWND list_ = nullptr;
    int row_ = 0;
};

TEST_F(ListBoxTest, SortsByWordsWithEqualsBeforeEachOther) {
    Make(LBS_SORT, {"pear", "Apple", "fig", "apple", "Zoo", "_u", "<ALL>", "b2"});
    const std::string sorted = Items();
    EXPECT_EQ(sorted.substr(sorted.find("apple")), "apple Apple b2 fig pear Zoo");
    EXPECT_LT(sorted.find("<ALL>"), sorted.find("apple"));
    EXPECT_LT(sorted.find("_u"), sorted.find("apple"));
}

TEST_F(ListBoxTest, FindsItsItems) {
    Make(0, {"pear", "Apple", "fig", "apple"});
    EXPECT_EQ(Items(), "pear Apple fig apple");
    const struct {
        UINT message;
        int start;
        const char* text;
        int found;
    } cases[] = {{LB_FINDSTRING, -1, "AP", 1},         {LB_FINDSTRING, 1, "ap", 3},
                 {LB_FINDSTRING, 3, "ap", 1},          {LB_FINDSTRING, -1, "", -1},
                 {LB_FINDSTRINGEXACT, -1, "appl", -1}, {LB_FINDSTRINGEXACT, 1, "APPLE", 3}};
    for (const auto& c : cases)
        EXPECT_EQ(Send(c.message, static_cast<WPARAM>(c.start), c.text), c.found) << c.text << c.start;
    for (const int none : {-1, 4}) {
        char text[16] = "x";
        EXPECT_EQ(Send(LB_GETTEXT, static_cast<WPARAM>(none), text), LB_ERR);
        EXPECT_EQ(Send(LB_GETTEXTLEN, static_cast<WPARAM>(none)), LB_ERR);
    }
}

TEST_F(ListBoxTest, SelectionFollowsItsItem) {
    Make(LBS_NOTIFY, {"a", "b", "c", "d"});
    EXPECT_EQ(Selected(), -1);
    EXPECT_EQ(Send(LB_SETCURSEL, 3), 3);
    EXPECT_EQ(Send(LB_SETCURSEL, 99), LB_ERR);
    EXPECT_EQ(Send(LB_DELETESTRING, 1), 3);
    EXPECT_EQ(Selected(), 2) << "still d";
    EXPECT_EQ(Send(LB_DELETESTRING, 2), 2);
    EXPECT_EQ(Selected(), -1);
    EXPECT_EQ(Send(LB_DELETESTRING, 2), LB_ERR);
    Send(LB_SETCURSEL, 0);
    EXPECT_EQ(Send(LB_SETCURSEL, static_cast<WPARAM>(-1)), LB_ERR);
    EXPECT_EQ(Selected(), -1);
    EXPECT_EQ(host_.Told(), "") << "a program's own choice is not told";
}

TEST_F(ListBoxTest, KeysMoveTheSelectionAndTell) {
    Make(LBS_NOTIFY, {"a", "ba", "c", "bb", "d"});
    SetFocus(list_);
    EXPECT_EQ(host_.Told(), "focus");
    const std::pair<int, int> cases[] = {{VK_DOWN, 0}, {VK_RIGHT, 1}, {VK_END, 4},  {VK_DOWN, 4},
                                         {VK_HOME, 0}, {VK_LEFT, 0},  {VK_NEXT, 3}, {VK_PRIOR, 0},
                                         {VK_NEXT, 3}, {VK_UP, 2}};
    for (const auto& [key, selected] : cases) {
        PressKey(list_, key);
        EXPECT_EQ(Selected(), selected) << key;
        EXPECT_EQ(host_.Told(), "select") << key;
    }
    for (const int selected : {3, 1}) {
        Send(WM_CHAR, 'B');
        EXPECT_EQ(Selected(), selected);
    }
    host_.Told();
    Send(WM_CHAR, 'q');
    EXPECT_EQ(host_.Told(), "");
    SetFocus(host_.Window());
    EXPECT_EQ(host_.Told(), "blur");
}

TEST_F(ListBoxTest, MouseChoosesWhenItIsReleased) {
    Make(LBS_NOTIFY, {"a", "b", "c", "d", "e"});
    MouseDown(list_, 5, RowY(1));
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(host_.Told(), "focus");
    MouseMove(list_, 5, RowY(2));
    MouseUp(list_, 5, RowY(2));
    EXPECT_EQ(Selected(), 2);
    EXPECT_EQ(host_.Told(), "select");
    MouseMove(list_, 5, RowY(0));
    EXPECT_EQ(Selected(), 2) << "no button is down";
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, RowY(0)));
    EXPECT_EQ(host_.Told(), "double");
}

TEST_F(ListBoxTest, WithoutNotifyOnlyTheFocusIsTold) {
    Make(0, {"a", "b"});
    MouseDown(list_, 5, RowY(1));
    MouseUp(list_, 5, RowY(1));
    PressKey(list_, VK_UP);
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(host_.Told(), "focus");
}

TEST_F(ListBoxTest, ScrollsWholeRowsAsFarAsThereAreSome) {
    Make(0, {"a", "b", "c", "d", "e", "f"});
    RECT client = {};
    GetClientRect(list_, &client);
    EXPECT_EQ(client.bottom % row_, 0);
    const int last = 6 - static_cast<int>(client.bottom) / row_;
    const std::pair<WPARAM, int> cases[] = {
        {SB_LINEDOWN, 1}, {SB_LINEUP, 0}, {SB_PAGEDOWN, last}, {SB_LINEDOWN, last}, {SB_TOP, 0}};
    for (const auto& [code, top] : cases) {
        Send(WM_VSCROLL, code);
        EXPECT_EQ(TopRow(), top) << code;
    }
    Send(LB_SETCURSEL, 5);
    EXPECT_EQ(TopRow(), last);
    RECT row = {};
    EXPECT_EQ(Send(LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row)), 0) << "not in sight";
    EXPECT_EQ(Send(LB_GETITEMRECT, 5, reinterpret_cast<LPARAM>(&row)), 1);
    EXPECT_EQ(Send(LB_RESETCONTENT) + Send(LB_GETCOUNT), 0);
    EXPECT_EQ(Selected(), -1);
}

}  // namespace
