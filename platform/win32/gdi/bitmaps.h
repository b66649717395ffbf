#pragma once

#include <wingdi.h>

#include <optional>

#include "pixels.h"

// What a bitmap header says, checked.
struct DibLayout {
    int width = 0;
    int height = 0;
    bool topDown = false;
    PixelFormat format = PixelFormat::kRgb32;
    ptrdiff_t stride = 0;  // bytes per row, a multiple of 4
    Palette palette;       // 256 colours where a pixel has 8 bits
};

// Nothing for a header that is not understood, or whose pixels would not fit into memory. Uncompressed pixels
// of 8, 24 and 32 bits are. `usage` is DIB_..._COLORS.
std::optional<DibLayout> ReadLayout(const BITMAPINFO* info, UINT usage);
