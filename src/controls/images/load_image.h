#pragma once

// Reads the picture file of this path into memory. The text behind the last "." of the whole path alone
// chooses the reader: bmp, pcx, tga or dds, in any case.
//
// Gives 1, or 0 with every result null or 0: no such file, a folder, an unknown extension, a variant or a
// size that the reader does not take, a file that ends too soon, no memory. Nothing is shown and nothing
// throws.
//
// Pixels and palette are the caller's from then on, to be released with free; both may be null otherwise.
//   pixels         rows from top to bottom, without padding
//   size           bytes of `pixels`, below 2^31
//   palette        256 entries of red, green, blue, or null
//   width, height  in pixels
//   bytesPerPixel  1: palette indices. 3: red, green, blue. 4: alpha, red, green, blue. 0: not decoded; then
//                  `pixels` is the whole file, and width and height stand as the file states them
int LoadImageFile(const char* path, unsigned char*& pixels, int& size, unsigned char*& palette, int& width,
                  int& height, int& bytesPerPixel);
