#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>

namespace {

constexpr UINT kDialog = 200;
constexpr int kEdit = 201;

// Posts itself what a user would do, once it is there.
class ScriptedDialog : public CDialog {
public:
    explicit ScriptedDialog(void (*act)(ScriptedDialog&), CWnd* parent = nullptr)
        : CDialog(kDialog, parent), act_(act) {}

    CEdit edit;
    std::string seen;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kEdit, edit);
    }
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        PostMessage(WM_APP);
        return TRUE;
    }
    void OnOK() override {
        seen += "ok ";
        CDialog::OnOK();
    }
    void OnCancel() override {
        seen += "cancel ";
        CDialog::OnCancel();
    }
    LRESULT OnAct(WPARAM, LPARAM) {
        act_(*this);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    void (*act_)(ScriptedDialog&);
};

BEGIN_MESSAGE_MAP(ScriptedDialog, CDialog)
ON_MESSAGE(WM_APP, &ScriptedDialog::OnAct)
END_MESSAGE_MAP()

void Key(ScriptedDialog& dialog, int key) {
    ::PostMessageA(::GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    static_cast<void>(dialog);
}

TEST(ModalDialog, ReturnAndEscapeMeanItsButtons) {
    ScriptedDialog by_return([](ScriptedDialog& dialog) { Key(dialog, VK_RETURN); });
    EXPECT_EQ(by_return.DoModal(), IDOK);
    EXPECT_EQ(by_return.seen, "ok ");
    EXPECT_EQ(by_return.m_hWnd, nullptr);
    ScriptedDialog by_escape([](ScriptedDialog& dialog) { Key(dialog, VK_ESCAPE); });
    EXPECT_EQ(by_escape.DoModal(), IDCANCEL);
    EXPECT_EQ(by_escape.seen, "cancel ");
    ScriptedDialog by_close([](ScriptedDialog& dialog) { dialog.PostMessage(WM_CLOSE); });
    EXPECT_EQ(by_close.DoModal(), IDCANCEL);
}

TEST(ModalDialog, ControlsAreBoundAndFocusedInOrder) {
    ScriptedDialog dialog([](ScriptedDialog& self) {
        CString text;
        self.edit.GetWindowText(text);
        self.seen += std::string(text.GetString()) + " ";
        self.seen += CWnd::GetFocus() == &self.edit ? "edit " : "other ";
        self.EndDialog(42);
    });
    EXPECT_EQ(dialog.DoModal(), 42);
    EXPECT_EQ(dialog.seen, "text edit ");
}

TEST(ModalDialog, InnerDialogDisablesTheOuterOneMeanwhile) {
    ScriptedDialog outer([](ScriptedDialog& self) {
        ScriptedDialog inner([](ScriptedDialog& in) {
            const HWND owner = ::GetWindow(in.m_hWnd, GW_OWNER);
            in.seen += owner && !::IsWindowEnabled(owner) ? "disabled " : "enabled ";
            in.EndDialog(5);
        });
        const INT_PTR result = inner.DoModal();
        self.seen += inner.seen + std::to_string(result);
        self.seen += ::IsWindowEnabled(self.m_hWnd) ? " enabled" : " disabled";
        self.EndDialog(6);
    });
    EXPECT_EQ(outer.DoModal(), 6);
    EXPECT_EQ(outer.seen, "disabled 5 enabled");
}

TEST(ModalDialog, EndsInsideItsInitialisation) {
    class Refusing : public CDialog {
    public:
        Refusing() : CDialog(kDialog) {}

    protected:
        BOOL OnInitDialog() override {
            CDialog::OnInitDialog();
            EndDialog(9);
            return TRUE;
        }
    };
    EXPECT_EQ(Refusing().DoModal(), 9);
}

TEST(ModelessDialog, IsMadeFromItsTemplate) {
    CDialog dialog;
    EXPECT_FALSE(dialog.Create(4711));
    ASSERT_TRUE(dialog.Create(kDialog));
    CString caption;
    dialog.GetWindowText(caption);
    EXPECT_STREQ(caption.GetString(), "Outer");
    EXPECT_NE(dialog.GetDlgItem(kEdit), nullptr);
    EXPECT_FALSE(::IsWindowVisible(dialog.m_hWnd));
    dialog.DestroyWindow();
}

}  // namespace
