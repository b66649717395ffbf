#pragma once

#include "controls/images/byte_cursor.h"
#include "controls/images/decoded_image.h"

// The readers of the picture formats, over the bytes of a whole file. Each takes a few variants of its format
// and refuses all others. `image` is set on success only. A reader allocates no more than the file's own
// length can fill, nothing throws, and nothing is kept between two calls.

// Windows bitmap: 8 bits with a palette or 24 bits, uncompressed, bottom-up, with an info header of up to 40
// bytes.
bool ReadBmp(ByteCursor file, DecodedImage& image);

// Version 5: one plane with a palette at the file's end, or three run-length coded planes.
bool ReadPcx(ByteCursor file, DecodedImage& image);

// True colour of 24 or 32 bits, plain or run-length coded, without a colour map. Rows are taken as bottom-up
// whatever the file says of its origin.
bool ReadTga(ByteCursor file, DecodedImage& image);

// Identifies the file only: width and height as they stand in the header, with no pixels and no bytes per
// pixel.
bool ReadDds(ByteCursor file, DecodedImage& image);
