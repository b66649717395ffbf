#include <utility>

#include "controls/images/image_readers.h"

namespace {

// Of the magic number, header size, flags, height and width, four bytes each.
constexpr size_t kHeaderSize = 20;
constexpr uint32_t kStatedHeaderSize = 124;
// Capabilities, height, width and pixel format are given.
constexpr uint32_t kNeededFlags = 0x1007;

}  // namespace

bool ReadDds(ByteCursor file, DecodedImage& image) {
    const unsigned char* const header = file.Take(kHeaderSize);
    if (!header || LittleEndian32(header + 4) != kStatedHeaderSize) return false;
    if ((LittleEndian32(header + 8) & kNeededFlags) != kNeededFlags) return false;
    DecodedImage identified;
    identified.height = static_cast<int>(LittleEndian32(header + 12));
    identified.width = static_cast<int>(LittleEndian32(header + 16));
    image = std::move(identified);
    return true;
}
