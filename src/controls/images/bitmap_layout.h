#pragma once

#include <cstddef>

// The form in which a device-independent bitmap holds a picture: rows from the bottom up, each of a whole
// multiple of four pixels; colours as blue, green, red, in its colour table with a 0 behind them.

struct BitmapLayout {
    int width = 0;        // of the picture, in pixels
    int strideWidth = 0;  // of the bitmap: the width rounded up to a multiple of four
    int height = 0;
    int bytesPerPixel = 0;  // 1 or 3

    int BitCount() const { return bytesPerPixel * 8; }
    int ColorsUsed() const { return bytesPerPixel == 1 ? 256 : 0; }
    size_t RowSize() const { return static_cast<size_t>(strideWidth) * static_cast<size_t>(bytesPerPixel); }
    size_t Size() const { return RowSize() * static_cast<size_t>(height); }
};

// False when there is no bitmap of such a picture: other bytes per pixel than 1 and 3, a side below 1, or a
// bitmap of 2^31 bytes or more. `layout` is set on success only.
bool LayOutBitmap(int width, int height, int bytesPerPixel, BitmapLayout& layout);

// Writes the picture's rows into the layout.Size() bytes of the bitmap; what pads its rows is left alone.
// `pixels` come from top to bottom without padding, as palette indices or red, green, blue.
void StoreBitmapRows(const BitmapLayout& layout, const unsigned char* pixels, unsigned char* bits);

// 256 entries of red, green, blue to the 1024 bytes of a colour table.
void StoreColorTable(const unsigned char* palette, unsigned char* table);
