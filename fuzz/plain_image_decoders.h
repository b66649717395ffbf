#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// The picture formats decoded one byte at a time, as their rules read: what the readers must give, slow and
// plain. A size is looked at before anything is stored, so no file grows to more than `kMostBytes` of pixels.

inline constexpr size_t kMostBytes = size_t{1} << 20;

struct PlainImage {
    int width = 0;
    int height = 0;
    int bytesPerPixel = 0;
    std::vector<uint8_t> pixels;
    std::vector<uint8_t> palette;
};

class PlainFile {
public:
    PlainFile(const uint8_t* bytes, size_t size) : bytes_(bytes, bytes + size) {}

    size_t Size() const { return bytes_.size(); }
    size_t At() const { return at_; }
    // Once false, stays so.
    bool Good() const { return good_; }

    void Go(size_t at) {
        if (at > Size()) good_ = false;
        at_ = at;
    }
    uint32_t Next(int count = 1) {
        uint32_t value = 0;
        for (int i = 0; i < count; ++i) {
            if (at_ >= Size()) good_ = false;
            if (good_) value |= static_cast<uint32_t>(bytes_[at_++]) << (8 * i);
        }
        return value;
    }
    uint32_t Field(size_t at, int count) {
        Go(at);
        return Next(count);
    }
    bool Fail() {
        good_ = false;
        return false;
    }

private:
    std::vector<uint8_t> bytes_;
    size_t at_ = 0;
    bool good_ = true;
};

inline std::optional<PlainImage> NewPlainImage(int64_t width, int64_t height, int bytesPerPixel) {
    if (width < 1 || height < 1) return {};
    if (width * bytesPerPixel > static_cast<int64_t>(kMostBytes) / height) return {};
    PlainImage image{static_cast<int>(width), static_cast<int>(height), bytesPerPixel, {}, {}};
    image.pixels.resize(static_cast<size_t>(width * height * bytesPerPixel));
    return image;
}

inline std::optional<PlainImage> DecodePlainBmp(PlainFile file) {
    if (file.Size() < 18 || file.Field(0, 2) != 0x4D42) return {};
    const uint32_t pixelsAt = file.Field(10, 4);
    const uint32_t infoSize = file.Field(14, 4);
    if (pixelsAt > file.Size() || infoSize > 40 || 14 + infoSize > file.Size()) return {};
    std::vector<uint8_t> info(40, 0);
    for (uint32_t i = 0; i < infoSize; ++i)
        info[i] = static_cast<uint8_t>(file.Field(14 + i, 1));
    PlainFile header(info.data(), info.size());
    const auto width = static_cast<int32_t>(header.Field(4, 4));
    const auto height = static_cast<int32_t>(header.Field(8, 4));
    const uint32_t bits = header.Field(14, 2);
    if (header.Field(12, 2) != 1 || header.Field(16, 4) != 0 || (bits != 8 && bits != 24)) return {};
    auto image = NewPlainImage(width, height, static_cast<int>(bits / 8));
    if (!image) return {};
    if (bits == 8) {
        uint32_t colors = header.Field(32, 4);
        if (colors == 0) colors = 256;
        if (colors > 256) return {};
        image->palette.resize(768);
        file.Go(14 + infoSize);
        for (uint32_t i = 0; i < colors; ++i) {
            for (const int channel : {2, 1, 0})
                image->palette[3 * i + static_cast<uint32_t>(channel)] = static_cast<uint8_t>(file.Next());
            file.Next();
        }
    }
    file.Go(pixelsAt);
    const size_t rowSize = static_cast<size_t>(width) * (bits / 8);
    for (size_t row = static_cast<size_t>(height); row-- > 0;) {
        for (size_t i = 0; i < rowSize; ++i) {
            const size_t swapped = bits == 8 ? i : i / 3 * 3 + 2 - i % 3;
            image->pixels[row * rowSize + swapped] = static_cast<uint8_t>(file.Next());
        }
        for (size_t i = rowSize; i % 4 != 0; ++i)
            file.Next();
    }
    if (!file.Good()) return {};
    return image;
}

// The coded bytes, without the padding of lines, as far as they are wanted.
inline std::vector<uint8_t> DecodePlainRuns(PlainFile& file, size_t wanted, int width, int bytesPerLine) {
    std::vector<uint8_t> stored;
    int column = 0;
    while (stored.size() < wanted && file.Good()) {
        uint32_t length = 1;
        uint32_t value = file.Next();
        if ((value & 0xC0) == 0xC0) {
            length = value & 0x3F;
            value = file.Next();
        }
        for (uint32_t i = 0; i < length && stored.size() < wanted; ++i) {
            if (bytesPerLine != width && ++column > width) {
                if (column == bytesPerLine) column = 0;
                continue;
            }
            stored.push_back(static_cast<uint8_t>(value));
        }
    }
    return stored;
}

inline std::optional<PlainImage> DecodePlainPcx(PlainFile file) {
    if (file.Size() < 128) return {};
    const bool coded = file.Field(2, 1) == 1;
    const auto planes = static_cast<int>(file.Field(65, 1));
    if (file.Field(0, 1) != 10 || file.Field(1, 1) != 5 || file.Field(2, 1) > 1) return {};
    if (file.Field(3, 1) != 8 || (planes != 1 && planes != 3) || (planes == 3 && !coded)) return {};
    const int width = static_cast<int>(file.Field(8, 2)) - static_cast<int>(file.Field(4, 2)) + 1;
    const int height = static_cast<int>(file.Field(10, 2)) - static_cast<int>(file.Field(6, 2)) + 1;
    const auto bytesPerLine = static_cast<int>(file.Field(66, 2));
    if (bytesPerLine < width) return {};
    auto image = NewPlainImage(width, height, planes);
    if (!image) return {};
    file.Go(128);
    std::vector<uint8_t> lines;
    if (coded) {
        lines = DecodePlainRuns(file, image->pixels.size(), width, bytesPerLine);
    } else {
        for (int row = 0; row < height && file.Good(); ++row) {
            for (int i = 0; i < bytesPerLine; ++i) {
                const uint32_t byte = file.Next();
                if (i < width) lines.push_back(static_cast<uint8_t>(byte));
            }
        }
    }
    if (!file.Good()) return {};
    const auto columns = static_cast<size_t>(width);
    const auto channels = static_cast<size_t>(planes);
    for (size_t i = 0; i < lines.size(); ++i) {
        const size_t row = i / (columns * channels);
        const size_t plane = i / columns % channels;
        image->pixels[(row * columns + i % columns) * channels + plane] = lines[i];
    }
    if (planes == 1) {
        if (file.Size() - file.At() < 769) return {};
        file.Go(file.Size() - 768);
        for (int i = 0; i < 768; ++i)
            image->palette.push_back(static_cast<uint8_t>(file.Next()));
    }
    return image;
}

inline std::optional<PlainImage> DecodePlainTga(PlainFile file) {
    if (file.Size() < 20 || file.Field(1, 1) != 0) return {};
    const uint32_t type = file.Field(2, 1);
    const uint32_t depth = file.Field(16, 1);
    if ((type != 2 && type != 10) || (depth != 24 && depth != 32)) return {};
    const uint32_t pixelSize = depth / 8;
    auto image = NewPlainImage(file.Field(12, 2), file.Field(14, 2), static_cast<int>(pixelSize));
    if (!image) return {};
    file.Go(18 + file.Field(0, 1));
    const auto width = static_cast<size_t>(image->width);
    const size_t pixels = width * static_cast<size_t>(image->height);
    size_t stored = 0;
    const auto store = [&](uint32_t pixel) {
        if (stored == pixels) return;
        const size_t row = static_cast<size_t>(image->height) - 1 - stored / width;
        uint8_t* const to = &image->pixels[(row * width + stored % width) * pixelSize];
        for (uint32_t i = 0; i < pixelSize; ++i)
            to[i] = static_cast<uint8_t>(pixel >> (8 * (pixelSize - 1 - i)));
        ++stored;
    };
    while (stored < pixels && file.Good()) {
        const uint32_t head = type == 10 ? file.Next() : 0;
        const uint32_t count = (head & 127) + 1;
        const bool run = (head & 128) != 0;
        if (file.Size() - file.At() < (run ? 1 : count) * pixelSize) return {};
        uint32_t pixel = 0;
        for (uint32_t i = 0; i < count; ++i) {
            if (i == 0 || !run) pixel = file.Next(static_cast<int>(pixelSize));
            store(pixel);
        }
    }
    if (!file.Good()) return {};
    return image;
}
