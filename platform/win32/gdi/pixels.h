#pragma once

#include <windef.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "surface.h"

// Colours as 0x00RRGGBB.
using Palette = std::vector<uint32_t>;

constexpr uint32_t FromColorRef(COLORREF color) {
    return ((color & 0xff) << 16) | (color & 0xff00) | ((color >> 16) & 0xff);
}
constexpr COLORREF ToColorRef(uint32_t pixel) {
    return FromColorRef(pixel);
}

enum class PixelFormat : uint8_t { kIndex8, kBgr24, kRgb32 };

// Pixels in somebody's memory. Coordinates and counts that are given below lie inside.
struct PixelView {
    uint8_t* top = nullptr;  // the first byte of the topmost row
    ptrdiff_t stride = 0;    // bytes to the row below; negative where rows stand bottom up
    int width = 0;
    int height = 0;
    PixelFormat format = PixelFormat::kRgb32;
    const Palette* palette = nullptr;  // of kIndex8, never empty

    uint8_t* Row(int y) const { return top + stride * y; }
};

PixelView ViewOf(Surface& surface);

// What is stored for a colour: itself, or the index of the nearest one.
uint32_t Encode(const PixelView& view, uint32_t color);

uint32_t PixelAt(const PixelView& view, int x, int y);
// `value` is encoded.
void PutPixel(const PixelView& view, int x, int y, uint32_t value);
void FillRow(const PixelView& view, int x, int y, int count, uint32_t value);
void InvertRow(const PixelView& view, int x, int y, int count, uint32_t mask);
void FillRect(const PixelView& view, const RECT& rect, uint32_t value);
void InvertRect(const PixelView& view, const RECT& rect, uint32_t mask);

void ReadRow(const PixelView& view, int x, int y, int count, uint32_t* colors);
void WriteRow(const PixelView& view, int x, int y, int count, const uint32_t* colors);

// Fills `to` from the place `from` of another view or the same, which may overlap.
void CopyPixels(const PixelView& target, const RECT& to, const PixelView& source, POINT from);
