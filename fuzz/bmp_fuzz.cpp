// The reader of BMP pictures beside a plain one.

#include "image_check.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    CheckReader(ReadBmp, DecodePlainBmp, data, size);
    return 0;
}
