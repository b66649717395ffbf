#include "controls/images/decoded_image.h"

#include <climits>
#include <cstdint>
#include <utility>

DecodedImage AllocateImage(int width, int height, int bytesPerPixel) {
    DecodedImage image;
    if (width < 1 || height < 1) return image;
    const uint64_t rowSize = static_cast<uint64_t>(width) * static_cast<uint64_t>(bytesPerPixel);
    if (rowSize > INT_MAX / static_cast<uint64_t>(height)) return image;
    const size_t size = static_cast<size_t>(rowSize) * static_cast<size_t>(height);
    HeapBlock pixels(static_cast<unsigned char*>(std::malloc(size)));
    if (bytesPerPixel == 1) {
        image.palette.reset(static_cast<unsigned char*>(std::calloc(DecodedImage::kPaletteSize, 1)));
        if (!image.palette) return image;
    }
    image.pixels = std::move(pixels);
    image.size = static_cast<int>(size);
    image.width = width;
    image.height = height;
    image.bytesPerPixel = bytesPerPixel;
    return image;
}
