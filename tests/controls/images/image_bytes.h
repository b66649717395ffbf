#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "controls/images/image_readers.h"

inline std::string Bytes(std::initializer_list<int> bytes) {
    return {bytes.begin(), bytes.end()};
}

inline std::string Number(uint32_t value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i, value >>= 8)
        bytes += static_cast<char>(value);
    return bytes;
}

// All bytes as numbers; what repeats at the end stands once, with how often.
inline std::string Describe(const unsigned char* block, size_t size) {
    size_t distinct = size;
    while (distinct > 1 && block[distinct - 2] == block[size - 1])
        --distinct;
    std::string text;
    for (size_t i = 0; i < distinct; ++i)
        text += (i ? " " : "") + std::to_string(block[i]);
    return distinct == size ? text : text + "*" + std::to_string(size - distinct + 1);
}

using ImageReader = bool (*)(ByteCursor file, DecodedImage& image);

// "refused", or "WIDTH HEIGHT BYTES: pixels", and with a palette "; palette". Reads a block of the exact
// size, so that a byte behind the end is not silently there.
inline std::string Read(ImageReader reader, const std::string& file) {
    const std::vector<unsigned char> copy(file.begin(), file.end());
    DecodedImage image;
    if (!reader(ByteCursor(copy.data(), copy.size()), image))
        return image.pixels || image.palette || image.width != 0 ? "refused, but set" : "refused";
    std::string text = std::to_string(image.width) + " " + std::to_string(image.height) + " " +
                       std::to_string(image.bytesPerPixel) + ": ";
    text += Describe(image.pixels.get(), static_cast<size_t>(image.size));
    return image.palette ? text + "; " + Describe(image.palette.get(), DecodedImage::kPaletteSize) : text;
}

// Whether every shorter part of a good file is refused.
inline bool NeedsEveryByte(ImageReader reader, const std::string& file) {
    for (size_t size = 0; size < file.size(); ++size)
        if (Read(reader, file.substr(0, size)) != "refused") return false;
    return Read(reader, file) != "refused";
}
