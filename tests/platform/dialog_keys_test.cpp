#include <gtest/gtest.h>

#include <utility>

#include "dialogs.h"
#include "modal_driver.h"

namespace {

class DialogKeysTest : public testing::Test {
protected:
    DialogKeysTest() {
        window_ = MakeDialog(dialog_, 100);
        ShowWindow(window_, SW_SHOW);
        SetActiveWindow(window_);
        SetFocus(GetDlgItem(window_, 10));
    }
    ~DialogKeysTest() override { DestroyWindow(window_); }

    // As a message loop hands a key to the dialog.
    BOOL Key(int key, bool shift = false) {
        BYTE keys[256] = {};
        keys[VK_SHIFT] = shift ? 0x80 : 0;
        SetKeyboardState(keys);
        MSG message = {};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = static_cast<WPARAM>(key);
        const BOOL taken = IsDialogMessageA(window_, &message);
        keys[VK_SHIFT] = 0;
        SetKeyboardState(keys);
        return taken;
    }
    int FocusId() const { return GetDlgCtrlID(GetFocus()); }
    std::string Clicks() { return std::exchange(dialog_.told, {}); }
    bool IsDefault(int id) const {
        return (SendMessageA(GetDlgItem(window_, id), WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
    }

    TestDialog dialog_;
    HWND window_ = nullptr;
};

TEST_F(DialogKeysTest, FirstControlHasTheFocus) {
    TestDialog fresh;
    const HWND window = MakeDialog(fresh, 100);
    ShowWindow(window, SW_SHOW);
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), 10);
    LRESULT selection = SendDlgItemMessageA(window, 10, EM_GETSEL, 0, 0);
    EXPECT_EQ(selection, MAKELONG(0, 4)) << "all of its text is selected";
    DestroyWindow(window);
}

TEST_F(DialogKeysTest, TabGoesRound) {
    // Hidden, disabled and plain ones are passed over; of a group only the first has the style.
    for (const int id : {13, 16, 1, 2, 10}) {
        EXPECT_TRUE(Key(VK_TAB));
        EXPECT_EQ(FocusId(), id);
    }
    for (const int id : {2, 1, 16, 13, 10}) {
        EXPECT_TRUE(Key(VK_TAB, true));
        EXPECT_EQ(FocusId(), id);
    }
    EXPECT_EQ(GetNextDlgTabItem(window_, GetDlgItem(window_, 2), FALSE), GetDlgItem(window_, 10));
    EXPECT_EQ(GetNextDlgTabItem(window_, nullptr, FALSE), GetDlgItem(window_, 10));
}

TEST_F(DialogKeysTest, ArrowsStayInTheirGroup) {
    SetFocus(GetDlgItem(window_, 13));
    for (const int id : {14, 15, 13}) {
        EXPECT_TRUE(Key(VK_RIGHT));
        EXPECT_EQ(FocusId(), id);
    }
    EXPECT_TRUE(Key(VK_UP));
    EXPECT_EQ(FocusId(), 15);
    EXPECT_EQ(GetNextDlgGroupItem(window_, GetDlgItem(window_, 13), TRUE), GetDlgItem(window_, 15));
}

TEST_F(DialogKeysTest, ReturnAndEscapePressButtons) {
    Key(VK_RETURN);
    EXPECT_EQ(Clicks(), "1 ");
    Key(VK_ESCAPE);
    EXPECT_EQ(Clicks(), "2 ");
    SendMessageA(window_, DM_SETDEFID, 2, 0);
    Key(VK_RETURN);
    EXPECT_EQ(Clicks(), "2 ");
    EnableWindow(GetDlgItem(window_, 2), FALSE);
    Key(VK_RETURN);
    EXPECT_EQ(Clicks(), "") << "a disabled button is not pressed";
    Key(VK_ESCAPE);
    EXPECT_EQ(Clicks(), "2 ") << "but Escape asks nobody";
    SetFocus(GetDlgItem(window_, 16));
    SetDlgItemTextA(window_, 16, "");
    Key(VK_RETURN);
    EXPECT_EQ(Clicks(), "") << "the edit with several lines takes it";
}

TEST_F(DialogKeysTest, TheButtonWithTheFocusIsTheDefault) {
    EXPECT_EQ(SendMessageA(window_, DM_GETDEFID, 0, 0), MAKELONG(IDOK, DC_HASDEFID));
    EXPECT_TRUE(IsDefault(IDOK));
    SendMessageA(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(window_, IDCANCEL)), TRUE);
    EXPECT_EQ(FocusId(), IDCANCEL);
    EXPECT_TRUE(IsDefault(IDCANCEL));
    EXPECT_FALSE(IsDefault(IDOK));
    Key(VK_RETURN);
    EXPECT_EQ(Clicks(), "2 ");
    SendMessageA(window_, WM_NEXTDLGCTL, 0, FALSE);
    EXPECT_EQ(FocusId(), 10);
    EXPECT_FALSE(IsDefault(IDCANCEL));
    EXPECT_TRUE(IsDefault(IDOK)) << "it comes back";
    EXPECT_TRUE(SendMessageA(window_, DM_SETDEFID, 13, 0));
    EXPECT_EQ(SendMessageA(window_, DM_GETDEFID, 0, 0), MAKELONG(13, DC_HASDEFID));
    EXPECT_TRUE(IsDefault(13));
    EXPECT_FALSE(IsDefault(IDOK));
}

TEST_F(DialogKeysTest, FocusComesBackWithTheDialog) {
    SetFocus(GetDlgItem(window_, 13));
    TestDialog other;
    const HWND second = MakeDialog(other, 100);
    ShowWindow(second, SW_SHOW);
    EXPECT_TRUE(IsChild(second, GetFocus()));
    SetActiveWindow(window_);
    EXPECT_EQ(GetFocus(), GetDlgItem(window_, 13));
    DestroyWindow(second);
}

TEST_F(DialogKeysTest, TabEntersPages) {
    TestDialog inner;
    const HWND page = MakeDialog(inner, 101, window_);
    ShowWindow(page, SW_SHOW);
    SetFocus(GetDlgItem(window_, IDCANCEL));
    Key(VK_TAB);
    EXPECT_EQ(GetFocus(), GetDlgItem(page, 20));
    Key(VK_TAB);
    EXPECT_EQ(GetFocus(), GetDlgItem(page, 21));
    Key(VK_TAB);
    EXPECT_EQ(GetFocus(), GetDlgItem(window_, 10));
    DestroyWindow(page);
}

// Fields that no tab stop leads to: the control that holds the one with the focus gets it.
TEST_F(DialogKeysTest, TabWithoutAnyStop) {
    TestDialog plain;
    const HWND dialog = MakeDialog(plain, 102);
    const HINSTANCE module = GetModuleHandleA(nullptr);
    HWND holders[2];
    HWND fields[2];
    for (int i = 0; i < 2; ++i) {
        holders[i] = CreateWindowExA(0, "Static", "", WS_CHILD | WS_VISIBLE, 0, 20 * i, 60, 20, dialog,
                                     nullptr, module, nullptr);
        fields[i] = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 50, 18,
                                    holders[i], nullptr, module, nullptr);
    }
    ShowWindow(dialog, SW_SHOW);
    for (const BOOL previous : {FALSE, TRUE})
        EXPECT_EQ(GetNextDlgTabItem(dialog, fields[1], previous), holders[1]);
    EXPECT_EQ(GetNextDlgTabItem(dialog, nullptr, FALSE), nullptr);
    SetFocus(fields[0]);
    SendMessageA(dialog, WM_NEXTDLGCTL, 0, FALSE);
    EXPECT_EQ(GetFocus(), holders[0]);
    DestroyWindow(dialog);
}

TEST_F(DialogKeysTest, OtherMessagesAreNotTaken) {
    MSG message = {};
    message.message = WM_KEYDOWN;
    message.wParam = VK_TAB;
    EXPECT_FALSE(IsDialogMessageA(window_, &message)) << "of no window";
    TestDialog other;
    const HWND second = MakeDialog(other, 100);
    message.hwnd = GetDlgItem(second, 10);
    EXPECT_FALSE(IsDialogMessageA(window_, &message));
    DestroyWindow(second);
}

}  // namespace
