// What must be painted, and where a window may draw.

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "desktop.h"
#include "queue.h"

namespace {

// The rectangles of the siblings that lie above a window.
void SubtractSiblingsAbove(Window& window, Region& region) {
    for (const Window* const sibling : SiblingsOf(window)) {
        if (sibling == &window) return;
        if (sibling->style & WS_VISIBLE) region.Subtract(sibling->rect);
    }
}

Region VisiblePart(Window& window, const RECT& rect) {
    Region region;
    if (!IsShown(window)) return region;
    region = Region(rect);
    for (Window* at = &window; at->parent; at = at->parent) {
        region.Intersect(at->parent->client);
        if (at->style & WS_CLIPSIBLINGS) SubtractSiblingsAbove(*at, region);
    }
    return region;
}

void Enqueue(Window& window) {
    ThreadQueue* const queue = QueueOf(window.thread);
    if (window.pending_paint || !queue) return;
    window.pending_paint = queue->next_paint++;
    queue->paints[*window.pending_paint] = &window;
    queue->changed.notify_all();
}

std::unordered_set<HDC>& OpenContexts() {
    static auto& contexts = *new std::unordered_set<HDC>;
    return contexts;
}

// A context for a part of the screen; the origin is on the screen too.
HDC OpenContext(Window& window, POINT origin, Region clip) {
    const Window& root = RootOf(window);
    clip.Offset(-root.rect.left, -root.rect.top);
    const HDC dc = OpenSurfaceContext(root.surface, {origin.x - root.rect.left, origin.y - root.rect.top},
                                      std::move(clip));
    if (dc) OpenContexts().insert(dc);
    return dc;
}

HDC OpenDesktopContext() {
    const std::lock_guard lock(WindowMutex());
    const HDC dc = OpenSurfaceContext(std::make_shared<Surface>(1, 1), {0, 0}, Region());
    if (dc) OpenContexts().insert(dc);
    return dc;
}

}  // namespace

Region VisibleRegion(Window& window, bool whole) {
    Region region = VisiblePart(window, whole ? window.rect : window.client);
    if (!whole && window.style & WS_CLIPCHILDREN)
        for (const Window* const child : window.children)
            if (child->style & WS_VISIBLE) region.Subtract(child->rect);
    return region;
}

// What lies beyond is not drawn: a window may be much larger than any screen.
constexpr int kLongestSurface = 4096;

void FitSurface(Window& window) {
    if (window.parent) return;
    const int width = std::clamp<int>(window.rect.right - window.rect.left, 1, kLongestSurface);
    const int height = std::clamp<int>(window.rect.bottom - window.rect.top, 1, kLongestSurface);
    if (window.surface && window.surface->width == width && window.surface->height == height) return;
    auto fitted = std::make_shared<Surface>(width, height);
    if (window.surface) {
        const std::lock_guard lock(DrawingMutex());
        const Surface& former = *window.surface;
        const int columns = std::min(width, former.width);
        for (int row = 0; row < std::min(height, former.height); ++row)
            std::copy_n(former.pixels.begin() + static_cast<ptrdiff_t>(row) * former.width, columns,
                        fitted->pixels.begin() + static_cast<ptrdiff_t>(row) * width);
    }
    window.surface = std::move(fitted);
}

namespace {

bool Touch(const RECT& a, const RECT& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace

void Invalidate(Window& window, const Region& part, UINT flags) {
    if (!IsShown(window)) return;
    Region inside = part;
    inside.Intersect(window.client);
    window.update.Add(inside);
    if (flags & RDW_ERASE) window.erase = true;
    if (flags & RDW_FRAME) window.frame_dirty = true;
    if (!window.update.Empty() || window.frame_dirty) Enqueue(window);
    if (window.style & WS_CLIPCHILDREN && !(flags & RDW_ALLCHILDREN)) return;
    const RECT bounds = inside.Bounds();
    for (Window* const child : window.children) {
        if (!(child->style & WS_VISIBLE) || !Touch(bounds, child->rect)) continue;
        Region covered = inside;
        covered.Intersect(child->rect);
        if (!covered.Empty()) Invalidate(*child, covered, flags | RDW_FRAME | RDW_ERASE);
    }
}

void InvalidateAll(HWND handle) {
    RedrawWindow(handle, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void InvalidateBehind(Window& window, const RECT& rect) {
    if (window.parent) Invalidate(*window.parent, Region(rect), RDW_INVALIDATE | RDW_ERASE);
}

void ForgetPaint(Window& window) {
    ThreadQueue* const queue = QueueOf(window.thread);
    if (!queue || !window.pending_paint) return;
    queue->paints.erase(*window.pending_paint);
    window.pending_paint.reset();
}

// ---- Contexts. ----

HDC WINAPI GetDC(HWND handle) {
    if (!handle || handle == kDesktopWindow) return OpenDesktopContext();
    const WindowRef window = FindWindowRef(handle);
    if (!window) return nullptr;
    const std::lock_guard lock(WindowMutex());
    return OpenContext(*window, {window->client.left, window->client.top}, VisibleRegion(*window, false));
}

HDC WINAPI GetWindowDC(HWND handle) {
    if (!handle || handle == kDesktopWindow) return OpenDesktopContext();
    const WindowRef window = FindWindowRef(handle);
    if (!window) return nullptr;
    const std::lock_guard lock(WindowMutex());
    return OpenContext(*window, {window->rect.left, window->rect.top}, VisibleRegion(*window, true));
}

int WINAPI ReleaseDC(HWND, HDC dc) {
    {
        const std::lock_guard lock(WindowMutex());
        if (OpenContexts().erase(dc) == 0) return 0;
    }
    CloseSurfaceContext(dc);
    return 1;
}

namespace {

// What a child paints now, its parents must not erase later.
void TakeFromParents(const Window& window, const Region& painted) {
    for (Window* at = window.parent; at && !(at->style & WS_CLIPCHILDREN); at = at->parent)
        at->update.Subtract(painted);
}

}  // namespace

HDC WINAPI BeginPaint(HWND handle, LPPAINTSTRUCT paint) {
    const WindowRef window = FindWindowRef(handle);
    if (!window || !paint) return nullptr;
    *paint = {};
    bool frame = false;
    bool erase = false;
    Region part;
    {
        const std::lock_guard lock(WindowMutex());
        part = std::move(window->update);
        window->update = Region();
        frame = std::exchange(window->frame_dirty, false);
        erase = std::exchange(window->erase, false);
    }
    if (frame) SendMessageA(handle, WM_NCPAINT, 1, 0);
    {
        const std::lock_guard lock(WindowMutex());
        // Painting the frame may have destroyed it.
        if (!FindWindowLocked(handle)) return nullptr;
        part.Intersect(VisibleRegion(*window, false));
        TakeFromParents(*window, part);
        paint->rcPaint = part.Bounds();
        if (!part.Empty()) OffsetRect(&paint->rcPaint, -window->client.left, -window->client.top);
        paint->hdc = OpenContext(*window, {window->client.left, window->client.top}, std::move(part));
    }
    if (erase) paint->fErase = !SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0);
    return paint->hdc;
}

BOOL WINAPI EndPaint(HWND handle, const PAINTSTRUCT* paint) {
    if (!paint) return FALSE;
    // The window may be gone, its context is not.
    ReleaseDC(handle, paint->hdc);
    return IsWindow(handle);
}

// ---- Invalid parts. ----

namespace {

Region OnScreen(const Window& window, const RECT* rect) {
    if (!rect) return Region(window.client);
    RECT moved = *rect;
    OffsetRect(&moved, window.client.left, window.client.top);
    return Region(moved);
}

void PaintNow(HWND handle) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return;
    bool invalid = false;
    {
        const std::lock_guard lock(WindowMutex());
        invalid = (!window->update.Empty() || window->frame_dirty) && IsShown(*window);
    }
    if (invalid) SendMessageA(handle, WM_PAINT, 0, 0);
    for (HWND const child : ChildrenOf(handle))
        PaintNow(child);
}

}  // namespace

BOOL WINAPI RedrawWindow(HWND handle, const RECT* rect, HRGN, UINT flags) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    {
        const std::lock_guard lock(WindowMutex());
        if (flags & RDW_INVALIDATE) Invalidate(*window, OnScreen(*window, rect), flags);
        if (flags & RDW_VALIDATE) window->update.Subtract(OnScreen(*window, rect));
        if (flags & RDW_VALIDATE && !rect) window->erase = false;
    }
    if (flags & RDW_UPDATENOW) PaintNow(handle);
    return TRUE;
}

BOOL WINAPI InvalidateRect(HWND window, const RECT* rect, BOOL erase) {
    return RedrawWindow(window, rect, nullptr, RDW_INVALIDATE | (erase ? RDW_ERASE : 0));
}

BOOL WINAPI ValidateRect(HWND window, const RECT* rect) {
    return RedrawWindow(window, rect, nullptr, RDW_VALIDATE);
}

BOOL WINAPI UpdateWindow(HWND window) {
    return RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW);
}

BOOL WINAPI GetUpdateRect(HWND handle, LPRECT rect, BOOL) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    const std::lock_guard lock(WindowMutex());
    Region part = window->update;
    part.Intersect(window->client);
    RECT bounds = part.Bounds();
    if (!part.Empty()) OffsetRect(&bounds, -window->client.left, -window->client.top);
    if (rect) *rect = bounds;
    return !part.Empty();
}

BOOL WINAPI ScrollWindow(HWND handle, int dx, int dy, const RECT* rect, const RECT* clip) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return FALSE;
    dx = PlaceInRange(dx);
    dy = PlaceInRange(dy);
    std::vector<HWND> moved;
    {
        const std::lock_guard lock(WindowMutex());
        Region area = VisiblePart(*window, window->client);
        if (rect) area.Intersect(OnScreen(*window, rect));
        if (clip) area.Intersect(OnScreen(*window, clip));
        Window& root = RootOf(*window);
        if (!root.surface) return FALSE;
        Region on_surface = area;
        on_surface.Offset(-root.rect.left, -root.rect.top);
        Region exposed = ScrollSurface(*root.surface, on_surface, dx, dy);
        exposed.Offset(root.rect.left, root.rect.top);
        // What was invalid before is so at its new place.
        window->update.Offset(dx, dy);
        if (!rect)
            for (Window* const child : window->children) {
                OffsetWindow(*child, dx, dy);
                moved.push_back(child->handle);
            }
        Invalidate(*window, exposed, RDW_INVALIDATE | RDW_ERASE);
    }
    for (HWND const child : moved) {
        RECT place = {};
        if (!GetWindowRect(child, &place)) continue;
        POINT corner = {place.left, place.top};
        ScreenToClient(handle, &corner);
        SendMessageA(child, WM_MOVE, 0, MAKELPARAM(corner.x, corner.y));
    }
    return TRUE;
}
