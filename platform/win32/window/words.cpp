// Words, text and state of a window.

#include <algorithm>
#include <cstring>

#include "desktop.h"
#include "queue.h"

namespace {

// A word of the window's own bytes, or null where there are none at that place.
unsigned char* ExtraBytes(Window& window, int index, size_t size) {
    if (index < 0 || static_cast<size_t>(index) + size > window.extra.size()) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return window.extra.data() + index;
}

LONG_PTR GetWord(Window& window, int index, size_t size) {
    switch (index) {
        case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(window.procedure);
        case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(window.module);
        case GWLP_HWNDPARENT:
            return reinterpret_cast<LONG_PTR>(window.parent ? window.parent->handle : window.owner);
        case GWLP_ID: return window.id;
        case GWL_STYLE: return static_cast<LONG>(window.style);
        case GWL_EXSTYLE: return static_cast<LONG>(window.extended_style);
        case GWLP_USERDATA: return window.user_data;
        default: break;
    }
    LONG_PTR value = 0;
    if (const unsigned char* const bytes = ExtraBytes(window, index, size)) std::memcpy(&value, bytes, size);
    return value;
}

// A top-level window is owned by another one, and never by itself in the end.
void SetOwner(Window& window, HWND named) {
    const WindowRef found = named ? FindWindowLocked(named) : nullptr;
    if (window.parent || (named && !found)) return;
    Window* const owner = found ? &RootOf(*found) : nullptr;
    for (const Window* at = owner; at; at = at->owner ? FindWindowLocked(at->owner).get() : nullptr)
        if (at == &window) return;
    window.owner = owner ? owner->handle : nullptr;
}

void PutWord(Window& window, int index, LONG_PTR value, size_t size) {
    switch (index) {
        case GWLP_WNDPROC: window.procedure = reinterpret_cast<WNDPROC>(value); return;
        case GWLP_HINSTANCE: window.module = reinterpret_cast<HINSTANCE>(value); return;
        case GWLP_HWNDPARENT: SetOwner(window, reinterpret_cast<HWND>(value)); return;
        case GWLP_ID: window.id = value; return;
        case GWLP_USERDATA: window.user_data = value; return;
        default: break;
    }
    if (unsigned char* const bytes = ExtraBytes(window, index, size)) std::memcpy(bytes, &value, size);
}

// A change of style is told to the window, before and after.
LONG SetStyle(HWND handle, const WindowRef& window, int index, LONG value) {
    DWORD& word = index == GWL_STYLE ? window->style : window->extended_style;
    STYLESTRUCT change = {word, static_cast<DWORD>(value)};
    const LPARAM record = reinterpret_cast<LPARAM>(&change);
    SendMessageA(handle, WM_STYLECHANGING, static_cast<WPARAM>(index), record);
    {
        const std::lock_guard lock(WindowMutex());
        // Whether a window is topmost is a matter of its place.
        const DWORD kept = index == GWL_EXSTYLE ? WS_EX_TOPMOST : 0;
        word = (change.styleNew & ~kept) | (word & kept);
    }
    SendMessageA(handle, WM_STYLECHANGED, static_cast<WPARAM>(index), record);
    return static_cast<LONG>(change.styleOld);
}

LONG_PTR SetWord(HWND handle, int index, LONG_PTR value, size_t size) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return 0;
    if (index == GWL_STYLE || index == GWL_EXSTYLE)
        return SetStyle(handle, window, index, static_cast<LONG>(value));
    const std::lock_guard lock(WindowMutex());
    const LONG_PTR former = GetWord(*window, index, size);
    PutWord(*window, index, value, size);
    return former;
}

}  // namespace

LONG_PTR WINAPI GetWindowLongPtrA(HWND handle, int index) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return 0;
    const std::lock_guard lock(WindowMutex());
    return GetWord(*window, index, sizeof(LONG_PTR));
}

LONG_PTR WINAPI SetWindowLongPtrA(HWND handle, int index, LONG_PTR value) {
    return SetWord(handle, index, value, sizeof(LONG_PTR));
}

LONG WINAPI GetWindowLongA(HWND handle, int index) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return 0;
    const std::lock_guard lock(WindowMutex());
    return static_cast<LONG>(GetWord(*window, index, sizeof(LONG)));
}

LONG WINAPI SetWindowLongA(HWND handle, int index, LONG value) {
    return static_cast<LONG>(SetWord(handle, index, value, sizeof(LONG)));
}

BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text) {
    return FindWindowRef(window) && SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

int WINAPI GetWindowTextA(HWND window, LPSTR text, int size) {
    if (!text || size <= 0) return 0;
    *text = 0;
    if (!FindWindowRef(window)) return 0;
    return static_cast<int>(
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(text)));
}

int WINAPI GetWindowTextLengthA(HWND window) {
    return FindWindowRef(window) ? static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) : 0;
}

BOOL WINAPI IsWindowVisible(HWND handle) {
    if (handle == kDesktopWindow) return TRUE;
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const std::lock_guard lock(WindowMutex());
    return IsShown(*window);
}

BOOL WINAPI IsWindowEnabled(HWND handle) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const std::lock_guard lock(WindowMutex());
    return !(window->style & WS_DISABLED);
}

BOOL WINAPI EnableWindow(HWND handle, BOOL enable) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const bool was_disabled = !IsWindowEnabled(handle);
    if (was_disabled == !enable) return was_disabled;
    if (!enable) SendMessageA(handle, WM_CANCELMODE, 0, 0);
    {
        const std::lock_guard lock(WindowMutex());
        window->style = enable ? window->style & ~static_cast<DWORD>(WS_DISABLED)
                               : window->style | static_cast<DWORD>(WS_DISABLED);
    }
    if (!enable && GetFocus() == handle) SetFocus(nullptr);
    SendMessageA(handle, WM_ENABLE, static_cast<WPARAM>(enable != FALSE), 0);
    return was_disabled;
}
