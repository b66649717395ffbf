#include <gtest/gtest.h>

#include "controls/scroll_pane.h"
#include "controls/scroll_steps.h"
#include "controls/windows/panel.h"
#include "resources/resource_ids.h"

namespace {

TEST(ScrollSteps, LeadWhereTheCodeSays) {
    const struct {
        UINT code;
        int thumb, from, to;
    } rows[] = {{SB_LINEUP, 0, 40, 24},     {SB_LINEUP, 0, 10, 0},          {SB_LINEDOWN, 0, 40, 56},
                {SB_PAGEUP, 0, 40, 8},      {SB_PAGEDOWN, 0, 40, 72},       {SB_PAGEDOWN, 0, 95, 100},
                {SB_THUMBTRACK, 63, 0, 63}, {SB_THUMBPOSITION, 900, 0, 100}};
    for (const auto& row : rows)
        EXPECT_EQ(ScrolledPosition(row.code, row.thumb, row.from, 100), row.to) << row.code;
    EXPECT_FALSE(ScrolledPosition(SB_ENDSCROLL, 0, 40, 100).has_value());
}

class ScrollPane : public testing::Test {
protected:
    ScrollPane() {
        pane_.Create(kPanelDialog, &panel_.Window());
        pane_.MoveWindow(0, 0, 200, 150);
        pane_.ShowWindow(SW_SHOW);
        const RECT place = {0, 0, 50, 20};
        child_.Create("child", WS_VISIBLE, place, &pane_, 7);
    }

    // Tells the pane its size, as the system does after a change.
    void Resize(int height) {
        pane_.MoveWindow(0, 0, 200, height);
        RECT client = {};
        pane_.GetClientRect(&client);
        pane_.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    }
    void Scroll(int code, int thumb = 0) { pane_.SendMessage(WM_VSCROLL, MAKEWPARAM(code, thumb)); }
    int ChildTop() {
        RECT place = {};
        child_.GetWindowRect(&place);
        pane_.ScreenToClient(&place);
        return place.top;
    }
    int ViewHeight() {
        RECT client = {};
        pane_.GetClientRect(&client);
        return client.bottom;
    }

    Panel panel_;
    WS_ScrollPane pane_{kPanelDialog, nullptr};
    CButton child_;
};

TEST_F(ScrollPane, MovesItsContent) {
    pane_.SetContentSize(0, 400);
    Resize(150);
    EXPECT_EQ(pane_.GetScrollLimit(SB_VERT), 400 - ViewHeight());
    Scroll(SB_LINEDOWN);
    EXPECT_EQ(ChildTop(), -16);
    Scroll(SB_PAGEDOWN);
    EXPECT_EQ(ChildTop(), -48);
    Scroll(SB_THUMBTRACK, 30);
    EXPECT_EQ(ChildTop(), -30);
    Scroll(SB_ENDSCROLL);
    EXPECT_EQ(ChildTop(), -30);
    EXPECT_EQ(pane_.GetScrollPos(SB_VERT), 30);
}

TEST_F(ScrollPane, ContentFollowsTheBottomEdgeWhenThePaneGrows) {
    pane_.SetContentSize(0, 400);
    Resize(150);
    Scroll(SB_THUMBPOSITION, 400);
    EXPECT_EQ(ChildTop(), ViewHeight() - 400);
    Resize(200);
    EXPECT_EQ(ChildTop(), ViewHeight() - 400);
    Resize(500);
    EXPECT_EQ(ChildTop(), 0);
    EXPECT_FALSE(pane_.GetStyle() & WS_VSCROLL);
}

}  // namespace
