#include "window_bitmap.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr size_t kFileHeaderSize = 14;

BITMAPINFO BottomUp24(LONG width, LONG height) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 24;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

bool WriteBitmapFile(const char* file, const BITMAPINFOHEADER& header, const void* bits) {
    const auto row = static_cast<uint32_t>((header.biWidth * 3 + 3) / 4 * 4);
    const uint32_t size = row * static_cast<uint32_t>(header.biHeight);
    const auto offset = static_cast<uint32_t>(kFileHeaderSize + sizeof header);
    const uint32_t total = offset + size;
    unsigned char start[kFileHeaderSize] = {'B', 'M'};
    std::memcpy(start + 2, &total, sizeof total);
    std::memcpy(start + 10, &offset, sizeof offset);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(std::fopen(file, "wb"), &std::fclose);
    if (!out) return false;
    const bool written = std::fwrite(start, sizeof start, 1, out.get()) == 1 &&
                         std::fwrite(&header, sizeof header, 1, out.get()) == 1 &&
                         std::fwrite(bits, size, 1, out.get()) == 1;
    return written && std::fflush(out.get()) == 0;
}

}  // namespace

bool SaveWindowBitmap(HWND window, const char* file) {
    RECT rect = {};
    if (!GetWindowRect(window, &rect)) return false;
    const LONG width = rect.right - rect.left;
    const LONG height = rect.bottom - rect.top;
    const BITMAPINFO info = BottomUp24(width, height);
    void* bits = nullptr;
    const HDC shown = GetWindowDC(window);
    const HDC copy = CreateCompatibleDC(shown);
    const HBITMAP bitmap = CreateDIBSection(copy, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    bool saved = false;
    if (bitmap) {
        const HGDIOBJ former = SelectObject(copy, bitmap);
        saved = BitBlt(copy, 0, 0, width, height, shown, 0, 0, SRCCOPY) && GdiFlush() &&
                WriteBitmapFile(file, info.bmiHeader, bits);
        SelectObject(copy, former);
        DeleteObject(bitmap);
    }
    DeleteDC(copy);
    ReleaseDC(window, shown);
    return saved;
}
