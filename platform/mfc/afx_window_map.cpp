// Which object stands for which window, and how a new window gets its object before its first message.

#include <utility>

#include "afx_thread.h"
#include "afx_thread_state.h"
#include "afx_window.h"

CWnd* AfxTemporaryObjects::Window(HWND window) {
    std::unique_ptr<CWnd>& object = windows_[window];
    if (!object) object.reset(new CWnd(window));
    return object.get();
}

CFont* AfxTemporaryObjects::Font(HFONT font) {
    std::unique_ptr<CFont>& object = fonts_[font];
    if (!object) {
        object = std::make_unique<CFont>();
        object->Attach(font);
    }
    return object.get();
}

void AfxTemporaryObjects::Clear() {
    for (auto& [window, object] : windows_)
        object->m_hWnd = nullptr;
    for (auto& [font, object] : fonts_)
        object->Detach();
    windows_.clear();
    fonts_.clear();
}

CWnd* CWnd::FromHandlePermanent(HWND window) {
    const auto& permanent = AfxThreadState().permanent;
    const auto found = permanent.find(window);
    return found == permanent.end() ? nullptr : found->second;
}

CWnd* CWnd::FromHandle(HWND window) {
    if (!window) return nullptr;
    CWnd* const permanent = FromHandlePermanent(window);
    return permanent ? permanent : AfxThreadState().temporary.Window(window);
}

BOOL CWnd::Attach(HWND window) {
    ASSERT(!m_hWnd);
    if (!window) return FALSE;
    AfxThreadState().permanent[window] = this;
    m_hWnd = window;
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND window = std::exchange(m_hWnd, nullptr);
    if (window) AfxThreadState().permanent.erase(window);
    return window;
}

LRESULT AfxCallWndProc(CWnd* object, UINT message, WPARAM wParam, LPARAM lParam) {
    AfxThreadData& state = AfxThreadState();
    MSG handled = {};
    handled.hwnd = object->m_hWnd;
    handled.message = message;
    handled.wParam = wParam;
    handled.lParam = lParam;
    const MSG former = std::exchange(state.current, handled);
    const LRESULT result = object->WindowProc(message, wParam, lParam);
    state.current = former;
    return result;
}

namespace {

// A dialog that nobody has placed or shown while it was set up goes to the middle of its owner.
LRESULT InitDialog(CWnd* dialog, WPARAM wParam, LPARAM lParam) {
    const HWND window = dialog->m_hWnd;
    RECT before = {};
    GetWindowRect(window, &before);
    const bool was_visible = IsWindowVisible(window);
    const LRESULT result = AfxCallWndProc(dialog, WM_INITDIALOG, wParam, lParam);
    if (was_visible || !IsWindow(window) || IsWindowVisible(window)) return result;
    if (GetWindowLongPtrA(window, GWL_STYLE) & WS_CHILD) return result;
    RECT after = {};
    GetWindowRect(window, &after);
    if (before.left == after.left && before.top == after.top) dialog->CenterWindow();
    return result;
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    CWnd* const object = CWnd::FromHandlePermanent(window);
    if (!object) return ::DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_INITDIALOG) return InitDialog(object, wParam, lParam);
    return AfxCallWndProc(object, message, wParam, lParam);
}

// The window has its handle, but no message has come yet.
LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam) {
    AfxThreadData& state = AfxThreadState();
    if (code == HCBT_CREATEWND)
        if (CWnd* const object = std::exchange(state.creating, nullptr))
            object->SubclassWindow(reinterpret_cast<HWND>(wParam));
    return CallNextHookEx(state.creationHook, code, wParam, lParam);
}

}  // namespace

void AfxHookWindowCreate(CWnd* window) {
    AfxThreadData& state = AfxThreadState();
    if (!state.creationHook)
        state.creationHook = SetWindowsHookExA(WH_CBT, &CreationHook, nullptr, GetCurrentThreadId());
    state.creating = window;
}

BOOL AfxUnhookWindowCreate() {
    AfxThreadData& state = AfxThreadState();
    if (HHOOK const hook = std::exchange(state.creationHook, nullptr)) UnhookWindowsHookEx(hook);
    return std::exchange(state.creating, nullptr) == nullptr;
}

BOOL CWnd::SubclassWindow(HWND window) {
    if (!Attach(window)) return FALSE;
    const LONG_PTR former =
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowProcedure));
    m_super = reinterpret_cast<WNDPROC>(former);
    return TRUE;
}

void CWnd::OnNcDestroy() {
    CWinThread* const thread = AfxGetThread();
    if (thread && thread->m_pActiveWnd == this) thread->m_pActiveWnd = nullptr;
    if (thread && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        ::PostQuitMessage(0);
    }
    Default();
    if (m_super) SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_super));
    m_super = nullptr;
    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}
