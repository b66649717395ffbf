#include <gtest/gtest.h>

#include <process.h>
#include <vector>

#include "control_host.h"
#include "noting_windows.h"

namespace {

class WindowMessages : public testing::Test {
protected:
    WindowMessages() {
        Noted();
        top_ = MakeNoting("a");
        PumpMessages();
        Noted();
    }
    ~WindowMessages() override {
        if (IsWindow(top_)) DestroyWindow(top_);
        PumpMessages();
    }

    HWND Child(const char* name, DWORD more = 0) {
        return MakeNoting(name, top_, WS_CHILD | WS_VISIBLE | more, {5, 5, 55, 25});
    }

    HWND top_;
};

TEST_F(WindowMessages, CreationAndDestruction) {
    const HWND child = MakeNoting("b", top_, WS_CHILD, {5, 5, 55, 25});
    EXPECT_EQ(Noted(), "b:NCCREATE b:NCCALCSIZE b:CREATE b:SIZE b:MOVE");
    MakeNoting("c", child, WS_CHILD, {0, 0, 5, 5});
    Noted();
    DestroyWindow(child);
    EXPECT_EQ(Noted(), "b:DESTROY c:DESTROY c:NCDESTROY b:NCDESTROY");
    EXPECT_FALSE(IsWindow(child));
}

TEST_F(WindowMessages, OwnedWindowsGoWithTheirOwner) {
    const HWND owned = MakeNoting("o", top_);
    EXPECT_EQ(GetWindow(owned, GW_OWNER), top_);
    Noted();
    DestroyWindow(top_);
    EXPECT_EQ(Noted("NCDESTROY"), "oa");
}

TEST_F(WindowMessages, SizeAndPlace) {
    const HWND child = Child("b");
    Noted();
    MoveWindow(child, 20, 30, 50, 20, TRUE);
    EXPECT_EQ(Noted(), "b:MOVE");
    SetWindowPos(child, nullptr, 0, 0, 80, 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Noted(), "b:NCCALCSIZE b:SIZE");
    SetWindowPos(child, nullptr, 0, 0, 80, 40, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Noted(), "");
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, top_, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 20);
    EXPECT_EQ(place.top, 30);
    EXPECT_EQ(place.right, 100);
}

TEST_F(WindowMessages, FocusMovesAndLeavesWhatCannotHaveIt) {
    const HWND one = Child("b");
    const HWND two = Child("c");
    SetFocus(one);
    Noted();
    EXPECT_EQ(SetFocus(two), one);
    EXPECT_EQ(Noted(), "b:KILLFOCUS c:SETFOCUS");
    EnableWindow(two, FALSE);
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(SetFocus(two), nullptr);
    SetFocus(one);
    ShowWindow(one, SW_HIDE);
    EXPECT_EQ(GetFocus(), top_);
    EnableWindow(two, TRUE);
    SetFocus(two);
    DestroyWindow(two);
    EXPECT_NE(GetFocus(), two);
}

TEST_F(WindowMessages, ActivationComesAndGoes) {
    EXPECT_EQ(GetActiveWindow(), top_);
    const HWND owned = MakeNoting("o", top_);
    EXPECT_EQ(GetActiveWindow(), owned);
    DestroyWindow(owned);
    EXPECT_EQ(GetActiveWindow(), top_);
}

TEST_F(WindowMessages, CaptureIsTold) {
    const HWND one = Child("b");
    const HWND two = Child("c");
    SetCapture(one);
    Noted();
    EXPECT_EQ(SetCapture(two), one);
    EXPECT_EQ(Noted(), "b:CAPTURECHANGED");
    ReleaseCapture();
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(Noted(), "c:CAPTURECHANGED");
}

TEST_F(WindowMessages, ClosingDestroys) {
    PostMessageA(top_, WM_CLOSE, 0, 0);
    PumpMessages();
    EXPECT_FALSE(IsWindow(top_));
    EXPECT_FALSE(PostMessageA(top_, WM_NULL, 0, 0));
    EXPECT_EQ(SendMessageA(top_, WM_GETTEXTLENGTH, 0, 0), 0);
    EXPECT_FALSE(DestroyWindow(top_));
}

TEST_F(WindowMessages, OrderAmongSiblings) {
    const HWND one = Child("b");
    const HWND two = Child("c");
    EXPECT_EQ(GetWindow(top_, GW_CHILD), one);
    EXPECT_EQ(GetWindow(one, GW_HWNDNEXT), two);
    SetWindowPos(two, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(GetWindow(top_, GW_CHILD), two);
    EXPECT_EQ(ChildWindowFromPoint(top_, {10, 10}), two);
    SetWindowPos(two, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(GetWindow(one, GW_HWNDNEXT), two);
}

TEST_F(WindowMessages, InvalidPartsAddUpAndGo) {
    RedrawWindow(top_, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
    const RECT one = {10, 10, 20, 20};
    const RECT two = {30, 40, 50, 60};
    InvalidateRect(top_, &one, TRUE);
    InvalidateRect(top_, &two, TRUE);
    RECT whole = {};
    EXPECT_TRUE(GetUpdateRect(top_, &whole, FALSE));
    EXPECT_EQ(whole.left, 10);
    EXPECT_EQ(whole.bottom, 60);
    ValidateRect(top_, &two);
    GetUpdateRect(top_, &whole, FALSE);
    EXPECT_EQ(whole.bottom, 20);
    UpdateWindow(top_);
    EXPECT_FALSE(GetUpdateRect(top_, &whole, FALSE));
}

TEST_F(WindowMessages, ScrollBarComesWithSomethingToScroll) {
    const HWND child = Child("b", WS_VSCROLL);
    SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE, 0, 99, 20, 0, 0};
    SetScrollInfo(child, SB_VERT, &info, TRUE);
    EXPECT_TRUE(GetWindowLongA(child, GWL_STYLE) & WS_VSCROLL);
    SetScrollPos(child, SB_VERT, 500, TRUE);
    EXPECT_EQ(GetScrollPos(child, SB_VERT), 80);
    Noted();
    info.nPage = 100;
    SetScrollInfo(child, SB_VERT, &info, TRUE);
    EXPECT_FALSE(GetWindowLongA(child, GWL_STYLE) & WS_VSCROLL);
    EXPECT_EQ(Noted("SIZE"), "b");
    EXPECT_EQ(GetScrollPos(child, SB_VERT), 0);
}

TEST_F(WindowMessages, ScrollingMovesPixelsAndChildren) {
    const HWND child = Child("b");
    UpdateWindow(top_);
    const HDC dc = GetDC(top_);
    SetPixel(dc, 100, 100, RGB(255, 0, 0));
    ReleaseDC(top_, dc);
    ScrollWindow(top_, 0, -30, nullptr, nullptr);
    EXPECT_EQ(PixelOf(top_, 100, 70), RGB(255, 0, 0));
    RECT place = {};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, top_, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.top, 5 - 30);
    RECT exposed = {};
    GetUpdateRect(top_, &exposed, FALSE);
    EXPECT_EQ(exposed.bottom - exposed.top, 30);
}

// ---- Queues and threads. ----

TEST_F(WindowMessages, QueueKeepsItsOrderAndPaintsLast) {
    InvalidateRect(top_, nullptr, TRUE);
    PostMessageA(top_, WM_APP + 1, 0, 0);
    PostMessageA(top_, WM_APP + 2, 0, 0);
    PostQuitMessage(7);
    std::vector<UINT> order;
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message >= WM_APP || message.message == WM_QUIT || message.message == WM_PAINT)
            order.push_back(message.message);
        if (message.message == WM_QUIT) {
            EXPECT_EQ(message.wParam, 7u);
        }
        DispatchMessageA(&message);
    }
    EXPECT_EQ(order, (std::vector<UINT>{WM_APP + 1, WM_APP + 2, WM_QUIT, WM_PAINT}));
}

LRESULT CALLBACK Answering(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // A question that asks the other side back before it is answered.
    if (message == WM_APP) {
        const HWND other = reinterpret_cast<HWND>(lParam);
        return wParam == 0 ? 1
                           : 1 + SendMessageA(other, WM_APP, wParam - 1, reinterpret_cast<LPARAM>(window));
    }
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

struct Partner {
    HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    HWND window = nullptr;
};

HWND MakeAnswering() {
    WNDCLASSA record = {};
    record.lpfnWndProc = &Answering;
    record.hInstance = GetModuleHandleA(nullptr);
    record.lpszClassName = "Answering";
    RegisterClassA(&record);
    return CreateWindowExA(0, "Answering", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, record.hInstance,
                           nullptr);
}

unsigned WINAPI RunPartner(void* argument) {
    auto& partner = *static_cast<Partner*>(argument);
    partner.window = MakeAnswering();
    SetEvent(partner.ready);
    MSG message = {};
    while (GetMessageA(&message, nullptr, 0, 0))
        DispatchMessageA(&message);
    return 3;
}

TEST(WindowThreads, SendToEachOtherWithoutWaitingForEver) {
    constexpr int kThreads = 2;
    Partner partners[kThreads];
    HANDLE threads[kThreads];
    const HWND own = MakeAnswering();
    for (int i = 0; i < kThreads; ++i) {
        threads[i] =
            reinterpret_cast<HANDLE>(_beginthreadex(nullptr, 0, &RunPartner, &partners[i], 0, nullptr));
        WaitForSingleObject(partners[i].ready, INFINITE);
    }
    for (Partner& partner : partners) {
        EXPECT_EQ(SendMessageA(partner.window, WM_APP, 20, reinterpret_cast<LPARAM>(own)), 21);
        EXPECT_FALSE(DestroyWindow(partner.window));
        EXPECT_EQ(GetWindowThreadProcessId(partner.window, nullptr) == GetCurrentThreadId(), false);
    }
    EXPECT_EQ(SendMessageA(partners[0].window, WM_APP, 8, reinterpret_cast<LPARAM>(partners[1].window)), 9);
    for (int i = 0; i < kThreads; ++i) {
        PostMessageA(partners[i].window, WM_CLOSE, 0, 0);
        EXPECT_EQ(WaitForSingleObject(threads[i], 10000), WAIT_OBJECT_0);
        DWORD code = 0;
        EXPECT_TRUE(GetExitCodeThread(threads[i], &code));
        EXPECT_EQ(code, 3u);
        EXPECT_FALSE(IsWindow(partners[i].window));
        CloseHandle(threads[i]);
        CloseHandle(partners[i].ready);
    }
    DestroyWindow(own);
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
}

}  // namespace
