#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "control_host.h"
#include "noting_windows.h"

namespace {

constexpr UINT kPlaceOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

// a holds b, which holds c; c has the focus and the capture.
class WindowLife : public testing::Test {
protected:
    ~WindowLife() override {
        NotingHook = nullptr;
        if (IsWindow(a_)) DestroyWindow(a_);
        PumpMessages();
    }

    void Open() {
        if (IsWindow(a_)) DestroyWindow(a_);
        a_ = MakeNoting("a");
        b_ = MakeNoting("b", a_, WS_CHILD | WS_VISIBLE, {0, 0, 100, 100});
        c_ = MakeNoting("c", b_, WS_CHILD | WS_VISIBLE, {0, 0, 50, 50});
        SetFocus(c_);
        SetCapture(c_);
        Noted();
    }

    std::string Focus() const {
        const HWND focus = GetFocus();
        return focus == a_ ? "a" : focus == b_ ? "b" : focus == c_ ? "c" : focus ? "?" : "";
    }

    HWND a_ = nullptr;
    HWND b_ = nullptr;
    HWND c_ = nullptr;
};

TEST_F(WindowLife, FocusAndCaptureOfWhatIsHiddenDisabledOrGone) {
    const struct {
        const char* what;
        void (*act)(HWND parent, HWND focused);
        const char* focus;
        bool captured;
        const char* noted;
    } rows[] = {
        {"hide the parent", [](HWND parent, HWND) { ShowWindow(parent, SW_HIDE); }, "c", true, "b:SHOW"},
        {"hide", [](HWND, HWND focused) { ShowWindow(focused, SW_HIDE); }, "b", true,
         "c:SHOW c:KILLFOCUS b:SETFOCUS"},
        {"hide by place",
         [](HWND, HWND focused) { SetWindowPos(focused, nullptr, 0, 0, 0, 0, kPlaceOnly | SWP_HIDEWINDOW); },
         "c", true, ""},
        {"disable the parent", [](HWND parent, HWND) { EnableWindow(parent, FALSE); }, "c", true, "b:ENABLE"},
        {"disable", [](HWND, HWND focused) { EnableWindow(focused, FALSE); }, "", false,
         "c:CAPTURECHANGED c:KILLFOCUS c:ENABLE"},
        {"destroy", [](HWND, HWND focused) { DestroyWindow(focused); }, "b", false,
         "c:SHOW c:KILLFOCUS b:SETFOCUS c:DESTROY c:NCDESTROY"},
        {"destroy the parent", [](HWND parent, HWND) { DestroyWindow(parent); }, "", false,
         "b:SHOW b:DESTROY c:DESTROY c:NCDESTROY b:NCDESTROY"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Open();
        row.act(b_, c_);
        EXPECT_EQ(Noted(), row.noted);
        EXPECT_EQ(Focus(), row.focus);
        EXPECT_EQ(GetCapture() == c_, row.captured);
    }
}

// As an object does that deletes itself with its window.
TEST_F(WindowLife, DestroyedOnceMoreOnItsWay) {
    static UINT at;
    static bool again;
    for (const UINT message : {WM_DESTROY, WM_NCDESTROY}) {
        Open();
        at = message;
        again = true;
        NotingHook = [](HWND window, UINT seen) {
            if (seen != at || !again || GetParent(window)) return;
            again = false;
            EXPECT_TRUE(DestroyWindow(window));
            EXPECT_FALSE(IsWindow(window));
        };
        EXPECT_TRUE(DestroyWindow(a_));
        EXPECT_FALSE(again);
        EXPECT_FALSE(IsWindow(c_));
    }
}

TEST_F(WindowLife, HelpGoesUpToWhoAnswers) {
    // What the system makes of F1.
    constexpr UINT kKeyF1 = 0x004D;
    Open();
    SendMessageA(c_, kKeyF1, 0, 0);
    EXPECT_EQ(Noted("HELP"), "cba");
    SendMessageA(c_, WM_KEYDOWN, VK_F1, 1);
    EXPECT_EQ(Noted("HELP"), "");
}

// Top-level windows from the top down.
std::string Order(const std::vector<HWND>& windows) {
    std::string order;
    for (HWND at = GetWindow(windows.front(), GW_HWNDFIRST); at; at = GetWindow(at, GW_HWNDNEXT))
        for (size_t i = 0; i < windows.size(); ++i)
            if (windows[i] == at) order += static_cast<char>('a' + i);
    return order;
}

std::string Topmost(const std::vector<HWND>& windows) {
    std::string names;
    for (size_t i = 0; i < windows.size(); ++i)
        if (GetWindowLongA(windows[i], GWL_EXSTYLE) & WS_EX_TOPMOST) names += static_cast<char>('a' + i);
    return names;
}

TEST(WindowOrder, TopmostWindowsStandInFront) {
    std::vector<HWND> windows;
    for (const char* const name : {"a", "b", "c", "d"})
        windows.push_back(MakeNoting(name));
    const struct {
        size_t moved;
        HWND after;
        const char* order;
        const char* topmost;
    } rows[] = {
        {0, HWND_TOPMOST, "adcb", "a"},   {1, HWND_TOP, "abdc", "a"},       {2, HWND_TOPMOST, "cabd", "ac"},
        {0, HWND_NOTOPMOST, "cabd", "c"}, {3, HWND_NOTOPMOST, "cabd", "c"}, {2, HWND_BOTTOM, "abdc", ""},
        {1, HWND_TOPMOST, "badc", "b"},   {3, windows[1], "bdac", "b"},     {1, windows[2], "dacb", ""},
        {1, HWND_TOPMOST, "bdac", "b"},   {0, HWND_TOPMOST, "abdc", "ab"},  {1, HWND_TOP, "badc", "ab"},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(SetWindowPos(windows[row.moved], row.after, 0, 0, 0, 0, kPlaceOnly));
        EXPECT_EQ(Order(windows), row.order);
        EXPECT_EQ(Topmost(windows), row.topmost);
    }
    windows.push_back(MakeNoting("e"));
    EXPECT_EQ(Order(windows), "baedc");
    SetWindowLongA(windows[4], GWL_EXSTYLE, WS_EX_TOPMOST);
    EXPECT_EQ(Topmost(windows), "ab");
    for (HWND const window : windows)
        DestroyWindow(window);
}

TEST(WindowOrder, OwnedWindowsStayAboveTheirOwner) {
    std::vector<HWND> windows = {MakeNoting("a"), MakeNoting("b")};
    windows.push_back(MakeNoting("c", windows[0]));
    const struct {
        size_t moved;
        HWND after;
        const char* order;
    } rows[] = {{1, HWND_TOP, "bca"}, {0, HWND_TOP, "cab"}, {2, HWND_BOTTOM, "cab"}};
    for (const auto& row : rows) {
        EXPECT_TRUE(SetWindowPos(windows[row.moved], row.after, 0, 0, 0, 0, kPlaceOnly));
        EXPECT_EQ(Order(windows), row.order);
    }
    SetWindowPos(windows[1], HWND_TOPMOST, 0, 0, 0, 0, kPlaceOnly);
    windows.push_back(MakeNoting("d", windows[1]));
    EXPECT_EQ(Order(windows), "dbca");
    EXPECT_EQ(Topmost(windows), "bd");
    DestroyWindow(windows[0]);
    DestroyWindow(windows[1]);
}

}  // namespace
