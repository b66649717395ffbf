// Focus, activation and capture of a thread.

#include "desktop.h"
#include "queue.h"

namespace {

// Whether a window can take the keyboard: it and all around it are shown and enabled.
bool CanFocus(const Window& window) {
    for (const Window* at = &window; at; at = at->parent)
        if (at->style & WS_DISABLED || !(at->style & WS_VISIBLE)) return false;
    return true;
}

void TellActive(HWND window, bool active, HWND other, WPARAM how) {
    if (!IsWindow(window)) return;
    {
        const WindowRef found = FindWindowRef(window);
        const std::lock_guard lock(WindowMutex());
        if (found) found->active_frame = active;
    }
    SendMessageA(window, WM_NCACTIVATE, active, 0);
    if (IsWindow(window)) SendMessageA(window, WM_ACTIVATE, how, reinterpret_cast<LPARAM>(other));
}

// Moves the focus and tells both windows.
void ChangeFocus(HWND window) {
    ThreadQueue& queue = CurrentQueue();
    const HWND former = queue.focus;
    if (former == window) return;
    queue.focus = window;
    if (former && IsWindow(former)) SendMessageA(former, WM_KILLFOCUS, reinterpret_cast<WPARAM>(window), 0);
    // A handler may have moved it on.
    if (window && queue.focus == window)
        SendMessageA(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(former), 0);
}

bool Activate(HWND window) {
    ThreadQueue& queue = CurrentQueue();
    const HWND former = queue.active;
    if (former == window) return true;
    if (window && HookForbids(HCBT_ACTIVATE, reinterpret_cast<WPARAM>(window), 0)) return false;
    queue.active = window;
    if (former) TellActive(former, false, window, WA_INACTIVE);
    if (queue.active != window) return true;
    if (window)
        TellActive(window, true, former, WA_ACTIVE);
    else
        ChangeFocus(nullptr);
    return true;
}

}  // namespace

HWND WINAPI SetFocus(HWND handle) {
    ThreadQueue& queue = CurrentQueue();
    const HWND former = queue.focus;
    if (!handle) {
        ChangeFocus(nullptr);
        return former;
    }
    const WindowRef window = FindWindowRef(handle);
    if (!window || window->thread != queue.id) return nullptr;
    HWND root = nullptr;
    {
        const std::lock_guard lock(WindowMutex());
        if (!CanFocus(*window)) {
            // An invisible window may have it, as dialogs set their focus before they are shown.
            for (const Window* at = window.get(); at; at = at->parent)
                if (at->style & WS_DISABLED) return nullptr;
        }
        root = RootOf(*window).handle;
    }
    if (!Activate(root)) return nullptr;
    if (IsWindow(handle)) ChangeFocus(handle);
    return former;
}

HWND WINAPI GetFocus() {
    return CurrentQueue().focus;
}

HWND WINAPI SetActiveWindow(HWND handle) {
    ThreadQueue& queue = CurrentQueue();
    const HWND former = queue.active;
    if (!handle) {
        Activate(nullptr);
        return former;
    }
    const WindowRef window = FindWindowRef(handle);
    if (!window || window->thread != queue.id || window->parent || window->style & WS_CHILD) return nullptr;
    return Activate(handle) ? former : nullptr;
}

HWND WINAPI GetActiveWindow() {
    return CurrentQueue().active;
}

void ForgetFocus(HWND window) {
    ThreadQueue& queue = CurrentQueue();
    if (queue.focus == window) queue.focus = nullptr;
    if (queue.capture == window) queue.capture = nullptr;
}

// The owner comes first, then the topmost window of the thread that can be used.
void ActivateNext(HWND gone) {
    ThreadQueue& queue = CurrentQueue();
    if (queue.active != gone) return;
    HWND next = GetWindow(gone, GW_OWNER);
    if (next && !(IsWindowVisible(next) && IsWindowEnabled(next))) next = nullptr;
    for (HWND const candidate : next ? std::vector<HWND>() : ChildrenOf(nullptr)) {
        const WindowRef window = FindWindowRef(candidate);
        if (!window || candidate == gone || window->thread != queue.id || window->destroying) continue;
        if (!IsWindowVisible(candidate) || !IsWindowEnabled(candidate)) continue;
        next = candidate;
        break;
    }
    Activate(next);
    if (queue.active == gone) queue.active = nullptr;
}

HWND WINAPI SetCapture(HWND window) {
    ThreadQueue& queue = CurrentQueue();
    const WindowRef found = window ? FindWindowRef(window) : nullptr;
    if (window && (!found || found->thread != queue.id)) return nullptr;
    const HWND former = queue.capture;
    queue.capture = window;
    if (former && former != window && IsWindow(former))
        SendMessageA(former, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(window));
    return former;
}

HWND WINAPI GetCapture() {
    return CurrentQueue().capture;
}

BOOL WINAPI ReleaseCapture() {
    SetCapture(nullptr);
    return TRUE;
}
