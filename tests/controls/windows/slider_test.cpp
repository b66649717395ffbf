#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "controls/slider.h"
#include "controls/toolkit_gdi.h"
#include "controls/windows/panel.h"

namespace {

TEST(SliderGeometry, PlacesOfPositionsAndBack) {
    const SliderGeometry geometry(102, 24);
    const struct {
        SliderRange range;
        int x;
    } rows[] = {{{50, 1, 100}, 51}, {{1, 1, 100}, 2},     {{100, 1, 100}, 100},
                {{-5, 1, 100}, 2},  {{900, 1, 100}, 100}, {{0, -10, 10}, 51}};
    for (const auto& row : rows)
        EXPECT_EQ(geometry.ThumbX(row.range), row.x) << row.range.position;
    EXPECT_EQ(geometry.PositionAt(-50, {0, 1, 100}), 1);
    EXPECT_EQ(geometry.PositionAt(500, {0, 1, 100}), 100);
    EXPECT_EQ(geometry.PositionAt(51, {0, 1, 100}), 51);
    EXPECT_EQ(geometry.PositionAt(500, {0, INT_MIN, INT_MAX}), INT_MAX);
    EXPECT_EQ(SliderGeometry(2, 5).PositionAt(1, {0, 1, 100}), 1);
}

TEST(LightColor, IsTwoThirdsOfTheWayToWhite) {
    EXPECT_EQ(LightColorOf(RGB(212, 208, 200)), RGB(240, 239, 236));
    EXPECT_EQ(LightColorOf(RGB(255, 255, 255)), RGB(255, 255, 255));
}

class Slider : public testing::Test {
protected:
    Slider() { panel_.Child(slider_, 9, {0, 0, 102, 24}); }

    void Mouse(UINT message, WPARAM keys, int x, int y) {
        slider_.SendMessage(message, keys, MAKELPARAM(x, y));
        Pump();
    }

    Panel panel_;
    WS_SliderV slider_;
};

TEST_F(Slider, FollowsTheMouseFromTheFirstMoveOn) {
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 20, 19);
    EXPECT_EQ(CWnd::GetCapture(), &slider_);
    EXPECT_EQ(slider_.GetPosition(), 50);
    Mouse(WM_MOUSEMOVE, MK_LBUTTON, 2, 19);
    EXPECT_EQ(slider_.GetPosition(), 1);
    Mouse(WM_MOUSEMOVE, MK_LBUTTON, 400, 0);
    EXPECT_EQ(slider_.GetPosition(), 100);
    Mouse(WM_LBUTTONUP, 0, 400, 0);
    EXPECT_EQ(CWnd::GetCapture(), &slider_);
    Mouse(WM_MOUSEMOVE, 0, 50, 19);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(slider_.GetPosition(), 100);
}

TEST_F(Slider, PressBesideItTakesTheMouseOnlyWhenItComesOver) {
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 20, 2);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    Mouse(WM_MOUSEMOVE, MK_LBUTTON, 20, 18);
    EXPECT_EQ(CWnd::GetCapture(), &slider_);
    ReleaseCapture();
}

TEST_F(Slider, TellsItsParent) {
    slider_.SetNotify(WM_APP + 3, 17);
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 20, 19);
    slider_.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(51, 19));
    MSG told = {};
    ASSERT_TRUE(PeekMessageA(&told, panel_.Window().m_hWnd, WM_APP + 3, WM_APP + 3, PM_REMOVE));
    EXPECT_EQ(told.wParam, 17u);
    EXPECT_EQ(told.lParam, 51);
    ReleaseCapture();
}

TEST_F(Slider, IsDrawnWithTheSharedPens) {
    RedrawWindow(slider_.m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    const int y = 24 - 6;
    const struct {
        int x, y;
        COLORREF color;
    } rows[] = {{20, y, g_colorShadow},
                {20, y + 1, g_colorDark},
                {20, y + 2, g_colorLight},
                {20, y + 3, RGB(255, 255, 255)},
                {80, y, g_colorShadow},
                {80, y + 1, g_colorDark},
                {51, y, g_colorLight},
                {51, y + 4, g_colorShadow},
                {50, y - 1, RGB(255, 255, 255)},
                {52, y, g_colorDark},
                {10, 5, g_colorFace},
                {101, y + 5, g_colorFace}};
    for (const auto& row : rows)
        EXPECT_EQ(Pixel(slider_, row.x, row.y), row.color) << row.x << ", " << row.y;
}

}  // namespace
