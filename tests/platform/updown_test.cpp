#include <gtest/gtest.h>

#include "control_host.h"

namespace {

class UpDownTest : public testing::Test {
protected:
    UpDownTest() {
        INITCOMMONCONTROLSEX wanted = {sizeof wanted, ICC_UPDOWN_CLASS};
        InitCommonControlsEx(&wanted);
        edit_ = host_.Add("EDIT", "5", ES_AUTOHSCROLL, 60, 20, 5);
        spin_ = host_.Add(UPDOWN_CLASSA, "", UDS_ARROWKEYS, 16, 20, 6);
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(spin_, message, wParam, lParam);
    }
    int Position() { return static_cast<short>(LOWORD(Send(UDM_GETPOS))); }
    void SetRange(int low, int high) { Send(UDM_SETRANGE, 0, MAKELPARAM(high, low)); }
    LRESULT Buddy(HWND buddy) { return Send(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy)); }
    void Click(int y) { MouseDown(spin_, 5, y), MouseUp(spin_, 5, y); }

    ControlHost host_;
    HWND edit_;
    HWND spin_;
};

TEST_F(UpDownTest, RangeAndPosition) {
    EXPECT_EQ(Send(UDM_GETRANGE), MAKELRESULT(0, 100));
    EXPECT_EQ(Position(), 0);
    SetRange(-3, 10);
    EXPECT_EQ(Send(UDM_GETRANGE) & 0xFFFFFFFF, MAKELRESULT(10, -3) & 0xFFFFFFFF);
    const struct {
        int set;
        int former;
        int now;
    } cases[] = {{7, 0, 7}, {20, 7, 10}, {-20, 10, -3}, {0, -3, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(static_cast<short>(LOWORD(Send(UDM_SETPOS, 0, MAKELPARAM(c.set, 0)))), c.former);
        EXPECT_EQ(Position(), c.now);
    }
    EXPECT_EQ(host_.Told(), "") << "a program's own change is not told";
}

TEST_F(UpDownTest, ArrowsCountInTheirHalves) {
    SetRange(0, 10);
    const struct {
        int y;
        const char* told;
    } cases[] = {
        {0, "delta 0+1 scroll 1 end 1"},  {9, "delta 1+1 scroll 2 end 2"},  {10, "delta 2-1 scroll 1 end 1"},
        {19, "delta 1-1 scroll 0 end 0"}, {19, "delta 0-1 scroll 0 end 0"},
    };
    for (const auto& c : cases) {
        Click(c.y);
        EXPECT_EQ(host_.Told(), c.told);
    }
    Send(UDM_SETPOS, 0, 10);
    Click(3);
    EXPECT_EQ(host_.Told(), "delta 10+1 scroll 10 end 10");
}

TEST_F(UpDownTest, ReversedRangeCountsTheOtherWay) {
    Click(3);
    EXPECT_EQ(host_.Told(), "delta 0-1 scroll 0 end 0") << "from 100 below to 0 above, as it is at first";
    Click(16);
    EXPECT_EQ(host_.Told(), "delta 0+1 scroll 1 end 1");
    SetRange(10, 0);
    Click(3);
    EXPECT_EQ(host_.Told(), "delta 1-1 scroll 0 end 0");
}

TEST_F(UpDownTest, ParentRefusesOrChangesTheStep) {
    SetRange(0, 10);
    int delta = 0;
    host_.on_message = [&](UINT message, WPARAM, LPARAM lParam) -> LRESULT {
        if (message != WM_NOTIFY) return 0;
        auto& step = *reinterpret_cast<NMUPDOWN*>(lParam);
        if (step.hdr.code != UDN_DELTAPOS) return 0;
        EXPECT_EQ(step.hdr.hwndFrom, spin_);
        EXPECT_EQ(step.hdr.idFrom, 6u);
        step.iDelta = delta;
        return delta == 0;
    };
    Click(3);
    EXPECT_EQ(host_.Told(), "delta 0+1 scroll 0 end 0");
    delta = 4;
    Click(3);
    EXPECT_EQ(host_.Told(), "delta 0+1 scroll 4 end 4");
}

TEST_F(UpDownTest, PressIsHeldUntilThePointerLeaves) {
    SetRange(0, 10);
    MouseDown(spin_, 5, 3);
    EXPECT_EQ(GetCapture(), spin_);
    EXPECT_EQ(host_.Told(), "delta 0+1 scroll 1");
    MouseMove(spin_, 5, 100);
    MouseUp(spin_, 5, 100);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(host_.Told(), "");
    MouseDown(spin_, 5, 3);
    ReleaseCapture();
    MouseUp(spin_, 5, 3);
    EXPECT_EQ(host_.Told(), "delta 1+1 scroll 2");
}

TEST_F(UpDownTest, BuddyLendsItsArrowKeys) {
    SetRange(0, 10);
    EXPECT_EQ(Buddy(edit_), 0);
    EXPECT_EQ(Buddy(edit_), reinterpret_cast<LRESULT>(edit_));
    EXPECT_EQ(Send(UDM_GETBUDDY), reinterpret_cast<LRESULT>(edit_));
    SetFocus(edit_);
    host_.Told();
    const struct {
        int key;
        const char* told;
    } cases[] = {{VK_UP, "delta 0+1 scroll 1"},
                 {VK_UP, "delta 1+1 scroll 2"},
                 {VK_DOWN, "delta 2-1 scroll 1"},
                 {VK_LEFT, ""},
                 {VK_END, ""}};
    for (const auto& c : cases) {
        PressKey(edit_, c.key);
        EXPECT_EQ(host_.Told(), c.told);
    }
    EXPECT_EQ(TextOf(edit_), "5") << "without its style it writes nothing";
    DWORD caret = 0;
    SendMessageA(edit_, EM_GETSEL, reinterpret_cast<WPARAM>(&caret), 0);
    EXPECT_EQ(caret, 1u) << "other keys reach the edit";
}

TEST_F(UpDownTest, ArrowsGiveTheBuddyTheFocus) {
    SetRange(0, 10);
    Buddy(edit_);
    MouseDown(spin_, 5, 3);
    EXPECT_EQ(GetFocus(), edit_);
    EXPECT_EQ(SendMessageA(edit_, EM_GETSEL, 0, 0), MAKELRESULT(0, 0));
    MouseUp(spin_, 5, 3);
    EXPECT_EQ(host_.Told(), "focus delta 0+1 scroll 1 end 1");
    EXPECT_EQ(SendMessageA(edit_, EM_GETSEL, 0, 0), MAKELRESULT(0, 1)) << "all of it is selected";
    EnableWindow(edit_, FALSE);
    host_.Told();
    Click(3);
    EXPECT_EQ(host_.Told(), "") << "a disabled buddy disables the arrows";
}

TEST_F(UpDownTest, BuddyAndUpDownEndInEitherOrder) {
    Buddy(edit_);
    DestroyWindow(spin_);
    PressKey(edit_, VK_UP);
    EXPECT_EQ(host_.Told(), "");
    spin_ = host_.Add(UPDOWN_CLASSA, "", UDS_ARROWKEYS, 16, 20, 6);
    SetRange(0, 10);
    Buddy(edit_);
    DestroyWindow(edit_);
    host_.Told();
    Send(UDM_SETPOS, 0, 3);
    EXPECT_EQ(Position(), 3);
}

// Someone subclasses the buddy after the up-down has, as a class framework does.
WNDPROC former_procedure;
LRESULT CALLBACK Outer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(former_procedure, window, message, wParam, lParam);
}

TEST_F(UpDownTest, BuddyThatWasSubclassedAgainStaysWhole) {
    Buddy(edit_);
    const auto outer = reinterpret_cast<LONG_PTR>(&Outer);
    former_procedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(edit_, GWLP_WNDPROC, outer));
    DestroyWindow(spin_);
    SendMessageA(edit_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("kept"));
    PressKey(edit_, VK_UP);
    EXPECT_EQ(TextOf(edit_), "kept");
    DestroyWindow(edit_);
    EXPECT_FALSE(IsWindow(edit_));
}

// Arrow keys of the buddy come back to where they began.
TEST_F(UpDownTest, MayBeItsOwnBuddy) {
    SendMessageA(spin_, UDM_SETBUDDY, reinterpret_cast<WPARAM>(spin_), 0);
    SendMessageA(spin_, WM_KEYDOWN, VK_UP, 1);
    EXPECT_TRUE(IsWindow(spin_));
}

}  // namespace
