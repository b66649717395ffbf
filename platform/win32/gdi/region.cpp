#include "region.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace {

bool IsEmpty(const RECT& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

bool Meet(const RECT& a, const RECT& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

RECT Common(const RECT& a, const RECT& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

// Takes `b` up into `a` if both together are one rectangle.
bool Join(RECT& a, const RECT& b) {
    if (a.left == b.left && a.right == b.right && (a.bottom == b.top || b.bottom == a.top)) {
        a.top = std::min(a.top, b.top);
        a.bottom = std::max(a.bottom, b.bottom);
        return true;
    }
    if (a.top == b.top && a.bottom == b.bottom && (a.right == b.left || b.right == a.left)) {
        a.left = std::min(a.left, b.left);
        a.right = std::max(a.right, b.right);
        return true;
    }
    return false;
}

// What of `whole` lies outside `hole`, which meets it.
void AppendRest(const RECT& whole, const RECT& hole, std::vector<RECT>& rests) {
    const RECT common = Common(whole, hole);
    if (whole.top < common.top) rests.push_back({whole.left, whole.top, whole.right, common.top});
    if (whole.left < common.left) rests.push_back({whole.left, common.top, common.left, common.bottom});
    if (common.right < whole.right) rests.push_back({common.right, common.top, whole.right, common.bottom});
    if (common.bottom < whole.bottom) rests.push_back({whole.left, common.bottom, whole.right, whole.bottom});
}

LONG Moved(LONG value, int by) {
    using Limits = std::numeric_limits<LONG>;
    return static_cast<LONG>(std::clamp<int64_t>(int64_t{value} + by, Limits::min(), Limits::max()));
}

}  // namespace

Region::Region(const RECT& rect) {
    if (!IsEmpty(rect)) rects_.push_back(rect);
}

bool Region::Contains(POINT point) const {
    return std::any_of(rects_.begin(), rects_.end(), [&](const RECT& rect) {
        return point.x >= rect.left && point.x < rect.right && point.y >= rect.top && point.y < rect.bottom;
    });
}

RECT Region::Bounds() const {
    if (rects_.empty()) return {};
    RECT bounds = rects_.front();
    for (const RECT& rect : rects_) {
        bounds.left = std::min(bounds.left, rect.left);
        bounds.top = std::min(bounds.top, rect.top);
        bounds.right = std::max(bounds.right, rect.right);
        bounds.bottom = std::max(bounds.bottom, rect.bottom);
    }
    return bounds;
}

void Region::Add(const RECT& rect) {
    if (IsEmpty(rect)) return;
    RECT grown = rect;
    Subtract(grown);
    // Neighbours grow together, else the many small additions of a long run would make many rectangles.
    for (size_t i = 0; i < rects_.size();) {
        if (Join(grown, rects_[i])) {
            rects_.erase(rects_.begin() + static_cast<ptrdiff_t>(i));
            i = 0;
        } else {
            ++i;
        }
    }
    rects_.push_back(grown);
}

void Region::Add(const Region& other) {
    if (rects_.empty()) {
        rects_ = other.rects_;
    } else if (this != &other) {
        for (const RECT& rect : other.rects_)
            Add(rect);
    }
}

void Region::Subtract(const RECT& rect) {
    const auto meets = [&](const RECT& own) { return Meet(own, rect); };
    if (IsEmpty(rect) || std::none_of(rects_.begin(), rects_.end(), meets)) return;
    std::vector<RECT> rests;
    rests.reserve(rects_.size() + 3);
    for (const RECT& own : rects_) {
        if (Meet(own, rect))
            AppendRest(own, rect, rests);
        else
            rests.push_back(own);
    }
    rects_ = std::move(rests);
}

void Region::Subtract(const Region& other) {
    if (this == &other) {
        rects_.clear();
        return;
    }
    for (const RECT& rect : other.rects_)
        Subtract(rect);
}

void Region::Intersect(const RECT& rect) {
    for (RECT& own : rects_)
        own = Common(own, rect);
    rects_.erase(std::remove_if(rects_.begin(), rects_.end(), IsEmpty), rects_.end());
}

void Region::Intersect(const Region& other) {
    if (other.rects_.size() == 1) {
        Intersect(other.rects_.front());
        return;
    }
    std::vector<RECT> parts;
    for (const RECT& own : rects_) {
        for (const RECT& rect : other.rects_) {
            if (Meet(own, rect)) parts.push_back(Common(own, rect));
        }
    }
    rects_ = std::move(parts);
}

void Region::Offset(int dx, int dy) {
    for (RECT& rect : rects_)
        rect = {Moved(rect.left, dx), Moved(rect.top, dy), Moved(rect.right, dx), Moved(rect.bottom, dy)};
    rects_.erase(std::remove_if(rects_.begin(), rects_.end(), IsEmpty), rects_.end());
}
