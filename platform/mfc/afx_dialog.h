#pragma once

#include "afx_window.h"

// One run of UpdateData.
class CDataExchange {
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate)
        : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog) {}

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
};

// Puts `control` in front of the dialog's control with this id, the first time.
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// A dialog made from a template of the module's resources.
class CDialog : public CWnd {
public:
    CDialog() = default;
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    ~CDialog() override;

    // Modeless. False when there is no such template or no window.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    // Shows the dialog and runs messages until EndDialog; meanwhile its owner is disabled. Without a parent
    // the thread's active window is the owner. Gives the result of EndDialog, or -1 when there was no dialog.
    virtual INT_PTR DoModal();
    void EndDialog(int result);

    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFromTemplate(HWND owner);
    int RunModalLoop();

    UINT m_templateId = 0;
    CWnd* m_pParentWnd = nullptr;
    bool m_modal = false;
    bool m_continueModal = false;
    int m_modalResult = 0;
};
