// The opponent's code, in a file of its own.

#define STB_IMAGE_IMPLEMENTATION
#define STBI_ONLY_BMP
#define STBI_ONLY_TGA
#include <stb/stb_image.h>
