// A TGA file: a header of 18 bytes, an identification of up to 255 bytes, then the pixels of the rows, the
// lowest first: blue, green, red and with 32 bits alpha.
//
// Run-length coded they come in packets of up to 128 pixels: a head with the count less 1, and with its top
// bit set one pixel that is repeated, else all of them. Packets cross the ends of rows.

#include <algorithm>
#include <cstring>
#include <utility>

#include "controls/images/image_readers.h"
#include "controls/images/pixel_order.h"

namespace {

constexpr size_t kHeaderSize = 18;
constexpr size_t kSmallestFile = 20;
constexpr int kPlain = 2;
constexpr int kRunLengthCoded = 10;
constexpr size_t kLargestPacket = 128;

struct TgaHeader {
    bool coded;
    int width;
    int height;
    int bytesPerPixel;
};

// Leaves the position behind the identification.
bool TakeHeader(ByteCursor& file, TgaHeader& header) {
    if (file.Size() < kSmallestFile) return false;
    const unsigned char* const bytes = file.Take(kHeaderSize);
    const int colorMap = bytes[1];
    const int type = bytes[2];
    const int depth = bytes[16];
    if (colorMap != 0 || (type != kPlain && type != kRunLengthCoded) || (depth != 24 && depth != 32))
        return false;
    header = {type == kRunLengthCoded, LittleEndian16(bytes + 12), LittleEndian16(bytes + 14), depth / 8};
    return file.Take(bytes[0]) != nullptr;
}

// Whether the bytes that are left can make up all pixels: as they are, or as the fullest packets.
bool CanHoldPixels(const ByteCursor& file, const TgaHeader& header) {
    const uint64_t left = file.Left();
    const auto pixels = static_cast<uint64_t>(header.width) * static_cast<uint64_t>(header.height);
    const auto pixelSize = static_cast<uint64_t>(header.bytesPerPixel);
    return header.coded ? pixels * (1 + pixelSize) <= kLargestPacket * left : pixels * pixelSize <= left;
}

void StorePixels(const unsigned char* from, size_t pixels, int bytesPerPixel, unsigned char* to) {
    if (bytesPerPixel == 3)
        SwapRedAndBlue(from, pixels, to);
    else
        ReverseFourBytes(from, pixels, to);
}

void CopyRows(ByteCursor& file, const DecodedImage& image) {
    for (int row = image.height - 1; row >= 0; --row)
        StorePixels(file.Take(image.RowSize()), static_cast<size_t>(image.width), image.bytesPerPixel,
                    image.Row(row));
}

// The places of the pixels in the order of the file: row by row upwards, each from left to right.
class PixelPlaces {
public:
    explicit PixelPlaces(const DecodedImage& image)
        : image_(image), row_(image.height - 1), room_(static_cast<size_t>(image.width)) {}

    bool Full() const { return row_ < 0; }
    // Pixels up to the end of the row.
    size_t Room() const { return room_; }
    unsigned char* Next() const {
        return image_.Row(row_) + image_.RowSize() - room_ * static_cast<size_t>(image_.bytesPerPixel);
    }
    // Not beyond the end of the row.
    void Advance(size_t pixels) {
        room_ -= pixels;
        if (room_ > 0) return;
        room_ = static_cast<size_t>(image_.width);
        --row_;
    }

private:
    const DecodedImage& image_;
    int row_;
    size_t room_;
};

void StorePacket(const unsigned char* pixels, size_t count, PixelPlaces& places, int bytesPerPixel) {
    while (count > 0 && !places.Full()) {
        const size_t stored = std::min(count, places.Room());
        StorePixels(pixels, stored, bytesPerPixel, places.Next());
        places.Advance(stored);
        pixels += stored * static_cast<size_t>(bytesPerPixel);
        count -= stored;
    }
}

void StoreRun(const unsigned char* pixel, size_t count, PixelPlaces& places, int bytesPerPixel) {
    unsigned char color[4];
    StorePixels(pixel, 1, bytesPerPixel, color);
    while (count > 0 && !places.Full()) {
        const size_t stored = std::min(count, places.Room());
        RepeatPixel(color, bytesPerPixel, stored, places.Room(), places.Next());
        places.Advance(stored);
        count -= stored;
    }
}

// A packet must be wholly in the file, even where the picture needs only a part of it.
bool DecodePackets(ByteCursor& file, const DecodedImage& image) {
    PixelPlaces places(image);
    const auto pixelSize = static_cast<size_t>(image.bytesPerPixel);
    while (!places.Full()) {
        const unsigned char* const head = file.Take(1);
        if (!head) return false;
        const size_t count = (*head & 0x7FU) + 1;
        const bool run = (*head & 0x80) != 0;
        const unsigned char* const pixels = file.Take(run ? pixelSize : count * pixelSize);
        if (!pixels) return false;
        if (run)
            StoreRun(pixels, count, places, image.bytesPerPixel);
        else
            StorePacket(pixels, count, places, image.bytesPerPixel);
    }
    return true;
}

}  // namespace

bool ReadTga(ByteCursor file, DecodedImage& image) {
    TgaHeader header;
    if (!TakeHeader(file, header) || !CanHoldPixels(file, header)) return false;
    DecodedImage decoded = AllocateImage(header.width, header.height, header.bytesPerPixel);
    if (!decoded.pixels) return false;
    if (!header.coded)
        CopyRows(file, decoded);
    else if (!DecodePackets(file, decoded))
        return false;
    image = std::move(decoded);
    return true;
}
