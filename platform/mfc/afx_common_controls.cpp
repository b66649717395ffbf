#include "afxcmn.h"

namespace {

void LoadClass(DWORD which) {
    const INITCOMMONCONTROLSEX wanted = {sizeof wanted, which};
    InitCommonControlsEx(&wanted);
}

}  // namespace

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    LoadClass(ICC_TAB_CLASSES);
    return CWnd::Create(WC_TABCONTROLA, nullptr, style, rect, parent, id);
}

LONG CTabCtrl::InsertItem(int index, LPCSTR text) {
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<LPSTR>(text);
    return static_cast<LONG>(
        SendMessage(TCM_INSERTITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)));
}

int CTabCtrl::GetCurSel() const {
    return static_cast<int>(SendMessage(TCM_GETCURSEL));
}

int CTabCtrl::SetCurSel(int index) {
    return static_cast<int>(SendMessage(TCM_SETCURSEL, static_cast<WPARAM>(index)));
}

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    LoadClass(ICC_UPDOWN_CLASS);
    return CWnd::Create(UPDOWN_CLASSA, nullptr, style, rect, parent, id);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy) {
    const LRESULT former =
        SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(buddy ? buddy->GetSafeHwnd() : nullptr));
    return FromHandle(reinterpret_cast<HWND>(former));
}
