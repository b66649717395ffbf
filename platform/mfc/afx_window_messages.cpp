// The way of a message through a window's object: map, commands, notifications, reflection.

#include "afx_message_map.h"
#include "afx_thread_state.h"
#include "afx_window.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_super ? ::CallWindowProcA(m_super, m_hWnd, message, wParam, lParam)
                   : ::DefWindowProcA(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    const MSG& current = AfxThreadState().current;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam)) return FALSE;
        *result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) return OnNotify(wParam, lParam, result);
    const AFX_MSGMAP_ENTRY* const entry = FindEntry(message, 0, 0);
    return entry && entry->call(this, {wParam, lParam, result});
}

BOOL CWnd::ReflectToChild(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    CWnd* const object = FromHandlePermanent(child);
    return object && object->OnChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control && ReflectToChild(control, WM_COMMAND, wParam, lParam, &result)) return TRUE;
    const UINT id = LOWORD(wParam);
    if (control && id == 0) return FALSE;
    // A menu or an accelerator counts as a click.
    return OnCmdMsg(WM_COMMAND, id, control ? HIWORD(wParam) : 0, {wParam, lParam, &result});
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (ReflectToChild(header.hwndFrom, WM_NOTIFY, wParam, lParam, result)) return TRUE;
    return OnCmdMsg(WM_NOTIFY, static_cast<WORD>(header.idFrom), header.code, {wParam, lParam, result});
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const UINT code = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->code
                                           : static_cast<UINT>(HIWORD(wParam));
    return CCmdTarget::OnCmdMsg(WM_REFLECT_BASE + message, 0, code, {wParam, lParam, result});
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message) {
    for (HWND window = message->hwnd; window; window = ::GetParent(window)) {
        CWnd* const object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(message)) return TRUE;
        if (window == stop) break;
    }
    return FALSE;
}
