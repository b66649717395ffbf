#include <winuser.h>

#include <algorithm>

#include "../errors.h"
#include "context.h"
#include "wrapping.h"

// Rectangles: filled, framed, inverted, and the edges of the classic look.

namespace {

RECT Ordered(const RECT& rect) {
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}

struct EdgeColors {
    int topLeft;
    int bottomRight;
};

void DrawSides(const DeviceContext& dc, const RECT& rect, UINT flags, EdgeColors colors) {
    const uint32_t light = SystemColor(colors.topLeft);
    const uint32_t dark = SystemColor(colors.bottomRight);
    if (flags & BF_TOP) FillClipped(dc, {rect.left, rect.top, rect.right, Sum(rect.top, 1)}, light);
    if (flags & BF_LEFT) FillClipped(dc, {rect.left, rect.top, Sum(rect.left, 1), rect.bottom}, light);
    if (flags & BF_RIGHT)
        FillClipped(dc, {Difference(rect.right, 1), rect.top, rect.right, rect.bottom}, dark);
    if (flags & BF_BOTTOM)
        FillClipped(dc, {rect.left, Difference(rect.bottom, 1), rect.right, rect.bottom}, dark);
}

void Shrink(RECT& rect, UINT flags) {
    if (flags & BF_LEFT) rect.left = Sum(rect.left, 1);
    if (flags & BF_TOP) rect.top = Sum(rect.top, 1);
    if (flags & BF_RIGHT) rect.right = Difference(rect.right, 1);
    if (flags & BF_BOTTOM) rect.bottom = Difference(rect.bottom, 1);
}

}  // namespace

int WINAPI FillRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    const Brush* found = FindBrush(brush);
    if (!found) return Fail(ERROR_INVALID_HANDLE);
    if (!rect) return Fail(ERROR_INVALID_PARAMETER);
    RECT target = dc->ToTarget(*rect);
    // Sides in the wrong order reach back, up to and including the starting point.
    if (target.right < target.left) target = {target.right + 1, target.top, target.left + 1, target.bottom};
    if (target.bottom < target.top) target = {target.left, target.bottom + 1, target.right, target.top + 1};
    if (!found->hollow) FillClipped(*dc, target, found->color);
    return TRUE;
}

int WINAPI FrameRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    const Brush* found = FindBrush(brush);
    if (!found) return Fail(ERROR_INVALID_HANDLE);
    if (!rect || IsEmpty(*rect)) return Fail(ERROR_INVALID_PARAMETER);
    const RECT frame = dc->ToTarget(*rect);
    if (found->hollow) return TRUE;
    FillClipped(*dc, {frame.left, frame.top, frame.right, frame.top + 1}, found->color);
    FillClipped(*dc, {frame.left, frame.bottom - 1, frame.right, frame.bottom}, found->color);
    FillClipped(*dc, {frame.left, frame.top, frame.left + 1, frame.bottom}, found->color);
    FillClipped(*dc, {frame.right - 1, frame.top, frame.right, frame.bottom}, found->color);
    return TRUE;
}

BOOL WINAPI InvertRect(HDC dc, const RECT* rect) {
    if (!rect) return Fail(ERROR_INVALID_PARAMETER);
    const auto size = [](LONG from, LONG to) {
        return static_cast<int>(std::clamp<int64_t>(int64_t{to} - from, -0x7fffffff, 0x7fffffff));
    };
    return PatBlt(dc, rect->left, rect->top, size(rect->left, rect->right), size(rect->top, rect->bottom),
                  DSTINVERT);
}

BOOL WINAPI DrawFocusRect(HDC handle, const RECT* rect) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    if (!rect) return Fail(ERROR_INVALID_PARAMETER);
    const RECT frame = dc->ToTarget(Ordered(*rect));
    if (IsEmpty(frame)) return TRUE;
    const PixelView target = dc->Target();
    const uint32_t mask = Encode(target, 0xffffff) ^ Encode(target, 0);
    // Every other pixel on the way round, the upper right corner among them.
    const auto dot = [&](int x, int y) {
        if (((x - frame.right + 1 + y - frame.top) & 1) == 0) InvertRow(target, x, y, 1, mask);
    };
    for (const RECT& clip : dc->Clip().Rects()) {
        const RECT part = Intersection(frame, clip);
        for (int y = part.top; y < part.bottom; ++y) {
            if (y == frame.top || y == frame.bottom - 1) {
                for (int x = part.left; x < part.right; ++x)
                    dot(x, y);
                continue;
            }
            if (part.left == frame.left) dot(frame.left, y);
            if (part.right == frame.right && frame.right - frame.left > 1) dot(frame.right - 1, y);
        }
    }
    return TRUE;
}

BOOL WINAPI DrawEdge(HDC handle, LPRECT rect, UINT edge, UINT flags) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    if (!rect) return Fail(ERROR_INVALID_PARAMETER);
    RECT inner = dc->ToTarget(*rect);
    RECT rest = *rect;
    const auto ring = [&](UINT raised, UINT sunken, EdgeColors up, EdgeColors down) {
        if (!(edge & (raised | sunken))) return;
        DrawSides(*dc, inner, flags, edge & raised ? up : down);
        Shrink(inner, flags);
        Shrink(rest, flags);
    };
    ring(BDR_RAISEDOUTER, BDR_SUNKENOUTER, {COLOR_3DLIGHT, COLOR_3DDKSHADOW},
         {COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT});
    ring(BDR_RAISEDINNER, BDR_SUNKENINNER, {COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW},
         {COLOR_3DDKSHADOW, COLOR_3DLIGHT});
    if (flags & BF_MIDDLE) FillClipped(*dc, inner, SystemColor(COLOR_BTNFACE));
    if (flags & BF_ADJUST) *rect = rest;
    return TRUE;
}
