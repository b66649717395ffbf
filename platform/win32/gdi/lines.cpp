#include <winerror.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "context.h"

// Lines and single pixels.

namespace {

// A straight line in steps along its longer direction. The first point is drawn and the last is not.
class Line {
public:
    Line(POINT from, POINT to) : from_(from) {
        const int64_t dx = int64_t{to.x} - from.x;
        const int64_t dy = int64_t{to.y} - from.y;
        flat_ = std::abs(dx) >= std::abs(dy);
        major_ = flat_ ? dx : dy;
        minor_ = flat_ ? dy : dx;
        steps_ = std::abs(major_);
    }

    // Visits the points inside `clip` only, however far the line reaches.
    template <typename Visitor>
    void Walk(const RECT& clip, Visitor visit) const {
        const int64_t start = flat_ ? from_.x : from_.y;
        const int64_t low = flat_ ? clip.left : clip.top;
        const int64_t high = flat_ ? clip.right : clip.bottom;
        const int64_t first = std::max<int64_t>(0, major_ < 0 ? start - high + 1 : low - start);
        const int64_t last = std::min(steps_, major_ < 0 ? start - low + 1 : high - start);
        const int64_t across = flat_ ? from_.y : from_.x;
        const int64_t acrossLow = flat_ ? clip.top : clip.left;
        const int64_t acrossHigh = flat_ ? clip.bottom : clip.right;
        for (int64_t step = first; step < last; ++step) {
            const int64_t along = major_ < 0 ? start - step : start + step;
            const int64_t beside = across + Deviation(step);
            if (beside < acrossLow || beside >= acrossHigh) continue;
            flat_ ? visit(static_cast<int>(along), static_cast<int>(beside))
                  : visit(static_cast<int>(beside), static_cast<int>(along));
        }
    }

private:
    // Rounded to the nearest; of two that are equally near, to the upper or left one.
    int64_t Deviation(int64_t step) const {
        const int tie = minor_ > 0 ? 1 : 0;
        const int64_t size = (2 * std::abs(minor_) * step + steps_ - tie) / (2 * steps_);
        return minor_ < 0 ? -size : size;
    }

    POINT from_;
    bool flat_ = true;
    int64_t major_ = 0;
    int64_t minor_ = 0;
    int64_t steps_ = 0;
};

RECT Spread(const RECT& rect, int by) {
    return {rect.left - by, rect.top - by, rect.right + by, rect.bottom + by};
}

void DrawThin(const DeviceContext& dc, POINT from, POINT to, uint32_t color) {
    // Along a row or column it is a fill.
    if (from.y == to.y) {
        FillClipped(dc,
                    from.x <= to.x ? RECT{from.x, from.y, to.x, from.y + 1}
                                   : RECT{to.x + 1, from.y, from.x + 1, from.y + 1},
                    color);
        return;
    }
    if (from.x == to.x) {
        FillClipped(dc,
                    from.y <= to.y ? RECT{from.x, from.y, from.x + 1, to.y}
                                   : RECT{from.x, to.y + 1, from.x + 1, from.y + 1},
                    color);
        return;
    }
    const PixelView target = dc.Target();
    const uint32_t value = Encode(target, color);
    const Line line(from, to);
    for (const RECT& clip : dc.Clip().Rects())
        line.Walk(clip, [&](int x, int y) { PutPixel(target, x, y, value); });
}

// A square of the pen's width at every point, the last one too.
void DrawWide(const DeviceContext& dc, POINT from, POINT to, const Pen& pen) {
    const RECT reach = Spread(dc.Clip().Bounds(), pen.width);
    const auto stamp = [&](int x, int y) {
        const int left = x - pen.width / 2;
        const int top = y - pen.width / 2;
        FillClipped(dc, {left, top, left + pen.width, top + pen.width}, pen.color);
    };
    Line(from, to).Walk(reach, stamp);
    stamp(to.x, to.y);
}

bool Inside(const PixelView& view, POINT point) {
    return point.x >= 0 && point.y >= 0 && point.x < view.width && point.y < view.height;
}

}  // namespace

BOOL WINAPI MoveToEx(HDC handle, int x, int y, LPPOINT former) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    const POINT before = std::exchange(dc->attributes.position, POINT{x, y});
    if (former) *former = before;
    return TRUE;
}

BOOL WINAPI LineTo(HDC handle, int x, int y) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    const POINT start = std::exchange(dc->attributes.position, POINT{x, y});
    const POINT from = dc->ToTarget(start.x, start.y);
    const POINT to = dc->ToTarget(x, y);
    const Pen& pen = *dc->pen;
    if (pen.style == PS_NULL) return TRUE;
    if (pen.width > 1)
        DrawWide(*dc, from, to, pen);
    else
        DrawThin(*dc, from, to, pen.color);
    return TRUE;
}

COLORREF WINAPI SetPixel(HDC handle, int x, int y, COLORREF color) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return CLR_INVALID;
    const POINT point = dc->ToTarget(x, y);
    const PixelView target = dc->Target();
    const uint32_t value = Encode(target, FromColorRef(color));
    if (dc->Clip().Contains(point)) PutPixel(target, point.x, point.y, value);
    // What was really set, also where nothing could be.
    return ToColorRef(target.format == PixelFormat::kIndex8 ? (*target.palette)[value] : value);
}

COLORREF WINAPI GetPixel(HDC handle, int x, int y) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return CLR_INVALID;
    const POINT point = dc->ToTarget(x, y);
    const PixelView target = dc->Target();
    return Inside(target, point) ? ToColorRef(PixelAt(target, point.x, point.y)) : CLR_INVALID;
}
