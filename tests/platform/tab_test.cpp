#include <gtest/gtest.h>

#include "control_host.h"

namespace {

class TabTest : public testing::Test {
protected:
    TabTest() {
        INITCOMMONCONTROLSEX wanted = {sizeof wanted, ICC_TAB_CLASSES};
        InitCommonControlsEx(&wanted);
        tabs_ = host_.Add(WC_TABCONTROLA, "", WS_TABSTOP, 300, 100);
    }
    ~TabTest() override { DestroyWindow(tabs_); }

    LRESULT Send(UINT message, int index = 0, LPARAM lParam = 0) {
        return SendMessageA(tabs_, message, static_cast<WPARAM>(index), lParam);
    }
    LRESULT Insert(int index, const char* text) {
        std::string copy = text;
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = copy.data();
        return Send(TCM_INSERTITEMA, index, reinterpret_cast<LPARAM>(&item));
    }
    std::string Text(int index, int room) {
        char text[32] = "";
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = room;
        return Send(TCM_GETITEMA, index, reinterpret_cast<LPARAM>(&item)) ? text : "none";
    }
    RECT Place(int index) {
        RECT rect = {};
        EXPECT_TRUE(Send(TCM_GETITEMRECT, index, reinterpret_cast<LPARAM>(&rect)));
        return rect;
    }
    void Click(int index) {
        const RECT rect = Place(index);
        MouseDown(tabs_, (rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
        MouseUp(tabs_, (rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }
    int Front() { return static_cast<int>(Send(TCM_GETCURSEL)); }

    ControlHost host_;
    HWND tabs_;
};

TEST_F(TabTest, TabsComeWhereTheyAreWanted) {
    EXPECT_EQ(Front(), -1);
    EXPECT_EQ(Insert(0, "One"), 0);
    EXPECT_EQ(Front(), 0) << "the first is in front at once";
    EXPECT_EQ(Insert(99, "Three words"), 1);
    EXPECT_EQ(Insert(0, "Zero"), 0);
    EXPECT_EQ(Front(), 1) << "the same tab";
    EXPECT_EQ(Send(TCM_GETITEMCOUNT), 3);
    EXPECT_EQ(Text(2, 32), "Three words");
    EXPECT_EQ(Text(2, 6), "Three");
    EXPECT_EQ(Text(3, 32), "none");
    const RECT first = Place(0);
    const RECT last = Place(2);
    EXPECT_EQ(first.left, 2);
    EXPECT_EQ(first.right - first.left, 54) << "as narrow as a tab gets";
    EXPECT_EQ(Place(1).right, last.left);
    EXPECT_GT(last.right - last.left, 80);
    RECT none = {};
    EXPECT_FALSE(Send(TCM_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&none)));
}

TEST_F(TabTest, OnlyTheUserIsTold) {
    for (const char* text : {"a", "b", "c"})
        Insert(9, text);
    EXPECT_EQ(Send(TCM_SETCURSEL, 2), 0);
    EXPECT_EQ(Send(TCM_SETCURSEL, 9), -1);
    EXPECT_EQ(Front(), 2);
    EXPECT_EQ(host_.Told(), "");
    Click(1);
    EXPECT_EQ(Front(), 1);
    EXPECT_EQ(host_.Told(), "changing changed");
    EXPECT_EQ(GetFocus(), tabs_);
    Click(1);
    EXPECT_EQ(host_.Told(), "") << "it was in front already";
    const std::pair<int, int> keys[] = {
        {VK_RIGHT, 2}, {VK_RIGHT, 2}, {VK_LEFT, 1}, {VK_HOME, 1}, {VK_END, 1}};
    int before = 1;
    for (const auto& [key, front] : keys) {
        PressKey(tabs_, key);
        EXPECT_EQ(Front(), front) << key;
        EXPECT_EQ(host_.Told(), front == before ? "" : "changing changed") << key;
        before = front;
    }
}

TEST_F(TabTest, ParentKeepsATabInFront) {
    Insert(0, "a");
    Insert(1, "b");
    host_.on_message = [](UINT message, WPARAM, LPARAM lParam) -> LRESULT {
        return message == WM_NOTIFY &&
               reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(TCN_SELCHANGING);
    };
    Click(1);
    host_.on_message = nullptr;
    EXPECT_EQ(Front(), 0);
    EXPECT_EQ(host_.Told(), "changing");
}

}  // namespace
