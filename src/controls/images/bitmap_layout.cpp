#include "controls/images/bitmap_layout.h"

#include <climits>
#include <cstdint>
#include <cstring>

#include "controls/images/pixel_order.h"

bool LayOutBitmap(int width, int height, int bytesPerPixel, BitmapLayout& layout) {
    if ((bytesPerPixel != 1 && bytesPerPixel != 3) || width < 1 || height < 1) return false;
    const int64_t strideWidth = (int64_t{width} + 3) / 4 * 4;
    if (strideWidth * bytesPerPixel > INT_MAX / height) return false;
    layout = {width, static_cast<int>(strideWidth), height, bytesPerPixel};
    return true;
}

void StoreBitmapRows(const BitmapLayout& layout, const unsigned char* pixels, unsigned char* bits) {
    const auto width = static_cast<size_t>(layout.width);
    unsigned char* row = bits + layout.Size();
    for (int i = 0; i < layout.height; ++i) {
        row -= layout.RowSize();
        if (layout.bytesPerPixel == 1)
            std::memcpy(row, pixels, width);
        else
            SwapRedAndBlue(pixels, width, row);
        pixels += width * static_cast<size_t>(layout.bytesPerPixel);
    }
}

void StoreColorTable(const unsigned char* palette, unsigned char* table) {
    for (int i = 0; i < 256; ++i, palette += 3, table += 4) {
        table[0] = palette[2];
        table[1] = palette[1];
        table[2] = palette[0];
        table[3] = 0;
    }
}
