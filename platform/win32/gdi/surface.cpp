#include "surface.h"

#include <algorithm>

#include "pixels.h"

Surface::Surface(int columns, int rows)
    : width(std::max(columns, 0)),
      height(std::max(rows, 0)),
      pixels(static_cast<size_t>(width) * static_cast<size_t>(height)) {}

std::mutex& DrawingMutex() {
    static std::mutex& mutex = *new std::mutex;
    return mutex;
}

Region ScrollSurface(Surface& surface, const Region& clip, int dx, int dy) {
    const std::lock_guard lock(DrawingMutex());
    Region inside = clip;
    inside.Intersect(RECT{0, 0, surface.width, surface.height});
    Region moved = inside;
    moved.Offset(dx, dy);
    moved.Intersect(inside);

    const PixelView view = ViewOf(surface);
    if (moved.Rects().size() == 1) {
        const RECT& place = moved.Rects().front();
        CopyPixels(view, place, view, {place.left - dx, place.top - dy});
    } else if (!moved.Empty()) {
        // No order of several rectangles is right for every direction: what one writes another still has to
        // read.
        std::vector<uint32_t> before = surface.pixels;
        PixelView source = view;
        source.top = reinterpret_cast<uint8_t*>(before.data());
        for (const RECT& place : moved.Rects())
            CopyPixels(view, place, source, {place.left - dx, place.top - dy});
    }
    inside.Subtract(moved);
    return inside;
}
