#include <png.h>
#include <window_picture.h>

#include <algorithm>
#include <cstring>

#include "window.h"

namespace {

// Rows of red, green, blue of the part of a window's surface that it covers.
std::vector<unsigned char> PixelsOf(Window& window, int& width, int& height) {
    const std::lock_guard lock(WindowMutex());
    const Window& root = RootOf(window);
    const std::lock_guard drawing(DrawingMutex());
    if (!root.surface) return {};
    const Surface& surface = *root.surface;
    const int left = std::clamp<int>(window.rect.left - root.rect.left, 0, surface.width);
    const int top = std::clamp<int>(window.rect.top - root.rect.top, 0, surface.height);
    width = std::clamp<int>(window.rect.right - root.rect.left, left, surface.width) - left;
    height = std::clamp<int>(window.rect.bottom - root.rect.top, top, surface.height) - top;
    std::vector<unsigned char> bytes;
    bytes.reserve(static_cast<size_t>(width) * static_cast<size_t>(height) * 3);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const uint32_t pixel =
                surface.pixels[static_cast<size_t>(top + y) * static_cast<size_t>(surface.width) +
                               static_cast<size_t>(left + x)];
            for (const int shift : {16, 8, 0})
                bytes.push_back(static_cast<unsigned char>(pixel >> shift));
        }
    return bytes;
}

}  // namespace

bool SaveWindowPicture(HWND handle, const char* file) {
    const WindowRef window = FindWindowRef(handle);
    if (!window || !file) return false;
    int width = 0;
    int height = 0;
    const std::vector<unsigned char> pixels = PixelsOf(*window, width, height);
    if (pixels.empty()) return false;
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, file, 0, pixels.data(), 0, nullptr) != 0;
}
