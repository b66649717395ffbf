#include "image_generator.h"

#include <cstddef>
#include <cstdint>

namespace {

void Number(std::string& file, uint64_t value, int size) {
    for (int i = 0; i < size; ++i, value >>= 8)
        file += static_cast<char>(value);
}

// Pixels of `pixelSize` bytes: runs and noise in turn.
std::string Pixels(size_t count, size_t pixelSize) {
    std::string pixels;
    pixels.reserve(count * pixelSize);
    uint32_t random = 12345;
    const auto next = [&random] { return (random = random * 1664525 + 1013904223) >> 16; };
    const auto pixel = [&] {
        std::string bytes;
        for (size_t i = 0; i < pixelSize; ++i)
            bytes += static_cast<char>(next());
        return bytes;
    };
    const size_t wanted = count * pixelSize;
    while (pixels.size() < wanted) {
        const std::string color = pixel();
        for (size_t left = next() % 80 + 1; left > 0; --left)
            pixels += color;
        for (size_t left = next() % 16 + 1; left > 0; --left)
            pixels += pixel();
    }
    pixels.resize(wanted);
    return pixels;
}

void AddPackets(std::string& file, const std::string& pixels, size_t pixelSize) {
    const size_t count = pixels.size() / pixelSize;
    const auto same = [&](size_t i) {
        return i + 1 < count &&
               pixels.compare(i * pixelSize, pixelSize, pixels, (i + 1) * pixelSize, pixelSize) == 0;
    };
    for (size_t at = 0; at < count;) {
        size_t length = 1;
        const bool run = same(at);
        while (length < 128 && at + length < count && (run ? same(at + length - 1) : !same(at + length)))
            ++length;
        file += static_cast<char>((run ? 0x80 : 0) | (length - 1));
        file.append(pixels, at * pixelSize, run ? pixelSize : length * pixelSize);
        at += length;
    }
}

void AddRuns(std::string& file, const std::string& line) {
    for (size_t at = 0; at < line.size();) {
        size_t length = 1;
        while (length < 63 && at + length < line.size() && line[at + length] == line[at])
            ++length;
        if (length > 1 || static_cast<unsigned char>(line[at]) >= 0xC0)
            file += static_cast<char>(0xC0 | length);
        file += line[at];
        at += length;
    }
}

}  // namespace

std::string GenerateBmp(int side, int bits) {
    const auto width = static_cast<unsigned>(side);
    const unsigned paletteSize = bits == 8 ? 1024 : 0;
    std::string file = "BM";
    Number(file, 0, 8);
    Number(file, 54 + paletteSize, 4);
    Number(file, 40, 4);
    Number(file, width, 4);
    Number(file, width, 4);
    Number(file, 1, 2);
    Number(file, static_cast<unsigned>(bits), 2);
    Number(file, 0, 24);
    for (unsigned i = 0; i < paletteSize / 4; ++i)
        Number(file, i * 0x010101, 4);
    return file + Pixels(size_t{width} * width, static_cast<size_t>(bits) / 8);
}

std::string GenerateTga(int side, int bits, bool coded) {
    std::string file;
    Number(file, coded ? 0x0A0000 : 0x020000, 3);
    Number(file, 0, 9);
    Number(file, static_cast<unsigned>(side), 2);
    Number(file, static_cast<unsigned>(side), 2);
    Number(file, static_cast<unsigned>(bits), 1);
    Number(file, bits == 32 ? 8 : 0, 1);
    const size_t pixelSize = static_cast<size_t>(bits) / 8;
    const std::string pixels = Pixels(static_cast<size_t>(side) * static_cast<size_t>(side), pixelSize);
    if (!coded) return file + pixels;
    AddPackets(file, pixels, pixelSize);
    return file;
}

std::string GeneratePcx(int side, int planes, bool coded) {
    const auto width = static_cast<size_t>(side);
    const auto channels = static_cast<size_t>(planes);
    std::string file = {10, 5, static_cast<char>(coded), 8, 0, 0, 0, 0};
    Number(file, static_cast<unsigned>(side - 1), 2);
    Number(file, static_cast<unsigned>(side - 1), 2);
    Number(file, 0, 53);
    Number(file, static_cast<unsigned>(planes), 1);
    Number(file, static_cast<unsigned>(side), 2);
    file.resize(128);
    const std::string pixels = Pixels(width * width, channels);
    std::string line(width, '\0');
    for (size_t row = 0; row < width; ++row) {
        for (size_t plane = 0; plane < channels; ++plane) {
            for (size_t x = 0; x < width; ++x)
                line[x] = pixels[(row * width + x) * channels + plane];
            if (coded)
                AddRuns(file, line);
            else
                file += line;
        }
    }
    if (planes == 1) file.append(769, 12);
    return file;
}
