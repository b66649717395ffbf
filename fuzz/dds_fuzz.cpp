// The reader of DDS headers: nothing is decoded, whatever they state.

#include "image_check.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::vector<unsigned char> file(data, data + size);
    DecodedImage image;
    if (!ReadDds(ByteCursor(file.data(), file.size()), image)) return 0;
    PlainFile header(data, size);
    Require(header.Field(4, 4) == 124 && (header.Field(8, 4) & 0x1007) == 0x1007);
    Require(static_cast<uint32_t>(image.height) == header.Field(12, 4));
    Require(static_cast<uint32_t>(image.width) == header.Field(16, 4) && header.Good());
    Require(!image.pixels && !image.palette && image.size == 0 && image.bytesPerPixel == 0);
    return 0;
}
