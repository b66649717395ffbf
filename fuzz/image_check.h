#pragma once

#include <cstdlib>
#include <cstring>
#include <vector>

#include "controls/images/bitmap_layout.h"
#include "controls/images/image_readers.h"
#include "plain_image_decoders.h"

inline void Require(bool holds) {
    if (!holds) std::abort();
}

// What the picture becomes as a bitmap: every pixel comes back from it, and the padding stays.
inline void CheckBitmap(const DecodedImage& image) {
    BitmapLayout layout;
    if (!LayOutBitmap(image.width, image.height, image.bytesPerPixel, layout)) return;
    if (layout.Size() > kMostBytes) return;
    const unsigned char padding = 0x5A;
    std::vector<unsigned char> bits(layout.Size(), padding);
    StoreBitmapRows(layout, image.pixels.get(), bits.data());
    for (int row = 0; row < image.height; ++row) {
        const unsigned char* const pixels = image.Row(row);
        const unsigned char* const stored =
            &bits[layout.RowSize() * static_cast<size_t>(image.height - 1 - row)];
        for (size_t i = 0; i < image.RowSize(); ++i)
            Require(pixels[i] == stored[image.bytesPerPixel == 1 ? i : i / 3 * 3 + 2 - i % 3]);
        for (size_t i = image.RowSize(); i < layout.RowSize(); ++i)
            Require(stored[i] == padding);
    }
}

// A reader and the plain decoder of its format agree on any bytes: refused, or the same picture.
inline void CheckReader(bool (*reader)(ByteCursor, DecodedImage&),
                        std::optional<PlainImage> (*plain)(PlainFile), const uint8_t* data, size_t size) {
    // A block of its own and of the exact size: a byte read beyond it shows.
    const std::vector<unsigned char> file(data, data + size);
    DecodedImage image;
    image.width = -1;
    const bool read = reader(ByteCursor(file.data(), file.size()), image);
    const auto expected = plain(PlainFile(data, size));
    Require(read == expected.has_value());
    if (!read) {
        Require(image.width == -1 && !image.pixels && !image.palette);
        return;
    }
    Require(image.width == expected->width && image.height == expected->height);
    Require(image.bytesPerPixel == expected->bytesPerPixel);
    Require(static_cast<size_t>(image.size) == expected->pixels.size());
    Require(std::memcmp(image.pixels.get(), expected->pixels.data(), expected->pixels.size()) == 0);
    Require(!image.palette == expected->palette.empty());
    Require(!image.palette || std::memcmp(image.palette.get(), expected->palette.data(), 768) == 0);
    CheckBitmap(image);
}
