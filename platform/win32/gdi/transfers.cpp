#include <algorithm>

#include "../errors.h"
#include "bitmaps.h"
#include "context.h"

// Blocks of pixels: filled, moved between contexts, and set from the caller's memory.

namespace {

// A size below 0 reaches back, up to and including the starting point.
void Straighten(int& start, int& size) {
    if (size >= 0) return;
    const int64_t first = int64_t{start} + size + 1;
    start = static_cast<int>(std::max<int64_t>(first, -0x7fffffff));
    size = -std::max(size, -0x7fffffff);
}

RECT Block(const DeviceContext& dc, int x, int y, int width, int height) {
    Straighten(x, width);
    Straighten(y, height);
    const POINT start = dc.ToTarget(x, y);
    const auto end = [](LONG from, int size) {
        return static_cast<LONG>(std::min<int64_t>(int64_t{from} + size, 0x1fff'ffff));
    };
    return {start.x, start.y, end(start.x, width), end(start.y, height)};
}

uint32_t AllBits(const DeviceContext& dc) {
    if (dc.bitmap && dc.bitmap->record.bmBitsPixel == 1) return 1;
    return dc.Target().format == PixelFormat::kIndex8 ? 0xff : 0xffffff;
}

BOOL ApplyPattern(const DeviceContext& dc, const RECT& rect, DWORD operation) {
    switch (operation) {
        case PATCOPY:
            if (!dc.brush->hollow) FillClipped(dc, rect, dc.brush->color);
            return TRUE;
        case PATINVERT:
            if (!dc.brush->hollow) InvertClipped(dc, rect, Encode(dc.Target(), dc.brush->color));
            return TRUE;
        case DSTINVERT: InvertClipped(dc, rect, AllBits(dc)); return TRUE;
        default: return Fail(ERROR_INVALID_PARAMETER);
    }
}

// The rows of a block by themselves, for a source that the copy is about to change.
struct Snapshot {
    Snapshot(const PixelView& source, const RECT& part)
        : pixels(static_cast<size_t>(part.right - part.left) * static_cast<size_t>(part.bottom - part.top)) {
        view.width = part.right - part.left;
        view.height = part.bottom - part.top;
        view.stride = ptrdiff_t{view.width} * 4;
        view.top = reinterpret_cast<uint8_t*>(pixels.data());
        CopyPixels(view, {0, 0, view.width, view.height}, source, {part.left, part.top});
    }

    std::vector<uint32_t> pixels;
    PixelView view;
};

RECT Moved(const RECT& rect, int dx, int dy) {
    return {rect.left + dx, rect.top + dy, rect.right + dx, rect.bottom + dy};
}

// Copies the block `from` to where `to` stands. What lies outside of the source stays as it is.
void CopyClipped(const DeviceContext& dc, const RECT& to, const PixelView& source, const RECT& from) {
    const int dx = to.left - from.left;
    const int dy = to.top - from.top;
    const RECT available = Intersection(from, {0, 0, source.width, source.height});
    if (IsEmpty(available)) return;
    const RECT reached = Moved(available, dx, dy);
    const PixelView target = dc.Target();
    const auto& clip = dc.Clip().Rects();
    if (clip.size() > 1 && source.top == target.top) {
        const Snapshot snapshot(source, available);
        for (const RECT& each : clip) {
            const RECT part = Intersection(reached, each);
            CopyPixels(target, part, snapshot.view, {part.left - reached.left, part.top - reached.top});
        }
        return;
    }
    for (const RECT& each : clip) {
        const RECT part = Intersection(reached, each);
        if (!IsEmpty(part)) CopyPixels(target, part, source, {part.left - dx, part.top - dy});
    }
}

// The lines of an image that a call may set, counted from the bottom of the image.
struct Lines {
    int64_t first = 0;  // of those in the buffer
    int64_t count = 0;  // of those in the buffer
    int64_t low = 0;    // of those to be set
    int64_t high = 0;   // behind the last one of those
    int set = 0;        // the result of the call
};

Lines SelectLines(const DibLayout& layout, int fromY, DWORD height, UINT start, UINT count) {
    Lines lines;
    if (start >= static_cast<UINT>(layout.height)) return lines;
    lines.first = start;
    // Top-down images are not cut off where they end.
    lines.count = std::min<int64_t>(count, layout.topDown ? layout.height : layout.height - int64_t{start});
    const int64_t end = lines.first + lines.count;
    if (fromY >= end) return lines;
    lines.low = std::max<int64_t>(start, fromY);
    lines.high = std::min<int64_t>(end, int64_t{fromY} + height);
    if (layout.topDown)
        lines.set = static_cast<int>(lines.count);
    else if (lines.low < lines.high)
        lines.set = static_cast<int>(lines.high - lines.first);
    return lines;
}

RECT Narrow(int64_t left, int64_t top, int64_t right, int64_t bottom) {
    return {static_cast<LONG>(left), static_cast<LONG>(top), static_cast<LONG>(right),
            static_cast<LONG>(bottom)};
}

// The buffer's rows from the top of the image down.
PixelView BufferView(const DibLayout& layout, LPCVOID bits, int64_t rows) {
    auto* bytes = static_cast<uint8_t*>(const_cast<void*>(bits));
    PixelView view;
    view.top = layout.topDown ? bytes : bytes + layout.stride * (rows - 1);
    view.stride = layout.topDown ? layout.stride : -layout.stride;
    view.width = layout.width;
    view.format = layout.format;
    view.palette = &layout.palette;
    return view;
}

}  // namespace

BOOL WINAPI PatBlt(HDC handle, int x, int y, int width, int height, DWORD operation) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    return dc && ApplyPattern(*dc, Block(*dc, x, y, width, height), operation);
}

BOOL WINAPI BitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY,
                   DWORD operation) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(to);
    if (!dc) return FALSE;
    const RECT block = Block(*dc, x, y, width, height);
    if (operation != SRCCOPY) return ApplyPattern(*dc, block, operation);
    const DeviceContext* source = DeviceContext::Find(from);
    if (!source) return FALSE;
    CopyClipped(*dc, block, source->Target(), Block(*source, fromX, fromY, width, height));
    return TRUE;
}

int WINAPI SetDIBitsToDevice(HDC handle, int x, int y, DWORD width, DWORD height, int fromX, int fromY,
                             UINT startScan, UINT scanLines, LPCVOID bits, const BITMAPINFO* info,
                             UINT usage) {
    const auto layout = ReadLayout(info, usage);
    if (!layout || !bits) return Fail(ERROR_INVALID_PARAMETER);
    if (width == 0 || height == 0 || fromX >= layout->width) return 0;
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return 0;
    const Lines lines = SelectLines(*layout, fromY, height, startScan, scanLines);
    if (lines.low >= lines.high) return lines.set;

    const int64_t left = std::max(fromX, 0);
    const int64_t right = std::min<int64_t>(layout->width, int64_t{fromX} + width);
    const POINT target = dc->ToTarget(x, y);
    // The place of the image's first column and, counted from the bottom, first line.
    const int64_t column = int64_t{target.x} - fromX;
    const int64_t bottom = int64_t{target.y} + height - 1 + fromY;
    const PixelView buffer = BufferView(*layout, bits, lines.count);
    const PixelView pixels = dc->Target();
    for (const RECT& clip : dc->Clip().Rects()) {
        const int64_t from = std::max(left, clip.left - column);
        const int64_t to = std::min(right, clip.right - column);
        const int64_t low = std::max(lines.low, bottom - (clip.bottom - 1));
        const int64_t high = std::min(lines.high, bottom - clip.top + 1);
        if (from >= to || low >= high) continue;
        const int64_t row = lines.count - (high - lines.first);
        CopyPixels(pixels, Narrow(column + from, bottom - high + 1, column + to, bottom - low + 1), buffer,
                   {static_cast<LONG>(from), static_cast<LONG>(row)});
    }
    return lines.set;
}
