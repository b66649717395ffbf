// Where windows are: size, place, order, visibility.

#include <algorithm>
#include <functional>

#include "desktop.h"
#include "queue.h"

namespace {

POINT ParentOrigin(const Window& window) {
    return window.parent ? POINT{window.parent->client.left, window.parent->client.top} : POINT{0, 0};
}

bool SameSize(const RECT& a, const RECT& b) {
    return a.right - a.left == b.right - b.left && a.bottom - a.top == b.bottom - b.top;
}

bool SameRect(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && SameSize(a, b);
}

bool IsTopmost(const Window& window) {
    return (window.extended_style & WS_EX_TOPMOST) != 0;
}

// A window becomes topmost by being asked to, and stops where it is put among the others.
void SetTopmost(Window& window, HWND after, const Window* named) {
    if (after == HWND_TOPMOST)
        window.extended_style |= WS_EX_TOPMOST;
    else if (after == HWND_NOTOPMOST || after == HWND_BOTTOM || (named && !IsTopmost(*named)))
        window.extended_style &= ~static_cast<DWORD>(WS_EX_TOPMOST);
}

// Puts a window at its place among its siblings.
void Reorder(Window& window, HWND after) {
    if (after == HWND_NOTOPMOST && !IsTopmost(window)) return;
    std::vector<Window*>& siblings = SiblingsOf(window);
    siblings.erase(std::find(siblings.begin(), siblings.end(), &window));
    const auto named = std::find_if(siblings.begin(), siblings.end(),
                                    [after](const Window* sibling) { return sibling->handle == after; });
    SetTopmost(window, after, named == siblings.end() ? nullptr : *named);
    auto at = FrontPlace(window, siblings);
    if (after == HWND_BOTTOM)
        at = siblings.end();
    else if (named != siblings.end())
        at = std::max(at, named + 1);
    siblings.insert(at, &window);
}

// Puts what a window owns above it, where it is not so already, and topmost if the window is.
void RaiseOwned(const Window& owner) {
    std::vector<Window*>& windows = TopLevelWindows();
    const auto is_owned = [&owner](const Window* window) { return window->owner == owner.handle; };
    const auto place = std::find(windows.begin(), windows.end(), &owner);
    const auto owned = std::stable_partition(place, windows.end(), std::not_fn(is_owned));
    if (IsTopmost(owner))
        std::for_each(owned, windows.end(), [](Window* window) { window->extended_style |= WS_EX_TOPMOST; });
    std::rotate(place, owned, windows.end());
}

// Top-level windows that belong to another stay above it.
void KeepOwnership(const Window& window) {
    const WindowRef owner = window.owner ? FindWindowLocked(window.owner) : nullptr;
    if (owner) RaiseOwned(*owner);
    RaiseOwned(window);
}

struct Change {
    RECT old_rect;
    RECT old_client;
    bool was_visible;
};

// Fills in what the flags leave as it is.
void Complete(const Window& window, WINDOWPOS& place) {
    const POINT origin = ParentOrigin(window);
    if (place.flags & SWP_NOMOVE) {
        place.x = window.rect.left - origin.x;
        place.y = window.rect.top - origin.y;
    }
    if (place.flags & SWP_NOSIZE) {
        place.cx = window.rect.right - window.rect.left;
        place.cy = window.rect.bottom - window.rect.top;
    }
    if (place.flags & SWP_SHOWWINDOW && window.style & WS_VISIBLE) place.flags &= ~SWP_SHOWWINDOW;
    if (place.flags & SWP_HIDEWINDOW && !(window.style & WS_VISIBLE)) place.flags &= ~SWP_HIDEWINDOW;
    const RECT wanted = {place.x + origin.x, place.y + origin.y, place.x + origin.x + place.cx,
                         place.y + origin.y + place.cy};
    if (wanted.left == window.rect.left && wanted.top == window.rect.top) place.flags |= SWP_NOMOVE;
    if (SameSize(wanted, window.rect)) place.flags |= SWP_NOSIZE;
}

RECT WantedRect(const Window& window, const WINDOWPOS& place) {
    const POINT origin = ParentOrigin(window);
    return {place.x + origin.x, place.y + origin.y, place.x + origin.x + place.cx,
            place.y + origin.y + place.cy};
}

// Moves the window and what it holds, then gives it its size; asks for the client area where that may differ.
void Move(const WindowRef& window, const WINDOWPOS& place) {
    const RECT wanted = WantedRect(*window, place);
    const bool resize = !(place.flags & SWP_NOSIZE) || place.flags & SWP_FRAMECHANGED;
    {
        const std::lock_guard lock(WindowMutex());
        OffsetWindow(*window, wanted.left - window->rect.left, wanted.top - window->rect.top);
    }
    if (!resize) return;
    const POINT origin = ParentOrigin(*window);
    NCCALCSIZE_PARAMS sizes = {};
    sizes.rgrc[0] = wanted;
    sizes.rgrc[1] = window->rect;
    sizes.rgrc[2] = window->client;
    for (RECT& rect : sizes.rgrc)
        OffsetRect(&rect, -origin.x, -origin.y);
    CallProcedure(*window, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&sizes));
    const std::lock_guard lock(WindowMutex());
    window->rect = wanted;
    window->client = ClientInRange(sizes.rgrc[0]);
    OffsetRect(&window->client, origin.x, origin.y);
    FitSurface(*window);
}

// What has to be painted after a change.
void Repaint(Window& window, const Change& change, const WINDOWPOS& place) {
    const bool visible = (window.style & WS_VISIBLE) != 0;
    const bool appeared = visible && !change.was_visible;
    const bool vanished = !visible && change.was_visible;
    const bool moved = !SameRect(window.rect, change.old_rect);
    const bool resized =
        !SameSize(window.rect, change.old_rect) || !SameSize(window.client, change.old_client);
    if (place.flags & SWP_NOREDRAW) return;
    if (vanished || (visible && moved)) InvalidateBehind(window, change.old_rect);
    if (!visible) return;
    const bool redraw_all = appeared || (moved && window.parent) || resized;
    if (redraw_all || place.flags & SWP_FRAMECHANGED)
        Invalidate(window, Region(window.rect), RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    else if (!(place.flags & SWP_NOZORDER) && window.parent)
        Invalidate(window, Region(window.rect), RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

constexpr UINT kNothingChanged = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER;
constexpr UINT kSomethingChanged = SWP_FRAMECHANGED | SWP_SHOWWINDOW | SWP_HIDEWINDOW;

}  // namespace

std::vector<Window*>::iterator FrontPlace(const Window& window, std::vector<Window*>& siblings) {
    if (IsTopmost(window)) return siblings.begin();
    return std::find_if_not(siblings.begin(), siblings.end(),
                            [](const Window* sibling) { return IsTopmost(*sibling); });
}

void OffsetWindow(Window& window, int dx, int dy) {
    if (dx == 0 && dy == 0) return;
    OffsetRect(&window.rect, dx, dy);
    OffsetRect(&window.client, dx, dy);
    window.update.Offset(dx, dy);
    for (Window* const child : window.children)
        OffsetWindow(*child, dx, dy);
}

BOOL WINAPI SetWindowPos(HWND handle, HWND after, int x, int y, int width, int height, UINT flags) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    WINDOWPOS place = {handle, after, x, y, width, height, flags};
    // What needs no change of order keeps it: the window is there already.
    if (!(place.flags & SWP_NOZORDER) && after == handle) place.flags |= SWP_NOZORDER;
    if (!(place.flags & SWP_NOSENDCHANGING))
        SendMessageA(handle, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&place));
    if (!IsWindow(handle)) return FALSE;
    place.x = PlaceInRange(place.x);
    place.y = PlaceInRange(place.y);
    place.cx = SizeInRange(place.cx);
    place.cy = SizeInRange(place.cy);
    Complete(*window, place);
    const Change change = {window->rect, window->client, (window->style & WS_VISIBLE) != 0};
    Move(window, place);
    {
        const std::lock_guard lock(WindowMutex());
        // Whoever was asked for the client area may have destroyed it.
        if (!FindWindowLocked(handle)) return FALSE;
        if (!(place.flags & SWP_NOZORDER)) {
            Reorder(*window, place.hwndInsertAfter);
            if (!window->parent) KeepOwnership(*window);
        }
        if (place.flags & SWP_SHOWWINDOW) window->style |= static_cast<DWORD>(WS_VISIBLE);
        if (place.flags & SWP_HIDEWINDOW) window->style &= ~static_cast<DWORD>(WS_VISIBLE);
        Repaint(*window, change, place);
    }
    if (!(place.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) && !window->parent) SetActiveWindow(handle);
    const bool resized = !SameSize(window->client, change.old_client);
    const bool moved =
        window->client.left != change.old_client.left || window->client.top != change.old_client.top;
    const bool tell = (place.flags & kNothingChanged) != kNothingChanged || place.flags & kSomethingChanged;
    if (!tell || !IsWindow(handle)) return TRUE;
    // For WM_SIZE and WM_MOVE, which the default makes of it.
    if (!resized) place.flags |= kNoClientSize;
    if (!moved) place.flags |= kNoClientMove;
    SendMessageA(handle, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&place));
    return TRUE;
}

BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint) {
    return SetWindowPos(window, nullptr, x, y, width, height,
                        SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW));
}

BOOL WINAPI ShowWindow(HWND handle, int how) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const bool was_visible = (window->style & WS_VISIBLE) != 0;
    const bool show = how != SW_HIDE;
    if (show == was_visible && !(show && !window->parent && how != SW_SHOWNA && how != SW_SHOWNOACTIVATE))
        return was_visible;
    if (show != was_visible) {
        SendMessageA(handle, WM_SHOWWINDOW, show, 0);
        if (!IsWindow(handle)) return was_visible;
    }
    UINT flags = SWP_NOMOVE | SWP_NOSIZE | (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    const bool activate = show && !window->parent && how != SW_SHOWNA && how != SW_SHOWNOACTIVATE;
    if (!activate) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
    SetWindowPos(handle, HWND_TOP, 0, 0, 0, 0, flags);
    if (!show && !window->parent && GetActiveWindow() == handle) ActivateNext(handle);
    if (!show && window->parent && GetFocus() == handle) SetFocus(GetParent(handle));
    return was_visible;
}

BOOL WINAPI GetWindowRect(HWND handle, LPRECT rect) {
    if (!rect) return FALSE;
    if (handle == kDesktopWindow) return SetRect(rect, 0, 0, kScreenWidth, kScreenHeight);
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const std::lock_guard lock(WindowMutex());
    *rect = window->rect;
    return TRUE;
}

BOOL WINAPI GetClientRect(HWND handle, LPRECT rect) {
    if (!rect) return FALSE;
    if (handle == kDesktopWindow) return SetRect(rect, 0, 0, kScreenWidth, kScreenHeight);
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const std::lock_guard lock(WindowMutex());
    *rect = {0, 0, window->client.right - window->client.left, window->client.bottom - window->client.top};
    return TRUE;
}
