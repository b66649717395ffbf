#include "bitmaps.h"

#include <winerror.h>

#include <algorithm>
#include <array>
#include <limits>

#include "context.h"

namespace {

constexpr int64_t kMostBytes = std::numeric_limits<LONG>::max();

// The palette of a context into which nobody selected one.
constexpr std::array<uint32_t, 20> kDefaultPalette = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xc0c0c0, 0xc0dcc0, 0xa6caf0,
    0xfffbf0, 0xa0a0a4, 0x808080, 0xff0000, 0x00ff00, 0xffff00, 0x0000ff, 0xff00ff, 0x00ffff, 0xffffff};

int BitsOf(PixelFormat format) {
    switch (format) {
        case PixelFormat::kIndex8: return 8;
        case PixelFormat::kBgr24: return 24;
        case PixelFormat::kRgb32: break;
    }
    return 32;
}

int64_t StrideOf(int64_t width, PixelFormat format) {
    return (width * BitsOf(format) + 31) / 32 * 4;
}

std::optional<PixelFormat> FormatOf(WORD bits) {
    switch (bits) {
        case 8: return PixelFormat::kIndex8;
        case 24: return PixelFormat::kBgr24;
        case 32: return PixelFormat::kRgb32;
        default: return std::nullopt;
    }
}

Palette ReadPalette(const BITMAPINFO& info, UINT usage) {
    Palette palette(256);
    const DWORD used = info.bmiHeader.biClrUsed;
    const size_t count = used == 0 ? 256 : std::min<size_t>(used, 256);
    const RGBQUAD* colors = info.bmiColors;
    if (usage == DIB_PAL_COLORS) {
        const WORD* indexes = reinterpret_cast<const WORD*>(colors);
        for (size_t i = 0; i < count; ++i)
            palette[i] = kDefaultPalette[indexes[i] % kDefaultPalette.size()];
    } else {
        for (size_t i = 0; i < count; ++i)
            palette[i] =
                colors[i].rgbBlue | uint32_t{colors[i].rgbGreen} << 8 | uint32_t{colors[i].rgbRed} << 16;
    }
    return palette;
}

BITMAPINFOHEADER HeaderOf(const Bitmap& bitmap, const DibLayout& layout) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = layout.width;
    header.biHeight = layout.height;
    header.biPlanes = 1;
    header.biBitCount = bitmap.record.bmBitsPixel;
    header.biSizeImage = static_cast<DWORD>(layout.stride * layout.height);
    header.biClrUsed = static_cast<DWORD>(layout.palette.size());
    return header;
}

HBITMAP NoBitmap(DWORD error) {
    SetLastError(error);
    return nullptr;
}

HBITMAP Keep(std::unique_ptr<Bitmap> bitmap) {
    return static_cast<HBITMAP>(ObjectTable::Instance().Add(std::move(bitmap)));
}

}  // namespace

std::optional<DibLayout> ReadLayout(const BITMAPINFO* info, UINT usage) {
    if (!info || usage > DIB_PAL_COLORS) return std::nullopt;
    const BITMAPINFOHEADER& header = info->bmiHeader;
    const auto format = FormatOf(header.biBitCount);
    if (header.biSize != sizeof header || header.biPlanes != 1 || header.biCompression != BI_RGB || !format ||
        header.biWidth <= 0 || header.biHeight == 0) {
        return std::nullopt;
    }
    const int64_t rows = std::abs(int64_t{header.biHeight});
    const int64_t stride = StrideOf(header.biWidth, *format);
    if (stride > kMostBytes / rows) return std::nullopt;
    DibLayout layout;
    layout.width = header.biWidth;
    layout.height = static_cast<int>(rows);
    layout.topDown = header.biHeight < 0;
    layout.format = *format;
    layout.stride = static_cast<ptrdiff_t>(stride);
    if (*format == PixelFormat::kIndex8) layout.palette = ReadPalette(*info, usage);
    return layout;
}

std::unique_ptr<Bitmap> MakeBitmap(int width, int height, PixelFormat format, bool topDown, Palette palette) {
    const int64_t stride = StrideOf(width, format);
    if (stride > kMostBytes / height) return nullptr;
    auto bitmap = std::make_unique<Bitmap>();
    bitmap->memory.reset(std::calloc(static_cast<size_t>(height), static_cast<size_t>(stride)));
    if (!bitmap->memory) return nullptr;
    auto* bytes = static_cast<uint8_t*>(bitmap->memory.get());
    bitmap->palette = std::move(palette);
    PixelView& view = bitmap->view;
    view.top = topDown ? bytes : bytes + stride * (height - 1);
    view.stride = static_cast<ptrdiff_t>(topDown ? stride : -stride);
    view.width = width;
    view.height = height;
    view.format = format;
    view.palette = &bitmap->palette;
    BITMAP& record = bitmap->record;
    record.bmWidth = width;
    record.bmHeight = height;
    record.bmWidthBytes = static_cast<LONG>(stride);
    record.bmPlanes = 1;
    record.bmBitsPixel = static_cast<WORD>(BitsOf(format));
    return bitmap;
}

HBITMAP WINAPI CreateCompatibleBitmap(HDC like, int width, int height) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(like);
    if (!dc) return nullptr;
    if (width == 0 || height == 0) return static_cast<HBITMAP>(ObjectTable::Instance().StockBitmap().handle);
    // A negative side counts without its sign.
    const int columns = std::abs(std::max(width, -std::numeric_limits<int>::max()));
    const int rows = std::abs(std::max(height, -std::numeric_limits<int>::max()));
    const PixelView target = dc->Target();
    const bool indexed = target.format == PixelFormat::kIndex8;
    auto bitmap = MakeBitmap(columns, rows, target.format, true, indexed ? *target.palette : Palette());
    if (!bitmap) return NoBitmap(ERROR_INVALID_PARAMETER);
    if (dc->bitmap && dc->bitmap->record.bmBitsPixel == 1) {
        bitmap->record.bmBitsPixel = 1;
        bitmap->record.bmWidthBytes = static_cast<LONG>((int64_t{columns} + 15) / 16 * 2);
    }
    return Keep(std::move(bitmap));
}

HBITMAP WINAPI CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, LPVOID* bits, HANDLE section,
                                DWORD) {
    if (bits) *bits = nullptr;
    const auto layout = ReadLayout(info, usage);
    // Colours by index into a palette need a context, which has one.
    const bool withoutPalette = layout && !layout->palette.empty() && usage == DIB_PAL_COLORS && !dc;
    if (!layout || withoutPalette || section) return NoBitmap(ERROR_INVALID_PARAMETER);
    const std::lock_guard lock(DrawingMutex());
    auto bitmap = MakeBitmap(layout->width, layout->height, layout->format, layout->topDown, layout->palette);
    if (!bitmap) return NoBitmap(ERROR_NOT_ENOUGH_MEMORY);
    bitmap->section = true;
    bitmap->record.bmBits = bitmap->memory.get();
    bitmap->header = HeaderOf(*bitmap, *layout);
    void* const memory = bitmap->memory.get();
    const HBITMAP handle = Keep(std::move(bitmap));
    if (handle && bits) *bits = memory;
    return handle;
}

BOOL WINAPI GdiFlush() {
    return TRUE;
}
