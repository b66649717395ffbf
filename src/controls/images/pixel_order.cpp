#include "controls/images/pixel_order.h"

#include <bit>
#include <cstdint>
#include <cstring>

// Bytes are moved by shifting words that hold several of them, the first in the lowest bits.
static_assert(std::endian::native == std::endian::little);

namespace {

template <typename Word>
Word Load(const unsigned char* bytes) {
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

template <typename Word>
void Store(unsigned char* bytes, Word word) {
    std::memcpy(bytes, &word, sizeof word);
}

// Eight pixels in three words. A byte stays, comes from two bytes above or from two bytes below, which may
// lie in the neighbouring word.
void SwapEightPixels(const unsigned char* from, unsigned char* to) {
    const auto a = Load<uint64_t>(from);
    const auto b = Load<uint64_t>(from + 8);
    const auto c = Load<uint64_t>(from + 16);
    Store(to, (a & 0xFF0000FF0000FF00) | ((a >> 16) & 0x000000FF0000FF) | ((a << 16) & 0x0000FF0000FF0000) |
                  (b & 0xFF) << 48);
    Store(to + 8, (b & 0x0000FF0000FF0000) | ((b >> 16) & 0x0000FF0000FF00) |
                      ((b << 16) & 0x00FF0000FF000000) | ((a >> 48) & 0xFF) | (c & 0xFF00) << 48);
    Store(to + 16, (c & 0x00FF0000FF0000FF) | ((c >> 16) & 0xFF0000FF0000) |
                       ((c << 16) & 0xFF0000FF00000000) | ((b >> 48) & 0xFF00));
}

// Always whole groups of eight pixels, as long as there is room for one.
template <size_t kWords>
void RepeatGroup(const uint64_t (&group)[kWords], size_t count, size_t room, unsigned char* to) {
    for (size_t done = 0; done < count; done += 8, to += sizeof group) {
        if (room - done >= 8)
            std::memcpy(to, group, sizeof group);
        else
            std::memcpy(to, group, (count - done) * kWords);
    }
}

}  // namespace

void SwapRedAndBlue(const unsigned char* from, size_t pixels, unsigned char* to) {
    for (; pixels >= 8; pixels -= 8, from += 24, to += 24)
        SwapEightPixels(from, to);
    for (; pixels > 0; --pixels, from += 3, to += 3) {
        to[0] = from[2];
        to[1] = from[1];
        to[2] = from[0];
    }
}

void ReverseFourBytes(const unsigned char* from, size_t pixels, unsigned char* to) {
    for (; pixels > 0; --pixels, from += 4, to += 4) {
        const auto word = Load<uint32_t>(from);
        Store(to, word >> 24 | (word >> 8 & 0xFF00) | (word << 8 & 0xFF0000) | word << 24);
    }
}

void InterleavePlanes(const unsigned char* planes, size_t pixels, unsigned char* to) {
    const unsigned char* const red = planes;
    const unsigned char* const green = red + pixels;
    const unsigned char* const blue = green + pixels;
    // Each store but the last reaches into the next pixel, which is written after it.
    for (size_t i = 0; i + 1 < pixels; ++i)
        Store(to + 3 * i, static_cast<uint32_t>(red[i] | green[i] << 8 | blue[i] << 16));
    if (pixels == 0) return;
    unsigned char* const last = to + 3 * (pixels - 1);
    last[0] = red[pixels - 1];
    last[1] = green[pixels - 1];
    last[2] = blue[pixels - 1];
}

void RepeatPixel(const unsigned char* pixel, int bytesPerPixel, size_t count, size_t room,
                 unsigned char* to) {
    if (bytesPerPixel == 4) {
        const uint64_t two = Load<uint32_t>(pixel) * 0x100000001U;
        const uint64_t group[] = {two, two, two, two};
        RepeatGroup(group, count, room, to);
        return;
    }
    const uint64_t one =
        pixel[0] | static_cast<uint64_t>(pixel[1]) << 8 | static_cast<uint64_t>(pixel[2]) << 16;
    const uint64_t group[] = {one | one << 24 | one << 48, one >> 16 | one << 8 | one << 32 | one << 56,
                              one >> 8 | one << 16 | one << 40};
    RepeatGroup(group, count, room, to);
}
