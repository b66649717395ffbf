#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>

struct FreeBlock {
    void operator()(unsigned char* block) const { std::free(block); }
};

// A block from malloc. A failed allocation is null, never an exception.
using HeapBlock = std::unique_ptr<unsigned char[], FreeBlock>;

// A picture as plain pixels.
struct DecodedImage {
    static constexpr size_t kPaletteSize = 768;

    HeapBlock pixels;   // rows from top to bottom, without padding
    int size = 0;       // bytes of all pixels
    HeapBlock palette;  // 256 entries of red, green, blue; null when the pixels are colours themselves
    int width = 0;      // pixels
    int height = 0;     // pixels
    int bytesPerPixel =
        0;  // 1: palette indices. 3: red, green, blue. 4: alpha, red, green, blue. 0: not decoded

    size_t RowSize() const { return static_cast<size_t>(width) * static_cast<size_t>(bytesPerPixel); }
    unsigned char* Row(int row) const { return pixels.get() + static_cast<size_t>(row) * RowSize(); }
};

// An image of this size with uninitialised pixels, and with a black palette for one byte per pixel. Its
// pixels are null when a side is below 1, when the pixels need 2^31 bytes or more, or when no memory is left.
// A file's header alone is no reason to call this: it must be known that the file can fill the pixels.
DecodedImage AllocateImage(int width, int height, int bytesPerPixel);
