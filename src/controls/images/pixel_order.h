#pragma once

#include <cstddef>

// Other orders of the bytes of pixels. Blocks do not overlap and need no alignment.

// Three bytes per pixel: exchanges the first and the third.
void SwapRedAndBlue(const unsigned char* from, size_t pixels, unsigned char* to);

// Blue, green, red, alpha to alpha, red, green, blue.
void ReverseFourBytes(const unsigned char* from, size_t pixels, unsigned char* to);

// A line of red, one of green and one of blue, `pixels` bytes each, to pixels of three bytes.
void InterleavePlanes(const unsigned char* planes, size_t pixels, unsigned char* to);

// Writes one pixel of three or four bytes `count` times. The bytes up to `room` pixels, at least `count`, may
// be written too.
void RepeatPixel(const unsigned char* pixel, int bytesPerPixel, size_t count, size_t room, unsigned char* to);
