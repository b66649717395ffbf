#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>

namespace {

CWinApp test_app;

constexpr UINT kButtonId = 7;
constexpr UINT kEditId = 8;

std::string told;

// Takes its own notification first.
class ReflectingEdit : public CEdit {
protected:
    afx_msg void OnChange() { told += "edit "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingEdit, CEdit)
ON_CONTROL_REFLECT(EN_CHANGE, &ReflectingEdit::OnChange)
END_MESSAGE_MAP()

class BaseWindow : public CWnd {
public:
    bool Make() {
        const RECT place = {0, 0, 200, 100};
        WNDCLASSA record = {};
        record.lpfnWndProc = &::DefWindowProcA;
        record.hInstance = AfxGetInstanceHandle();
        record.lpszClassName = "MapTest";
        return AfxRegisterClass(&record) &&
               CreateEx(0, "MapTest", "", WS_POPUP | WS_VISIBLE, place, nullptr, 0);
    }

protected:
    afx_msg void OnSize(UINT type, int width, int height) {
        CWnd::OnSize(type, width, height);
        told += "base" + std::to_string(width) + "x" + std::to_string(height) + " ";
    }
    afx_msg void OnButton() { told += "button "; }
    afx_msg void OnEditChange() { told += "parent "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWindow, CWnd)
ON_WM_SIZE()
ON_BN_CLICKED(kButtonId, &BaseWindow::OnButton)
ON_EN_CHANGE(kEditId, &BaseWindow::OnEditChange)
END_MESSAGE_MAP()

class DerivedWindow : public BaseWindow {
protected:
    LRESULT OnQuestion(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) + lParam; }
    void PostNcDestroy() override { told += "gone "; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWindow, BaseWindow)
ON_MESSAGE(WM_APP, &DerivedWindow::OnQuestion)
END_MESSAGE_MAP()

class MessageMap : public testing::Test {
protected:
    MessageMap() {
        EXPECT_TRUE(window_.Make());
        told.clear();
    }
    DerivedWindow window_;
};

TEST_F(MessageMap, HandlersOfTheClassAndItsBases) {
    EXPECT_EQ(window_.SendMessage(WM_APP, 3, 4), 7);
    window_.SendMessage(WM_SIZE, 0, MAKELPARAM(30, 20));
    EXPECT_EQ(told, "base30x20 ");
    EXPECT_EQ(window_.SendMessage(WM_APP + 1, 3, 4), 0);
}

TEST_F(MessageMap, CommandsGoToTheParentUnlessTheChildTakesThem) {
    CButton button;
    const RECT place = {0, 0, 40, 20};
    button.Create("b", WS_VISIBLE, place, &window_, kButtonId);
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(told, "button ");
    told.clear();
    CEdit plain;
    plain.Create(WS_VISIBLE, place, &window_, kEditId);
    plain.SetWindowText("x");
    EXPECT_EQ(told, "parent ");
    plain.DestroyWindow();
    told.clear();
    ReflectingEdit edit;
    edit.Create(WS_VISIBLE, place, &window_, kEditId);
    edit.SetWindowText("x");
    EXPECT_EQ(told, "edit ");
}

TEST_F(MessageMap, ObjectsStandForTheirWindows) {
    CButton button;
    const RECT place = {0, 0, 40, 20};
    button.Create("b", WS_VISIBLE, place, &window_, kButtonId);
    EXPECT_EQ(CWnd::FromHandle(button.m_hWnd), &button);
    EXPECT_EQ(CWnd::FromHandlePermanent(button.m_hWnd), &button);
    EXPECT_EQ(button.GetParent(), &window_);
    // Nobody's object stands in front of this one.
    const HWND handle =
        ::CreateWindowExA(0, "BUTTON", "c", WS_CHILD, 0, 0, 9, 9, window_.m_hWnd, nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    CWnd* const temporary = CWnd::FromHandle(handle);
    EXPECT_EQ(temporary->m_hWnd, handle);
    EXPECT_EQ(CWnd::FromHandle(handle), temporary);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    AfxDeleteTemporaryObjects();
    EXPECT_TRUE(IsWindow(handle));
}

TEST_F(MessageMap, ObjectOutlivesItsWindowAndNotTheOtherWayRound) {
    const HWND handle = window_.m_hWnd;
    window_.DestroyWindow();
    EXPECT_EQ(told, "gone ");
    EXPECT_EQ(window_.m_hWnd, nullptr);
    HWND second = nullptr;
    {
        DerivedWindow shorter;
        shorter.Make();
        second = shorter.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(handle));
    EXPECT_FALSE(IsWindow(second));
}

TEST(RegisterClass, RefusalIsThrownAsAResourceException) {
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
}

}  // namespace
