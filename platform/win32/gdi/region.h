#pragma once

#include <windef.h>

#include <vector>

// A set of points, kept as rectangles that do not overlap. Empty rectangles are never kept.
class Region {
public:
    Region() = default;
    explicit Region(const RECT& rect);

    bool Empty() const { return rects_.empty(); }
    bool Contains(POINT point) const;
    // The smallest rectangle that holds it; all 0 when empty.
    RECT Bounds() const;
    const std::vector<RECT>& Rects() const { return rects_; }

    void Add(const RECT& rect);
    void Add(const Region& other);
    void Subtract(const RECT& rect);
    void Subtract(const Region& other);
    void Intersect(const RECT& rect);
    void Intersect(const Region& other);
    void Offset(int dx, int dy);

private:
    std::vector<RECT> rects_;
};
