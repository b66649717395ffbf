// A bitmap file: a file header of 14 bytes, an info header that begins with its own size, with 8 bits per
// pixel a palette of blue, green, red, reserved, and somewhere behind the begin the rows, the lowest first,
// each padded to a multiple of 4 bytes.

#include <cstring>
#include <utility>

#include "controls/images/image_readers.h"
#include "controls/images/pixel_order.h"

namespace {

constexpr size_t kFileHeaderSize = 14;
constexpr size_t kInfoHeaderSize = 40;
constexpr uint16_t kMagic = 0x4D42;
constexpr uint32_t kPaletteEntries = 256;

struct BmpHeader {
    uint32_t pixelsAt;
    uint32_t infoSize;
    uint32_t width;
    uint32_t height;
    uint32_t bytesPerPixel;
    uint32_t colorsUsed;

    uint64_t RowSize() const { return uint64_t{bytesPerPixel} * width; }
    uint64_t PaddedRowSize() const { return (RowSize() + 3) & ~uint64_t{3}; }
};

// An info header may be shorter than the record; what it leaves out counts as 0.
bool TakeInfoHeader(ByteCursor& file, unsigned char (&record)[kInfoHeaderSize]) {
    if (file.Left() < 4) return false;
    const uint32_t size = LittleEndian32(file.Position());
    if (size > kInfoHeaderSize) return false;
    const unsigned char* const info = file.Take(size);
    if (!info) return false;
    std::memcpy(record, info, size);
    return true;
}

// Leaves the position behind the info header.
bool TakeHeader(ByteCursor& file, BmpHeader& header) {
    const unsigned char* const fileHeader = file.Take(kFileHeaderSize);
    if (!fileHeader || LittleEndian16(fileHeader) != kMagic) return false;
    unsigned char info[kInfoHeaderSize] = {};
    if (!TakeInfoHeader(file, info)) return false;
    const uint16_t planes = LittleEndian16(info + 12);
    const uint16_t bitCount = LittleEndian16(info + 14);
    const uint32_t compression = LittleEndian32(info + 16);
    if (planes != 1 || compression != 0 || (bitCount != 8 && bitCount != 24)) return false;
    header = {LittleEndian32(fileHeader + 10), LittleEndian32(info),    LittleEndian32(info + 4),
              LittleEndian32(info + 8),        uint32_t{bitCount} / 8U, LittleEndian32(info + 32)};
    return true;
}

// The sides are signed in the file, a height below 0 meaning rows from top to bottom. Taken as unsigned, such
// a side is far too large for any file.
bool HoldsRows(const ByteCursor& file, const BmpHeader& header) {
    if (header.width == 0 || header.height == 0) return false;
    return header.pixelsAt <= file.Size() &&
           header.PaddedRowSize() <= (file.Size() - header.pixelsAt) / header.height;
}

// Stands directly behind the info header, wherever the pixels are.
const unsigned char* TakePalette(ByteCursor& file, const BmpHeader& header, uint32_t& count) {
    count = header.colorsUsed ? header.colorsUsed : kPaletteEntries;
    return count <= kPaletteEntries ? file.Take(size_t{4} * count) : nullptr;
}

void StorePalette(const unsigned char* entries, uint32_t count, unsigned char* palette) {
    for (uint32_t i = 0; i < count; ++i, entries += 4, palette += 3) {
        palette[0] = entries[2];
        palette[1] = entries[1];
        palette[2] = entries[0];
    }
}

void StoreRows(ByteCursor file, const BmpHeader& header, const DecodedImage& image) {
    for (int row = image.height - 1; row >= 0; --row) {
        const unsigned char* const source = file.Take(static_cast<size_t>(header.PaddedRowSize()));
        if (image.bytesPerPixel == 1)
            std::memcpy(image.Row(row), source, image.RowSize());
        else
            SwapRedAndBlue(source, header.width, image.Row(row));
    }
}

}  // namespace

bool ReadBmp(ByteCursor file, DecodedImage& image) {
    BmpHeader header;
    if (!TakeHeader(file, header) || !HoldsRows(file, header)) return false;
    uint32_t colors = 0;
    const unsigned char* entries = nullptr;
    if (header.bytesPerPixel == 1 && !(entries = TakePalette(file, header, colors))) return false;
    DecodedImage decoded = AllocateImage(static_cast<int>(header.width), static_cast<int>(header.height),
                                         static_cast<int>(header.bytesPerPixel));
    if (!decoded.pixels) return false;
    if (entries) StorePalette(entries, colors, decoded.palette.get());
    file.Seek(header.pixelsAt);
    StoreRows(file, header, decoded);
    image = std::move(decoded);
    return true;
}
