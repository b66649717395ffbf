#include "controls/num_edit.h"

#include "controls/window_class.h"

namespace {

constexpr UINT kFieldId = 5123;
constexpr UINT kSpinId = 5124;
constexpr int kTextLimit = 32;
constexpr int kSpinWidth = 20;
constexpr DWORD kClipStyles = WS_CLIPSIBLINGS | WS_CLIPCHILDREN;

}  // namespace

BEGIN_MESSAGE_MAP(WS_NumEdit, CWnd)
ON_WM_SETFOCUS()
ON_MESSAGE(WM_SETFONT, &WS_NumEdit::OnSetFont)
END_MESSAGE_MAP()

BOOL WS_NumEdit::RegisterNumEditClass() {
    RegisterControlClass(class_name_, &WindowProcedure, reinterpret_cast<HBRUSH>(COLOR_SCROLLBAR + 1));
    return TRUE;
}

BOOL WS_NumEdit::Create(CWnd* parent, unsigned id, const RECT* rect, unsigned style,
                        unsigned extended_style) {
    if (!CreateEx(extended_style, class_name_, "", style | WS_CHILD | WS_VISIBLE, *rect, parent, id))
        return FALSE;
    const LONG width = rect->right - rect->left;
    const LONG height = rect->bottom - rect->top;
    const LONG spin_left = width - kSpinWidth - 1;
    MakeChildren({0, 0, spin_left - 1, height - 4}, {spin_left, 0, width - 1, height - 4});
    return TRUE;
}

LRESULT WS_NumEdit::WindowProcedure(HWND window, UINT message, WPARAM word, LPARAM param) {
    // A window that is being made has its client area from WM_CREATE on; one that is going makes no children.
    const bool complete = message != WM_GETMINMAXINFO && message != WM_NCCREATE && message != WM_NCCALCSIZE &&
                          message != WM_DESTROY && message != WM_NCDESTROY;
    if (auto* const control =
            complete ? dynamic_cast<WS_NumEdit*>(CWnd::FromHandlePermanent(window)) : nullptr)
        control->MakeChildrenInClient();
    return ::DefWindowProcA(window, message, word, param);
}

void WS_NumEdit::MakeChildrenInClient() {
    if (created_) return;
    RECT client = {};
    GetClientRect(&client);
    const LONG split = (3 * client.right + 2) / 4;  // three quarters, rounded
    MakeChildren({0, 0, split - 1, client.bottom}, {split, 0, client.right, client.bottom});
}

void WS_NumEdit::MakeChildren(const RECT& field, const RECT& spin) {
    if (created_) {
        field_.MoveWindow(&field, TRUE);
        spin_.MoveWindow(&spin, TRUE);
        return;
    }
    created_ = true;
    field_.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, field, this, kFieldId);
    if (CFont* const font = GetParent()->GetFont()) field_.SetFont(font, TRUE);
    field_.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_SHOWWINDOW | SWP_NOMOVE | SWP_NOSIZE);
    spin_.Create(WS_CHILD | WS_VISIBLE | UDS_ARROWKEYS, spin, this, kSpinId);
    spin_.SetWindowPos(nullptr, 0, 0, spin.right - spin.left, spin.bottom - spin.top,
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    spin_.Link(&field_, this);
    field_.Link(&spin_, this);
    field_.SendMessage(EM_LIMITTEXT, kTextLimit, 0);
    ModifyStyle(0, kClipStyles);
    field_.ModifyStyle(0, kClipStyles);
    spin_.ModifyStyle(0, kClipStyles);
    Refresh();
}

void WS_NumEdit::PostNcDestroy() {
    created_ = false;
    CWnd::PostNcDestroy();
}

void WS_NumEdit::SetNotify(UINT message, WPARAM word) {
    notify_message_ = message;
    notify_word_ = word;
}

void WS_NumEdit::Notify(LPARAM what) {
    if (notify_message_ != 0) GetParent()->PostMessage(notify_message_, notify_word_, what);
}

void WS_NumEdit::NotifyValue() {
    Notify(reinterpret_cast<LPARAM>(value_));
}

BOOL WS_NumEdit::OwnsWindow(CWnd* window) {
    return window == this || window == &field_ || window == &spin_;
}

void WS_NumEdit::OnSetFocus(CWnd* from) {
    CWnd::OnSetFocus(from);
    field_.SetFocus();
}

// The control has no text of its own: its font is that of the field.
LRESULT WS_NumEdit::OnSetFont(WPARAM font, LPARAM redraw) {
    if (created_) field_.SendMessage(WM_SETFONT, font, redraw);
    return 0;
}
