#include <afxwin.h>
#include <gtest/gtest.h>

#include "platform/modal_driver.h"
#include "platform/resource_count.h"

namespace {

constexpr UINT kDialog = 200;

// A frame on the heap that goes with its window, at one point or the other.
class OwnDialog : public CDialog {
public:
    OwnDialog(bool early, int& gone) : early_(early), gone_(gone) {}
    ~OwnDialog() override { ++gone_; }

protected:
    void OnDestroy() {
        CDialog::OnDestroy();
        if (early_) delete this;
    }
    void PostNcDestroy() override { delete this; }
    DECLARE_MESSAGE_MAP()

private:
    bool early_;
    int& gone_;
};

BEGIN_MESSAGE_MAP(OwnDialog, CDialog)
ON_WM_DESTROY()
END_MESSAGE_MAP()

TEST(WindowObject, MayDeleteItselfWithItsWindow) {
    const auto rounds = [](int count) {
        int gone = 0;
        for (int round = 0; round < count; ++round) {
            for (const bool early : {false, true}) {
                auto* const dialog = new OwnDialog(early, gone);
                EXPECT_TRUE(dialog->Create(kDialog));
                const HWND window = dialog->m_hWnd;
                if (round % 2 == 0)
                    EXPECT_TRUE(dialog->DestroyWindow());
                else
                    ::DestroyWindow(window);
                EXPECT_FALSE(::IsWindow(window));
                EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
            }
        }
        EXPECT_EQ(gone, 2 * count);
        return CountResources();
    };
    const ResourceCount before = rounds(2);
    EXPECT_EQ(rounds(100), before);
}

TEST(WindowObject, IsPutInFrontOfOthers) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(kDialog));
    const auto topmost = [&dialog](const CWnd& place) {
        dialog.SetWindowPos(&place, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return (::GetWindowLongPtrA(dialog.m_hWnd, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    };
    EXPECT_TRUE(topmost(CWnd::wndTopMost));
    EXPECT_TRUE(topmost(CWnd::wndTop));
    EXPECT_FALSE(topmost(CWnd::wndNoTopMost));
    dialog.DestroyWindow();
}

TEST(MessageBox, StandsOverTheWindowOfItsThread) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(kDialog));
    dialog.ShowWindow(SW_SHOW);
    const HWND owner = dialog.m_hWnd;
    ModalDriver driver({{AfxGetAppName(), [owner](HWND box) {
                             EXPECT_EQ(::GetWindow(box, GW_OWNER), owner);
                             EXPECT_FALSE(::IsWindowEnabled(owner));
                             Click(box, IDNO);
                         }}});
    EXPECT_EQ(AfxMessageBox("Save Changes?", MB_YESNOCANCEL), IDNO);
    EXPECT_TRUE(::IsWindowEnabled(owner));
    dialog.DestroyWindow();
}

}  // namespace
