#include <algorithm>

#include "ascii_case.h"
#include "controls/system_classes.h"
#include "desktop.h"
#include "queue.h"

namespace {

constexpr int kDefaultSize = 300;

// The styles that windows of a kind always have.
void CompleteStyles(DWORD& style, DWORD& extended_style) {
    const bool child = (style & WS_CHILD) != 0;
    if (!child) style |= WS_CLIPSIBLINGS;
    if (!child && !(style & static_cast<DWORD>(WS_POPUP))) style |= WS_CAPTION;
    if (style & (WS_THICKFRAME | WS_DLGFRAME) || extended_style & WS_EX_DLGMODALFRAME)
        extended_style |= WS_EX_WINDOWEDGE;
}

void Place(CREATESTRUCTA& create) {
    if (create.x == CW_USEDEFAULT) create.x = create.y = 0;
    if (create.cx == CW_USEDEFAULT) create.cx = create.cy = kDefaultSize;
    create.x = PlaceInRange(create.x);
    create.y = PlaceInRange(create.y);
    create.cx = SizeInRange(create.cx);
    create.cy = SizeInRange(create.cy);
}

// Where the coordinates of a child begin.
POINT OriginOf(const Window* parent) {
    return parent ? POINT{parent->client.left, parent->client.top} : POINT{0, 0};
}

void Link(Window& window, Window* parent) {
    window.parent = parent;
    std::vector<Window*>& siblings = SiblingsOf(window);
    // A child goes below its siblings, a top-level window above.
    siblings.insert(parent ? siblings.end() : FrontPlace(window, siblings), &window);
}

// What the creation's messages work with. Gone once one of them destroyed the window.
bool StillThere(HWND window) {
    return IsWindow(window);
}

void SizeByFrame(const WindowRef& window) {
    RECT frame = window->rect;
    if (window->parent) OffsetRect(&frame, -window->parent->client.left, -window->parent->client.top);
    CallProcedure(*window, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&frame));
    const std::lock_guard lock(WindowMutex());
    const POINT origin = OriginOf(window->parent);
    window->client = ClientInRange(frame);
    OffsetRect(&window->client, origin.x, origin.y);
    FitSurface(*window);
}

void TellSize(const Window& window) {
    const POINT origin = OriginOf(window.parent);
    const HWND handle = window.handle;
    const LPARAM place = MAKELPARAM(window.client.left - origin.x, window.client.top - origin.y);
    SendMessageA(
        handle, WM_SIZE, SIZE_RESTORED,
        MAKELPARAM(window.client.right - window.client.left, window.client.bottom - window.client.top));
    SendMessageA(handle, WM_MOVE, 0, place);
}

void TellParent(const Window& window) {
    if (!(window.style & WS_CHILD) || window.extended_style & WS_EX_NOPARENTNOTIFY || !window.parent) return;
    SendMessageA(window.parent->handle, WM_PARENTNOTIFY, MAKEWPARAM(WM_CREATE, window.id),
                 reinterpret_cast<LPARAM>(window.handle));
}

// Null when the parent is on its way out.
WindowRef NewWindow(const std::shared_ptr<WindowClass>& cls, const CREATESTRUCTA& create,
                    const WindowRef& parent) {
    const std::lock_guard lock(WindowMutex());
    if (parent && parent->ending) return nullptr;
    WindowRef window = AddWindowLocked();
    window->cls = cls;
    ++cls->windows;
    window->procedure = cls->record.lpfnWndProc;
    window->thread = GetCurrentThreadId();
    // It is shown at the end of its creation.
    window->style = static_cast<DWORD>(create.style) & ~static_cast<DWORD>(WS_VISIBLE);
    window->extended_style = create.dwExStyle;
    window->module = create.hInstance;
    window->id = reinterpret_cast<LONG_PTR>(create.hMenu);
    window->extra.resize(static_cast<size_t>(cls->record.cbWndExtra));
    const bool child = (create.style & WS_CHILD) != 0;
    if (!child && parent) {
        window->owner = RootOf(*parent).handle;
        window->extended_style |= RootOf(*parent).extended_style & WS_EX_TOPMOST;
    }
    Link(*window, child ? parent.get() : nullptr);
    const POINT origin = OriginOf(window->parent);
    window->rect = {create.x, create.y, create.x + create.cx, create.y + create.cy};
    OffsetRect(&window->rect, origin.x, origin.y);
    window->client = window->rect;
    return window;
}

bool HasFrameToSize(const CREATESTRUCTA& create) {
    return (create.style & WS_THICKFRAME) || !(create.style & (WS_POPUP | WS_CHILD));
}

void AskSize(const WindowRef& window, const CREATESTRUCTA& create) {
    if (!HasFrameToSize(create)) return;
    MINMAXINFO limits = {};
    limits.ptMaxSize = {kScreenWidth, kScreenHeight};
    limits.ptMinTrackSize = {0, 0};
    limits.ptMaxTrackSize = {kScreenWidth, kScreenHeight};
    CallProcedure(*window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
}

// The messages of creation. False when one of them refuses.
bool Announce(const WindowRef& window, CREATESTRUCTA& create) {
    AskSize(window, create);
    if (!StillThere(window->handle)) return false;
    const LPARAM record = reinterpret_cast<LPARAM>(&create);
    if (!CallProcedure(*window, WM_NCCREATE, 0, record)) return false;
    if (!StillThere(window->handle)) return false;
    SizeByFrame(window);
    if (!StillThere(window->handle)) return false;
    if (CallProcedure(*window, WM_CREATE, 0, record) == -1) return false;
    return StillThere(window->handle);
}

}  // namespace

HWND WINAPI CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR text, DWORD style, int x, int y,
                            int width, int height, HWND parentHandle, HMENU menuOrId, HINSTANCE module,
                            LPVOID parameter) {
    CurrentQueue();
    WNDCLASSA known = {};
    std::shared_ptr<WindowClass> cls;
    if (className && GetClassInfoA(module, className, &known)) {
        const std::lock_guard lock(WindowMutex());
        cls = FindClass(module, className);
    }
    if (!cls) {
        SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
        return nullptr;
    }
    WindowRef parent;
    if (parentHandle && parentHandle != kDesktopWindow) {
        parent = FindWindowRef(parentHandle);
        if (!parent) return nullptr;
    } else if (style & WS_CHILD && parentHandle != kDesktopWindow) {
        SetLastError(ERROR_TLW_WITH_WSCHILD);
        return nullptr;
    }
    const DWORD wanted = style;
    CompleteStyles(style, extendedStyle);
    CREATESTRUCTA create = {
        parameter, module,    menuOrId,     parentHandle, height, width, y, x, static_cast<LONG>(style),
        text,      className, extendedStyle};
    Place(create);
    const WindowRef window = NewWindow(cls, create, parent);
    if (!window) return nullptr;
    const HWND handle = window->handle;
    CBT_CREATEWNDA hooked = {&create, nullptr};
    const bool forbidden =
        HookForbids(HCBT_CREATEWND, reinterpret_cast<WPARAM>(handle), reinterpret_cast<LPARAM>(&hooked));
    if (forbidden || !StillThere(handle) || !Announce(window, create)) {
        if (StillThere(handle)) DestroyWindow(handle);
        return nullptr;
    }
    TellSize(*window);
    if (StillThere(handle)) TellParent(*window);
    if (StillThere(handle) && wanted & WS_VISIBLE) ShowWindow(handle, SW_SHOW);
    return StillThere(handle) ? handle : nullptr;
}

// ---- Destruction. ----

namespace {

// A handler of WM_DESTROY or WM_NCDESTROY may destroy the window itself, as objects do that delete
// themselves. One that always does would never come to an end.
constexpr int kNestedDestructions = 3;

void HideForGood(HWND window) {
    if (!(GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE)) return;
    const bool child = (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0;
    if (child)
        ShowWindow(window, SW_HIDE);
    else
        SetWindowPos(window, nullptr, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
}

void DestroyOwned(HWND owner) {
    for (HWND const window : ChildrenOf(nullptr)) {
        const WindowRef found = FindWindowRef(window);
        if (found && found->owner == owner && found->thread == GetCurrentThreadId()) DestroyWindow(window);
    }
}

void SendDestroy(HWND window) {
    SendMessageA(window, WM_DESTROY, 0, 0);
    for (HWND const child : ChildrenOf(window))
        if (IsWindow(child)) SendDestroy(child);
}

// Children go before their parent.
void Finish(HWND handle) {
    if (const WindowRef window = FindWindowRef(handle)) {
        const std::lock_guard lock(WindowMutex());
        window->ending = true;
    }
    for (HWND const child : ChildrenOf(handle))
        Finish(child);
    const WindowRef window = FindWindowRef(handle);
    if (!window) return;
    CallProcedure(*window, WM_NCDESTROY, 0, 0);
    ForgetFocus(handle);
    ThreadQueue& queue = CurrentQueue();
    if (queue.caret_window == handle) queue.caret_window = nullptr;
    RemoveWindow(*window);
}

}  // namespace

BOOL WINAPI DestroyWindow(HWND handle) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    if (window->thread != GetCurrentThreadId()) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    if (window->destroying == kNestedDestructions) return FALSE;
    if (HookForbids(HCBT_DESTROYWND, reinterpret_cast<WPARAM>(handle), 0)) return FALSE;
    if (!IsWindow(handle)) return FALSE;
    {
        const std::lock_guard lock(WindowMutex());
        ++window->destroying;
    }
    const Window* const parent = window->parent;
    if (parent && !(window->extended_style & WS_EX_NOPARENTNOTIFY))
        SendMessageA(parent->handle, WM_PARENTNOTIFY, MAKEWPARAM(WM_DESTROY, window->id),
                     reinterpret_cast<LPARAM>(handle));
    if (!IsWindow(handle)) return TRUE;
    HideForGood(handle);
    DestroyOwned(handle);
    ActivateNext(handle);
    if (IsWindow(handle)) SendDestroy(handle);
    if (IsWindow(handle)) Finish(handle);
    return TRUE;
}
