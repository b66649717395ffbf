#include <gtest/gtest.h>

#include "control_host.h"

namespace {

// Windows keep bits of their own in the state; these are the published ones.
LRESULT StateOf(HWND button) {
    return SendMessageA(button, BM_GETSTATE, 0, 0) & (BST_CHECKED | BST_PUSHED | BST_FOCUS);
}

LRESULT CheckOf(HWND button) {
    return SendMessageA(button, BM_GETCHECK, 0, 0);
}

struct KindCase {
    DWORD style;
    LRESULT dialog_code;
    UINT color_message;
    bool keeps_check;
    bool toggles;
};

const KindCase kKinds[] = {
    {BS_PUSHBUTTON, DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, WM_CTLCOLORBTN, false, false},
    {BS_DEFPUSHBUTTON, DLGC_BUTTON | DLGC_DEFPUSHBUTTON, WM_CTLCOLORBTN, false, false},
    {BS_CHECKBOX, DLGC_BUTTON, WM_CTLCOLORSTATIC, true, false},
    {BS_AUTOCHECKBOX, DLGC_BUTTON, WM_CTLCOLORSTATIC, true, true},
    {BS_GROUPBOX, DLGC_STATIC, WM_CTLCOLORSTATIC, false, false},
};

TEST(Button, EachKindAnswersForItself) {
    for (const KindCase& kind : kKinds) {
        SCOPED_TRACE(kind.style);
        ControlHost host;
        UINT asked = 0;
        host.on_message = [&](UINT message, WPARAM, LPARAM) -> LRESULT {
            if (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC) asked = message;
            return 0;
        };
        const HWND button = host.Add("BUTTON", "&Press", kind.style);
        EXPECT_EQ(asked, kind.color_message);
        EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), kind.dialog_code);
        SendMessageA(button, BM_SETCHECK, BST_CHECKED, 0);
        EXPECT_EQ(CheckOf(button), kind.keeps_check ? BST_CHECKED : BST_UNCHECKED);
        SendMessageA(button, BM_SETCHECK, BST_UNCHECKED, 0);
        SendMessageA(button, BM_CLICK, 0, 0);
        EXPECT_EQ(host.Told(), "clicked");
        EXPECT_EQ(CheckOf(button), kind.toggles ? BST_CHECKED : BST_UNCHECKED);
        EXPECT_EQ(GetFocus(), button);
    }
}

TEST(Button, OnlyTheFrameOfAGroupIsHit) {
    ControlHost host;
    POINT inside = {20, 20};
    const HWND group = host.Add("Button", "Group", BS_GROUPBOX);
    ClientToScreen(host.Window(), &inside);
    EXPECT_EQ(SendMessageA(group, WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTTRANSPARENT);
    const HWND push = host.Add("Button", "Push", BS_PUSHBUTTON);
    EXPECT_EQ(SendMessageA(push, WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTCLIENT);
}

TEST(Button, MousePressesFollowThePointer) {
    ControlHost host;
    const HWND button = host.Add("Button", "Push", BS_PUSHBUTTON);
    MouseDown(button, 5, 5);
    EXPECT_EQ(StateOf(button), BST_PUSHED | BST_FOCUS);
    EXPECT_EQ(GetCapture(), button);
    MouseMove(button, 500, 5);
    EXPECT_EQ(StateOf(button), BST_FOCUS);
    EXPECT_EQ(GetCapture(), button);
    MouseMove(button, 99, 19);
    EXPECT_EQ(StateOf(button), BST_PUSHED | BST_FOCUS);
    EXPECT_EQ(host.Told(), "");
    MouseUp(button, 99, 19);
    EXPECT_EQ(host.Told(), "clicked");
    EXPECT_EQ(StateOf(button), BST_FOCUS);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST(Button, NoClickWhereThePressWasGivenUp) {
    ControlHost host;
    const HWND button = host.Add("Button", "Check", BS_AUTOCHECKBOX);
    const std::function<void()> ways[] = {
        [&] { MouseUp(button, 5, 5); },
        [&] { MouseDown(button, 5, 5), MouseUp(button, 100, 5); },
        [&] { MouseDown(button, 5, 5), ReleaseCapture(), MouseUp(button, 5, 5); },
        [&] {
            SendMessageA(button, WM_KEYDOWN, VK_SPACE, 1);
            SetFocus(host.Window());
            SendMessageA(button, WM_KEYUP, VK_SPACE, 1);
        },
        [&] { PressKey(button, VK_RETURN); },
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(&way - ways);
        way();
        EXPECT_EQ(host.Told(), "");
        EXPECT_EQ(CheckOf(button), BST_UNCHECKED);
        EXPECT_EQ(StateOf(button) & BST_PUSHED, 0);
        EXPECT_EQ(GetCapture(), nullptr);
    }
}

TEST(Button, SpaceAndDoubleClicksPressToo) {
    ControlHost host;
    const HWND button = host.Add("Button", "Check", BS_AUTOCHECKBOX);
    SetFocus(button);
    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(StateOf(button), BST_PUSHED | BST_FOCUS);
    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 1);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 1);
    EXPECT_EQ(StateOf(button), BST_CHECKED | BST_FOCUS);
    SendMessageA(button, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    MouseUp(button, 5, 5);
    EXPECT_EQ(StateOf(button), BST_FOCUS);
    EXPECT_EQ(host.Told(), "clicked clicked");
}

TEST(Button, StyleAndStateBySend) {
    ControlHost host;
    const HWND button = host.Add("Button", "Push", BS_PUSHBUTTON | WS_TABSTOP);
    SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(button, GWL_STYLE)),
              static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON));
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), DLGC_BUTTON | DLGC_DEFPUSHBUTTON);
    SendMessageA(button, BM_SETSTATE, TRUE, 0);
    EXPECT_EQ(StateOf(button), BST_PUSHED);
    SendMessageA(button, BM_SETSTATE, FALSE, 0);
    EXPECT_EQ(StateOf(button), 0);
    EXPECT_EQ(host.Told(), "");
}

TEST(Button, LooksLikeItsState) {
    ControlHost host;
    const HWND push = host.Add("Button", "", BS_PUSHBUTTON);
    EXPECT_EQ(PixelOf(push, 0, 0), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(PixelOf(push, 99, 19), GetSysColor(COLOR_3DDKSHADOW));
    EXPECT_EQ(PixelOf(push, 50, 10), GetSysColor(COLOR_BTNFACE));
    SendMessageA(push, BM_SETSTATE, TRUE, 0);
    EXPECT_NE(PixelOf(push, 0, 0), GetSysColor(COLOR_BTNHIGHLIGHT)) << "at once";
    DestroyWindow(push);
    const HWND standard = host.Add("Button", "", BS_DEFPUSHBUTTON);
    EXPECT_EQ(PixelOf(standard, 0, 0), GetSysColor(COLOR_WINDOWFRAME));
    EXPECT_EQ(PixelOf(standard, 1, 1), GetSysColor(COLOR_BTNHIGHLIGHT));
    DestroyWindow(standard);
    const HWND check = host.Add("Button", "", BS_AUTOCHECKBOX);
    const COLORREF tick = GetSysColor(COLOR_WINDOWTEXT);
    const int without = CountPixels(check, tick);
    SendMessageA(check, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_GT(CountPixels(check, tick), without);
    SendMessageA(check, BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(CountPixels(check, tick), without);
}

TEST(Button, StaysWhenItsParentPaintsLater) {
    ControlHost host;
    InvalidateRect(host.Window(), nullptr, TRUE);
    const HWND push = CreateWindowExA(0, "Button", "", WS_CHILD | WS_VISIBLE, 10, 10, 100, 20, host.Window(),
                                      nullptr, GetModuleHandleA(nullptr), nullptr);
    SendMessageA(push, BM_SETSTATE, TRUE, 0);
    SendMessageA(push, BM_SETSTATE, FALSE, 0);
    PumpMessages();
    EXPECT_EQ(PixelOf(push, 0, 0), GetSysColor(COLOR_BTNHIGHLIGHT));
}

TEST(Button, ParentMayDestroyItInTheClick) {
    ControlHost host;
    const HWND button = host.Add("Button", "Check", BS_AUTOCHECKBOX);
    host.on_message = [&](UINT message, WPARAM, LPARAM) -> LRESULT {
        if (message == WM_COMMAND) DestroyWindow(button);
        return 0;
    };
    MouseDown(button, 5, 5);
    MouseUp(button, 5, 5);
    EXPECT_FALSE(IsWindow(button));
    EXPECT_EQ(host.Told(), "clicked");
}

TEST(Static, IsSeenAndNotFelt) {
    ControlHost host;
    UINT asked = 0;
    host.on_message = [&](UINT message, WPARAM, LPARAM) -> LRESULT {
        if (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC) asked = message;
        return 0;
    };
    for (const DWORD style : {SS_LEFT, SS_CENTER, SS_RIGHT, SS_LEFTNOWORDWRAP}) {
        asked = 0;
        const HWND label = host.Add("STATIC", "&Name", style);
        EXPECT_EQ(asked, WM_CTLCOLORSTATIC);
        EXPECT_EQ(SendMessageA(label, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
        POINT inside = {20, 20};
        ClientToScreen(host.Window(), &inside);
        EXPECT_EQ(SendMessageA(label, WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTTRANSPARENT);
        asked = 0;
        SetWindowTextA(label, "Other");
        EXPECT_EQ(asked, WM_CTLCOLORSTATIC) << "a new text shows at once";
        EXPECT_EQ(TextOf(label), "Other");
        const auto font = reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT));
        SendMessageA(label, WM_SETFONT, font, TRUE);
        EXPECT_EQ(SendMessageA(label, WM_GETFONT, 0, 0), static_cast<LRESULT>(font));
        DestroyWindow(label);
    }
}

}  // namespace
