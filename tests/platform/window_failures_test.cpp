#include <gtest/gtest.h>

#include <climits>

#include "control_host.h"
#include "noting_windows.h"
#include "resource_count.h"

namespace {

// a holds b and c.
class WindowFailures : public testing::Test {
protected:
    WindowFailures() { Open(); }
    ~WindowFailures() override {
        NotingHook = nullptr;
        if (IsWindow(a)) DestroyWindow(a);
        PumpMessages();
    }

    static void Open() {
        a = MakeNoting("a");
        b = MakeNoting("b", a, WS_CHILD | WS_VISIBLE, {0, 0, 100, 100});
        c = MakeNoting("c", a, WS_CHILD | WS_VISIBLE, {0, 0, 50, 50});
    }

    static inline HWND a, b, c, made;
    static inline bool done;
};

TEST_F(WindowFailures, HandlersDestroyWhatIsAtWork) {
    const struct {
        const char* what;
        void (*hook)(HWND window, UINT message);
        void (*act)();
    } rows[] = {
        {"the parent, from a child's last message",
         [](HWND window, UINT message) {
             if (window != b || message != WM_NCDESTROY || done) return;
             done = true;
             DestroyWindow(a);
         },
         [] { DestroyWindow(b); }},
        {"itself, asked for its client area",
         [](HWND window, UINT message) {
             if (window != a || message != WM_NCCALCSIZE || done) return;
             done = true;
             DestroyWindow(a);
         },
         [] { EXPECT_FALSE(SetWindowPos(a, HWND_TOP, 0, 0, 77, 77, SWP_NOMOVE | SWP_NOACTIVATE)); }},
        {"the parent, from the frame of a child that is to be painted",
         [](HWND window, UINT message) {
             if (window != b || message != WM_NCPAINT || done) return;
             done = true;
             DestroyWindow(a);
         },
         [] {
             RedrawWindow(b, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
             PAINTSTRUCT paint = {};
             EXPECT_FALSE(BeginPaint(b, &paint));
         }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        if (!IsWindow(a)) Open();
        done = false;
        NotingHook = row.hook;
        row.act();
        NotingHook = nullptr;
        EXPECT_TRUE(done);
        for (const HWND window : {a, b, c})
            EXPECT_FALSE(IsWindow(window));
    }
}

TEST_F(WindowFailures, WhatGoesTakesNoMoreChildren) {
    made = nullptr;
    done = false;
    NotingHook = [](HWND window, UINT message) {
        if (window != a || message != WM_NCDESTROY || done) return;
        done = true;
        made = MakeNoting("d", a, WS_CHILD, {0, 0, 5, 5});
    };
    DestroyWindow(a);
    EXPECT_TRUE(done);
    EXPECT_FALSE(made);
}

TEST_F(WindowFailures, PlacesAndSizesHaveSixteenBits) {
    EXPECT_TRUE(SetWindowPos(b, nullptr, INT_MAX, INT_MIN, INT_MAX, -5, SWP_NOZORDER | SWP_NOACTIVATE));
    RECT place = {};
    GetWindowRect(b, &place);
    MapWindowPoints(nullptr, a, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 32767);
    EXPECT_EQ(place.top, -32768);
    EXPECT_EQ(place.right - place.left, 32767);
    EXPECT_EQ(place.bottom, place.top);
    RECT wrapped = {0, 0, 1, 1};
    OffsetRect(&wrapped, INT_MAX, INT_MIN);
    EXPECT_EQ(wrapped.left, INT_MAX);
    EXPECT_EQ(wrapped.right, INT_MIN);
}

TEST_F(WindowFailures, NobodyOwnsItself) {
    const HWND owned = MakeNoting("o", a);
    const HWND gone = MakeNoting("x");
    DestroyWindow(gone);
    for (const HWND refused : {a, owned, gone}) {
        SetWindowLongPtrA(a, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(refused));
        EXPECT_EQ(GetWindow(a, GW_OWNER), nullptr);
    }
    EXPECT_EQ(GetWindow(owned, GW_OWNER), a);
}

TEST_F(WindowFailures, NullPointersAreRefused) {
    EXPECT_EQ(GetMessageA(nullptr, nullptr, 0, 0), -1);
    EXPECT_FALSE(PeekMessageA(nullptr, nullptr, WM_APP, WM_APP, PM_NOREMOVE));
    EXPECT_TRUE(GetScrollRange(b, SB_VERT, nullptr, nullptr));
    EXPECT_EQ(DefWindowProcA(b, WM_NCCALCSIZE, FALSE, 0), 0);
}

TEST_F(WindowFailures, PaintingOfAWindowThatGoesLeavesNothing) {
    const auto rounds = [](int count) {
        for (int round = 0; round < count; ++round) {
            const HWND window = MakeNoting("p");
            PAINTSTRUCT paint = {};
            EXPECT_TRUE(BeginPaint(window, &paint));
            DestroyWindow(window);
            EndPaint(window, &paint);
        }
        return CountResources();
    };
    const ResourceCount before = rounds(2);
    EXPECT_EQ(rounds(100), before);
}

}  // namespace
