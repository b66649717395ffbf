#include "pixels.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

uint32_t* Row32(const PixelView& view, int x, int y) {
    return reinterpret_cast<uint32_t*>(view.Row(y)) + x;
}
uint8_t* Row24(const PixelView& view, int x, int y) {
    return view.Row(y) + ptrdiff_t{x} * 3;
}
uint8_t* Row8(const PixelView& view, int x, int y) {
    return view.Row(y) + x;
}

uint32_t Read24(const uint8_t* pixel) {
    return pixel[0] | (uint32_t{pixel[1]} << 8) | (uint32_t{pixel[2]} << 16);
}
void Write24(uint8_t* pixel, uint32_t value) {
    pixel[0] = static_cast<uint8_t>(value);
    pixel[1] = static_cast<uint8_t>(value >> 8);
    pixel[2] = static_cast<uint8_t>(value >> 16);
}

uint32_t Distance(uint32_t a, uint32_t b) {
    uint32_t sum = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int difference = static_cast<int>((a >> shift) & 0xff) - static_cast<int>((b >> shift) & 0xff);
        sum += static_cast<uint32_t>(difference * difference);
    }
    return sum;
}

uint32_t NearestIndex(const Palette& palette, uint32_t color) {
    size_t best = 0;
    uint32_t bestDistance = Distance(palette[0], color);
    for (size_t i = 1; i < palette.size() && bestDistance > 0; ++i) {
        const uint32_t distance = Distance(palette[i], color);
        if (distance < bestDistance) {
            bestDistance = distance;
            best = i;
        }
    }
    return static_cast<uint32_t>(best);
}

size_t BytesOf(PixelFormat format) {
    switch (format) {
        case PixelFormat::kIndex8: return 1;
        case PixelFormat::kBgr24: return 3;
        case PixelFormat::kRgb32: break;
    }
    return 4;
}

bool SameEncoding(const PixelView& a, const PixelView& b) {
    if (a.format != b.format) return false;
    return a.format != PixelFormat::kIndex8 || a.palette == b.palette || *a.palette == *b.palette;
}

void MoveRow(const PixelView& target, int x, int y, const PixelView& source, int fromX, int fromY,
             size_t bytes, size_t perPixel) {
    std::memmove(target.Row(y) + static_cast<ptrdiff_t>(perPixel) * x,
                 source.Row(fromY) + static_cast<ptrdiff_t>(perPixel) * fromX, bytes);
}

}  // namespace

PixelView ViewOf(Surface& surface) {
    PixelView view;
    view.top = reinterpret_cast<uint8_t*>(surface.pixels.data());
    view.stride = ptrdiff_t{surface.width} * 4;
    view.width = surface.width;
    view.height = surface.height;
    return view;
}

uint32_t Encode(const PixelView& view, uint32_t color) {
    return view.format == PixelFormat::kIndex8 ? NearestIndex(*view.palette, color) : color & 0xffffff;
}

uint32_t PixelAt(const PixelView& view, int x, int y) {
    uint32_t color = 0;
    ReadRow(view, x, y, 1, &color);
    return color;
}

void PutPixel(const PixelView& view, int x, int y, uint32_t value) {
    switch (view.format) {
        case PixelFormat::kIndex8: *Row8(view, x, y) = static_cast<uint8_t>(value); break;
        case PixelFormat::kBgr24: Write24(Row24(view, x, y), value); break;
        case PixelFormat::kRgb32: *Row32(view, x, y) = value; break;
    }
}

void FillRow(const PixelView& view, int x, int y, int count, uint32_t value) {
    switch (view.format) {
        case PixelFormat::kIndex8:
            std::memset(Row8(view, x, y), static_cast<int>(value), static_cast<size_t>(count));
            break;
        case PixelFormat::kBgr24: {
            uint8_t* pixel = Row24(view, x, y);
            for (int i = 0; i < count; ++i, pixel += 3)
                Write24(pixel, value);
            break;
        }
        case PixelFormat::kRgb32: std::fill_n(Row32(view, x, y), count, value); break;
    }
}

void InvertRow(const PixelView& view, int x, int y, int count, uint32_t mask) {
    switch (view.format) {
        case PixelFormat::kIndex8: {
            uint8_t* pixel = Row8(view, x, y);
            for (int i = 0; i < count; ++i)
                pixel[i] = static_cast<uint8_t>(pixel[i] ^ mask);
            break;
        }
        case PixelFormat::kBgr24: {
            uint8_t* pixel = Row24(view, x, y);
            for (int i = 0; i < count; ++i, pixel += 3)
                Write24(pixel, Read24(pixel) ^ mask);
            break;
        }
        case PixelFormat::kRgb32: {
            uint32_t* pixel = Row32(view, x, y);
            for (int i = 0; i < count; ++i)
                pixel[i] ^= mask;
            break;
        }
    }
}

void FillRect(const PixelView& view, const RECT& rect, uint32_t value) {
    for (int y = rect.top; y < rect.bottom; ++y)
        FillRow(view, rect.left, y, rect.right - rect.left, value);
}

void InvertRect(const PixelView& view, const RECT& rect, uint32_t mask) {
    for (int y = rect.top; y < rect.bottom; ++y)
        InvertRow(view, rect.left, y, rect.right - rect.left, mask);
}

void ReadRow(const PixelView& view, int x, int y, int count, uint32_t* colors) {
    switch (view.format) {
        case PixelFormat::kIndex8: {
            const uint8_t* pixel = Row8(view, x, y);
            const Palette& palette = *view.palette;
            for (int i = 0; i < count; ++i)
                colors[i] = pixel[i] < palette.size() ? palette[pixel[i]] : 0;
            break;
        }
        case PixelFormat::kBgr24: {
            const uint8_t* pixel = Row24(view, x, y);
            for (int i = 0; i < count; ++i, pixel += 3)
                colors[i] = Read24(pixel);
            break;
        }
        case PixelFormat::kRgb32: {
            // A caller's pixels need not stand at a multiple of 4.
            std::memcpy(colors, view.Row(y) + ptrdiff_t{x} * 4, static_cast<size_t>(count) * 4);
            for (int i = 0; i < count; ++i)
                colors[i] &= 0xffffff;
            break;
        }
    }
}

void WriteRow(const PixelView& view, int x, int y, int count, const uint32_t* colors) {
    switch (view.format) {
        case PixelFormat::kIndex8: {
            uint8_t* pixel = Row8(view, x, y);
            for (int i = 0; i < count; ++i) {
                // Neighbours are often alike, and a search goes through the whole palette.
                const bool repeated = i > 0 && colors[i] == colors[i - 1];
                pixel[i] = repeated ? pixel[i - 1] : static_cast<uint8_t>(Encode(view, colors[i]));
            }
            break;
        }
        case PixelFormat::kBgr24: {
            uint8_t* pixel = Row24(view, x, y);
            for (int i = 0; i < count; ++i, pixel += 3)
                Write24(pixel, colors[i]);
            break;
        }
        case PixelFormat::kRgb32: std::copy_n(colors, count, Row32(view, x, y)); break;
    }
}

void CopyPixels(const PixelView& target, const RECT& to, const PixelView& source, POINT from) {
    const int width = to.right - to.left;
    const int height = to.bottom - to.top;
    const bool same = SameEncoding(target, source);
    const size_t perPixel = BytesOf(target.format);
    std::vector<uint32_t> row(same ? 0 : static_cast<size_t>(width));
    // Down from the top or up from the bottom, so that an overlapping source is read before it is changed.
    const bool upwards = to.top > from.y;
    for (int i = 0; i < height; ++i) {
        const int line = upwards ? height - 1 - i : i;
        if (same) {
            MoveRow(target, to.left, to.top + line, source, from.x, from.y + line,
                    perPixel * static_cast<size_t>(width), perPixel);
        } else {
            ReadRow(source, from.x, from.y + line, width, row.data());
            WriteRow(target, to.left, to.top + line, width, row.data());
        }
    }
}
