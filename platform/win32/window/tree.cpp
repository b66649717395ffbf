// Questions about the tree of windows.

#include <algorithm>

#include "desktop.h"
#include "window.h"
#include "wrapping.h"

namespace {

HWND HandleOf(const Window* window) {
    return window ? window->handle : nullptr;
}

HWND Neighbour(Window& window, UINT relation) {
    const std::vector<Window*>& siblings = SiblingsOf(window);
    const auto at = std::find(siblings.begin(), siblings.end(), &window);
    switch (relation) {
        case GW_HWNDFIRST: return HandleOf(siblings.front());
        case GW_HWNDLAST: return HandleOf(siblings.back());
        case GW_HWNDNEXT: return at + 1 == siblings.end() ? nullptr : HandleOf(*(at + 1));
        default: return at == siblings.begin() ? nullptr : HandleOf(*(at - 1));
    }
}

HWND TopLevel() {
    const std::vector<HWND> windows = ChildrenOf(nullptr);
    return windows.empty() ? nullptr : windows.front();
}

}  // namespace

BOOL WINAPI IsWindow(HWND window) {
    return window == kDesktopWindow || FindWindowRef(window) != nullptr;
}

HWND WINAPI GetDesktopWindow() {
    return kDesktopWindow;
}

HWND WINAPI GetParent(HWND window) {
    const std::lock_guard lock(WindowMutex());
    const WindowRef found = FindWindowLocked(window);
    if (!found) return nullptr;
    if (found->style & WS_CHILD) return found->parent ? found->parent->handle : kDesktopWindow;
    return found->style & static_cast<DWORD>(WS_POPUP) ? found->owner : nullptr;
}

HWND WINAPI GetAncestor(HWND window, UINT which) {
    const std::lock_guard lock(WindowMutex());
    const WindowRef found = FindWindowLocked(window);
    if (!found) return nullptr;
    if (which == GA_PARENT) return found->parent ? found->parent->handle : kDesktopWindow;
    return RootOf(*found).handle;
}

HWND WINAPI GetWindow(HWND window, UINT relation) {
    if (window == kDesktopWindow) return relation == GW_CHILD ? TopLevel() : nullptr;
    const std::lock_guard lock(WindowMutex());
    const WindowRef found = FindWindowLocked(window);
    if (!found) return nullptr;
    if (relation == GW_OWNER) return found->owner;
    if (relation == GW_CHILD) return found->children.empty() ? nullptr : found->children.front()->handle;
    return relation <= GW_HWNDPREV ? Neighbour(*found, relation) : nullptr;
}

BOOL WINAPI IsChild(HWND parent, HWND window) {
    const std::lock_guard lock(WindowMutex());
    const WindowRef above = FindWindowLocked(parent);
    const WindowRef below = FindWindowLocked(window);
    if (!above || !below) return FALSE;
    return IsAncestor(above.get(), below.get());
}

BOOL WINAPI EnumThreadWindows(DWORD thread, WNDENUMPROC callback, LPARAM parameter) {
    for (HWND const handle : ChildrenOf(nullptr)) {
        const WindowRef window = FindWindowRef(handle);
        if (window && window->thread == thread && !callback(handle, parameter)) return FALSE;
    }
    return TRUE;
}

DWORD WINAPI GetWindowThreadProcessId(HWND window, LPDWORD process) {
    const WindowRef found = FindWindowRef(window);
    if (!found) return 0;
    if (process) *process = GetCurrentProcessId();
    return found->thread;
}

// ---- Points. ----

namespace {

bool ClientOrigin(HWND handle, POINT& origin) {
    origin = {};
    if (!handle || handle == kDesktopWindow) return true;
    const WindowRef window = FindWindowRef(handle);
    if (!window) return false;
    const std::lock_guard lock(WindowMutex());
    origin = {window->client.left, window->client.top};
    return true;
}

// The topmost visible window below `parent` (null: on the screen) at a place.
Window* TopmostAt(const std::vector<Window*>& windows, POINT point) {
    for (Window* const window : windows) {
        if (!(window->style & WS_VISIBLE) || !PtInRect(&window->rect, point)) continue;
        // A disabled child leaves the place to what lies below it.
        if (window->style & WS_CHILD && window->style & WS_DISABLED) continue;
        if (!PtInRect(&window->client, point)) return window;
        Window* const inner = TopmostAt(window->children, point);
        return inner ? inner : window;
    }
    return nullptr;
}

}  // namespace

BOOL WINAPI ClientToScreen(HWND window, LPPOINT point) {
    POINT origin = {};
    if (!window || !point || !ClientOrigin(window, origin)) return FALSE;
    *point = {Sum(point->x, origin.x), Sum(point->y, origin.y)};
    return TRUE;
}

BOOL WINAPI ScreenToClient(HWND window, LPPOINT point) {
    POINT origin = {};
    if (!window || !point || !ClientOrigin(window, origin)) return FALSE;
    *point = {Difference(point->x, origin.x), Difference(point->y, origin.y)};
    return TRUE;
}

int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count) {
    POINT a = {};
    POINT b = {};
    if (!points || !ClientOrigin(from, a) || !ClientOrigin(to, b)) return 0;
    const LONG dx = Difference(a.x, b.x);
    const LONG dy = Difference(a.y, b.y);
    for (UINT i = 0; i < count; ++i)
        points[i] = {Sum(points[i].x, dx), Sum(points[i].y, dy)};
    return MAKELONG(dx, dy);
}

HWND WINAPI WindowFromPoint(POINT point) {
    const std::lock_guard lock(WindowMutex());
    const Window* const found = TopmostAt(TopLevelWindows(), point);
    return found ? found->handle : kDesktopWindow;
}

// Children that are hidden or disabled count as well.
HWND WINAPI ChildWindowFromPoint(HWND parent, POINT point) {
    const WindowRef window = FindWindowRef(parent);
    if (!window || !ClientToScreen(parent, &point)) return nullptr;
    const std::lock_guard lock(WindowMutex());
    if (!PtInRect(&window->client, point)) return nullptr;
    for (const Window* const child : window->children)
        if (PtInRect(&child->rect, point)) return child->handle;
    return parent;
}
