// A PCX file: a header of 128 bytes, then for each row, from the top, one line of bytes for each plane, each
// line with padding behind it, and with one plane a palette in the last 768 bytes.
//
// Run-length coded, a byte with both top bits set states in its low six bits how often the byte behind it
// stands; any other byte stands for itself. The code knows nothing of lines: runs cross them.

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

#include "controls/images/image_readers.h"
#include "controls/images/pixel_order.h"

static_assert(std::endian::native == std::endian::little);

namespace {

constexpr size_t kHeaderSize = 128;
constexpr unsigned char kManufacturer = 10;
constexpr unsigned char kVersion = 5;
constexpr unsigned char kRunMark = 0xC0;
constexpr size_t kLongestRun = 63;
// A marker, whose value is not asked for, and the palette.
constexpr size_t kTrailerSize = 1 + DecodedImage::kPaletteSize;

struct PcxHeader {
    int width;
    int height;
    int planes;
    size_t bytesPerLine;
    bool coded;

    size_t Padding() const { return bytesPerLine - static_cast<size_t>(width); }
};

bool TakeHeader(ByteCursor& file, PcxHeader& header) {
    const unsigned char* const bytes = file.Take(kHeaderSize);
    if (!bytes || bytes[0] != kManufacturer || bytes[1] != kVersion || bytes[2] > 1 || bytes[3] != 8)
        return false;
    header.coded = bytes[2] == 1;
    header.planes = bytes[65];
    if (header.planes != 1 && !(header.planes == 3 && header.coded)) return false;
    header.width = LittleEndian16(bytes + 8) - LittleEndian16(bytes + 4) + 1;
    header.height = LittleEndian16(bytes + 10) - LittleEndian16(bytes + 6) + 1;
    header.bytesPerLine = LittleEndian16(bytes + 66);
    return header.width > 0 && header.height > 0 && header.bytesPerLine >= static_cast<size_t>(header.width);
}

// Whether the bytes behind the header can make up all lines: as they are, or as runs of the greatest length.
bool CanHoldLines(const ByteCursor& file, const PcxHeader& header) {
    const uint64_t left = file.Left();
    const auto rows = static_cast<uint64_t>(header.height);
    if (!header.coded) return header.bytesPerLine * rows <= left;
    const uint64_t lines = rows * static_cast<uint64_t>(header.planes);
    return 2 * lines * static_cast<uint64_t>(header.width) <= kLongestRun * left;
}

// The decoded bytes of run-length coded ones, one after the other.
class RunReader {
public:
    explicit RunReader(const ByteCursor& file) : file_(file) {}

    // The next `size` bytes; false when the file ends before them.
    bool Fill(unsigned char* to, size_t size);
    bool Drop(size_t size);

    // The position behind the last byte that was looked at.
    const ByteCursor& File() const { return file_; }

private:
    bool StartRun();
    unsigned char* FillFreely(unsigned char* to, const unsigned char* end);

    ByteCursor file_;
    size_t left_ = 0;  // of the run
    unsigned char value_ = 0;
};

bool RunReader::StartRun() {
    const unsigned char* byte = file_.Take(1);
    if (!byte) return false;
    left_ = 1;
    if ((*byte & kRunMark) == kRunMark) {
        left_ = *byte & kLongestRun;
        byte = file_.Take(1);
        if (!byte) return false;
    }
    value_ = *byte;
    return true;
}

// Decodes as long as both sides are so far from their ends that no step has to look for them. Bytes are
// stored in blocks of a fixed size: what is too much of one is written over by the next.
unsigned char* RunReader::FillFreely(unsigned char* to, const unsigned char* end) {
    constexpr size_t kWord = sizeof(uint64_t);
    constexpr size_t kRunCode = 2;
    while (end - to > static_cast<ptrdiff_t>(kWord + kLongestRun) && file_.Left() >= kWord + kRunCode) {
        uint64_t word;
        std::memcpy(&word, file_.Position(), kWord);
        std::memcpy(to, &word, kWord);
        // The top bit of each byte with both top bits set. A word without any is all plain.
        const uint64_t marks = word & word << 1 & 0x8080808080808080;
        const size_t plain = static_cast<size_t>(std::countr_zero(marks)) / 8;
        file_.Take(plain);
        to += plain;
        if (marks == 0) continue;
        const unsigned char* const run = file_.Take(kRunCode);
        std::memset(to, run[1], kLongestRun + 1);
        to += run[0] & kLongestRun;
    }
    return to;
}

bool RunReader::Fill(unsigned char* to, size_t size) {
    unsigned char* const end = to + size;
    while (to != end) {
        if (left_ == 0) {
            to = FillFreely(to, end);
            if (!StartRun()) return false;
            continue;
        }
        const size_t count = std::min(left_, static_cast<size_t>(end - to));
        std::memset(to, value_, count);
        to += count;
        left_ -= count;
    }
    return true;
}

bool RunReader::Drop(size_t size) {
    while (size > 0) {
        if (left_ == 0 && !StartRun()) return false;
        const size_t count = std::min(left_, size);
        size -= count;
        left_ -= count;
    }
    return true;
}

bool CopyLines(ByteCursor& file, const PcxHeader& header, const DecodedImage& image) {
    for (int row = 0; row < image.height; ++row) {
        const unsigned char* const line = file.Take(header.bytesPerLine);
        if (!line) return false;
        std::memcpy(image.Row(row), line, image.RowSize());
    }
    return true;
}

// The padding of the last line is not asked for: the picture is complete without it.
bool DecodeLines(ByteCursor& file, const PcxHeader& header, const DecodedImage& image) {
    RunReader reader(file);
    for (int row = 0; row < image.height; ++row) {
        if (row > 0 && !reader.Drop(header.Padding())) return false;
        if (!reader.Fill(image.Row(row), image.RowSize())) return false;
    }
    file = reader.File();
    return true;
}

bool DecodePlanes(const ByteCursor& file, const PcxHeader& header, const DecodedImage& image) {
    const HeapBlock planes(static_cast<unsigned char*>(std::malloc(image.RowSize())));
    if (!planes) return false;
    const auto width = static_cast<size_t>(image.width);
    RunReader reader(file);
    for (int row = 0; row < image.height; ++row) {
        for (size_t plane = 0; plane < 3; ++plane) {
            const bool first = row == 0 && plane == 0;
            if (!first && !reader.Drop(header.Padding())) return false;
            if (!reader.Fill(planes.get() + plane * width, width)) return false;
        }
        InterleavePlanes(planes.get(), width, image.Row(row));
    }
    return true;
}

bool TakePalette(ByteCursor& file, unsigned char* palette) {
    if (file.Left() < kTrailerSize) return false;
    file.Seek(file.Size() - DecodedImage::kPaletteSize);
    std::memcpy(palette, file.Position(), DecodedImage::kPaletteSize);
    return true;
}

}  // namespace

bool ReadPcx(ByteCursor file, DecodedImage& image) {
    PcxHeader header;
    if (!TakeHeader(file, header) || !CanHoldLines(file, header)) return false;
    DecodedImage decoded = AllocateImage(header.width, header.height, header.planes);
    if (!decoded.pixels) return false;
    if (header.planes == 3) {
        if (!DecodePlanes(file, header, decoded)) return false;
    } else {
        if (header.coded ? !DecodeLines(file, header, decoded) : !CopyLines(file, header, decoded))
            return false;
        if (!TakePalette(file, decoded.palette.get())) return false;
    }
    image = std::move(decoded);
    return true;
}
