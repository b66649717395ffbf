#include "afx_dialog.h"

#include "afx_message_map.h"
#include "afx_thread.h"
// behind the header of windows
#include <commctrl.h>

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

void DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
    if (!control.m_hWnd) control.SubclassWindow(::GetDlgItem(exchange->m_pDlgWnd->m_hWnd, id));
}

namespace {

INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return FALSE;
    auto* const dialog = dynamic_cast<CDialog*>(CWnd::FromHandlePermanent(window));
    return dialog ? dialog->OnInitDialog() : TRUE;
}

const DLGTEMPLATE* FindTemplate(UINT id) {
    const HINSTANCE module = AfxGetResourceHandle();
    const HRSRC resource = FindResourceA(module, MAKEINTRESOURCEA(id), RT_DIALOG);
    return resource ? static_cast<const DLGTEMPLATE*>(LockResource(LoadResource(module, resource))) : nullptr;
}

void LoadControlClasses() {
    const INITCOMMONCONTROLSEX wanted = {sizeof wanted, ICC_TAB_CLASSES | ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&wanted);
}

HWND TopLevelOf(HWND window) {
    return window ? ::GetAncestor(window, GA_ROOT) : nullptr;
}

// The owner of a dialog that runs modally.
HWND OwnerOf(CWnd* parent) {
    if (parent) return TopLevelOf(parent->GetSafeHwnd());
    if (const HWND active = ::GetActiveWindow()) return active;
    CWnd* const main = AfxGetMainWnd();
    return main ? TopLevelOf(main->GetSafeHwnd()) : nullptr;
}

}  // namespace

CDialog::CDialog(UINT templateId, CWnd* parent) : m_templateId(templateId), m_pParentWnd(parent) {}

CDialog::~CDialog() {
    if (m_hWnd) DestroyWindow();
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
    m_templateId = templateId;
    m_pParentWnd = parent;
    return CreateFromTemplate(parent ? parent->GetSafeHwnd() : nullptr);
}

BOOL CDialog::CreateFromTemplate(HWND owner) {
    const DLGTEMPLATE* const dialog = FindTemplate(m_templateId);
    if (!dialog) return FALSE;
    LoadControlClasses();
    AfxHookWindowCreate(this);
    const HWND window =
        ::CreateDialogIndirectParamA(AfxGetInstanceHandle(), dialog, owner, &DialogProcedure, 0);
    if (!AfxUnhookWindowCreate()) PostNcDestroy();
    return window != nullptr;
}

BOOL CDialog::OnInitDialog() {
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

INT_PTR CDialog::DoModal() {
    const HWND owner = OwnerOf(m_pParentWnd);
    const bool disable = owner && ::IsWindowEnabled(owner);
    if (disable) ::EnableWindow(owner, FALSE);
    m_modal = true;
    m_continueModal = true;
    m_modalResult = -1;
    const BOOL made = CreateFromTemplate(owner);
    if (made && m_continueModal) RunModalLoop();
    if (m_hWnd)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
    // The owner must be able to take over before the dialog goes, or another program would.
    if (disable) ::EnableWindow(owner, TRUE);
    if (owner && (!m_hWnd || ::GetActiveWindow() == m_hWnd)) ::SetActiveWindow(owner);
    DestroyWindow();
    m_modal = false;
    return m_modalResult;
}

int CDialog::RunModalLoop() {
    CWinThread* const thread = AfxGetThread();
    const bool show = !(GetStyle() & WS_VISIBLE);
    if (show) {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    }
    MSG next = {};
    LONG idle = 0;
    while (m_continueModal) {
        if (!::PeekMessageA(&next, nullptr, 0, 0, PM_NOREMOVE) && idle == 0) {
            AfxDeleteTemporaryObjects();
            ++idle;
        }
        const BOOL pumped = thread ? thread->PumpMessage() : AfxPumpMessage();
        if (!pumped) {
            // The request to quit is for the loops further out as well.
            ::PostQuitMessage(0);
            m_continueModal = false;
            return -1;
        }
        idle = 0;
    }
    return m_modalResult;
}

void CDialog::EndDialog(int result) {
    if (m_modal) {
        m_modalResult = result;
        m_continueModal = false;
        // Lets the loop look again.
        PostMessage(WM_NULL);
    }
    ::EndDialog(m_hWnd, result);
}

BOOL CDialog::PreTranslateMessage(MSG* message) {
    if (CWnd::PreTranslateMessage(message)) return TRUE;
    const bool keyboard = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    const bool mouse = message->message >= WM_MOUSEFIRST && message->message <= WM_MOUSELAST;
    return (keyboard || mouse) && ::IsDialogMessageA(m_hWnd, message);
}
