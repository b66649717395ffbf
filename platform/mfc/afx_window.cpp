#include "afx_window.h"

#include <algorithm>

#include "afx_dialog.h"
#include "afx_message_box.h"

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::~CWnd() {
    const bool is_place =
        this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
    if (m_hWnd && !is_place) CWnd::DestroyWindow();
}

BOOL CWnd::Create(LPCSTR className, LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CreateEx(0, className, text, style | WS_CHILD, rect, parent, id);
}

BOOL CWnd::CreateEx(DWORD extendedStyle, LPCSTR className, LPCSTR text, DWORD style, const RECT& rect,
                    CWnd* parent, UINT id, LPVOID parameter) {
    AfxHookWindowCreate(this);
    const HWND window = ::CreateWindowExA(
        extendedStyle, className, text, style, rect.left, rect.top, rect.right - rect.left,
        rect.bottom - rect.top, parent ? parent->GetSafeHwnd() : nullptr,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), AfxGetInstanceHandle(), parameter);
    if (!AfxUnhookWindowCreate()) PostNcDestroy();
    return window != nullptr;
}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd) return FALSE;
    const HWND window = m_hWnd;
    if (FromHandlePermanent(window) != this) {
        m_hWnd = nullptr;
        return ::DestroyWindow(window);
    }
    const BOOL destroyed = ::DestroyWindow(window);
    // Usually WM_NCDESTROY has let go of the window, and the object may have deleted itself. Another thread's
    // window or a dead handle sent no message.
    if (FromHandlePermanent(window) == this) Detach();
    return destroyed;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageA(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::PostMessageA(m_hWnd, message, wParam, lParam);
}

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtrA(m_hWnd, GWL_STYLE));
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT flags) {
    const DWORD former = GetStyle();
    const DWORD wanted = (former & ~remove) | add;
    if (wanted == former) return FALSE;
    ::SetWindowLongPtrA(m_hWnd, GWL_STYLE, static_cast<LONG>(wanted));
    if (flags != 0)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::GetDlgItem(int id) const {
    return FromHandle(::GetDlgItem(m_hWnd, id));
}

void CWnd::SetDlgItemText(int id, LPCSTR text) {
    ::SetDlgItemTextA(m_hWnd, id, text);
}

void CWnd::SetWindowText(LPCSTR text) {
    ::SetWindowTextA(m_hWnd, text);
}

void CWnd::GetWindowText(CString& text) const {
    const int length = ::GetWindowTextLengthA(m_hWnd);
    char* const buffer = text.GetBuffer(length + 1);
    const int got = ::GetWindowTextA(m_hWnd, buffer, length + 1);
    text.ReleaseBuffer(got);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

void CWnd::SetFont(CFont* font, BOOL redraw) {
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font ? font->GetSafeHandle() : nullptr), redraw);
}

void CWnd::GetWindowRect(LPRECT rect) const {
    ::GetWindowRect(m_hWnd, rect);
}

void CWnd::GetClientRect(LPRECT rect) const {
    ::GetClientRect(m_hWnd, rect);
}

void CWnd::ScreenToClient(LPRECT rect) const {
    POINT corners[] = {{rect->left, rect->top}, {rect->right, rect->bottom}};
    for (POINT& corner : corners)
        ::ScreenToClient(m_hWnd, &corner);
    *rect = {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL repaint) {
    ::MoveWindow(m_hWnd, x, y, width, height, repaint);
}

void CWnd::MoveWindow(LPCRECT rect, BOOL repaint) {
    MoveWindow(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags) {
    return ::SetWindowPos(m_hWnd, after ? after->GetSafeHwnd() : nullptr, x, y, width, height, flags);
}

BOOL CWnd::ShowWindow(int how) {
    return ::ShowWindow(m_hWnd, how);
}

BOOL CWnd::EnableWindow(BOOL enable) {
    return ::EnableWindow(m_hWnd, enable);
}

CWnd* CWnd::SetFocus() {
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetCapture() {
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

CWnd* CWnd::WindowFromPoint(POINT point) {
    return FromHandle(::WindowFromPoint(point));
}

void CWnd::InvalidateRect(LPCRECT rect, BOOL erase) {
    ::InvalidateRect(m_hWnd, rect, erase);
}

void CWnd::ValidateRect(LPCRECT rect) {
    ::ValidateRect(m_hWnd, rect);
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

void CWnd::ScrollWindow(int dx, int dy, LPCRECT rect, LPCRECT clip) {
    ::ScrollWindow(m_hWnd, dx, dy, rect, clip);
}

BOOL CWnd::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw) {
    info->cbSize = sizeof *info;
    ::SetScrollInfo(m_hWnd, bar, info, redraw);
    return TRUE;
}

int CWnd::GetScrollPos(int bar) const {
    return ::GetScrollPos(m_hWnd, bar);
}

int CWnd::SetScrollPos(int bar, int position, BOOL redraw) {
    return ::SetScrollPos(m_hWnd, bar, position, redraw);
}

void CWnd::SetScrollRange(int bar, int minimum, int maximum, BOOL redraw) {
    ::SetScrollRange(m_hWnd, bar, minimum, maximum, redraw);
}

int CWnd::GetScrollLimit(int bar) {
    int minimum = 0;
    int maximum = 0;
    ::GetScrollRange(m_hWnd, bar, &minimum, &maximum);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_PAGE;
    if (::GetScrollInfo(m_hWnd, bar, &info)) maximum -= std::max(static_cast<int>(info.nPage) - 1, 0);
    return maximum;
}

int CWnd::MessageBox(LPCSTR text, LPCSTR caption, UINT type) {
    return ::MessageBoxA(m_hWnd, text, caption ? caption : AfxGetAppName(), type);
}

void CWnd::CenterWindow() {
    const RECT screen = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    RECT around = screen;
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    if (owner && ::IsWindowVisible(owner)) ::GetWindowRect(owner, &around);
    RECT own = {};
    GetWindowRect(&own);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const LONG x = (around.left + around.right - width) / 2;
    const LONG y = (around.top + around.bottom - height) / 2;
    SetWindowPos(nullptr, std::max<LONG>(std::min(x, screen.right - width), 0),
                 std::max<LONG>(std::min(y, screen.bottom - height), 0), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    CDataExchange exchange(this, saveAndValidate);
    DoDataExchange(&exchange);
    return TRUE;
}

void CWnd::DoDataExchange(CDataExchange*) {}
