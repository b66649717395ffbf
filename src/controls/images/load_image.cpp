#include "controls/images/load_image.h"

#include <afx.h>
#include <share.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <utility>

#include "controls/images/image_readers.h"
#include "support/path_limit.h"

namespace {

using ImageReader = bool (*)(ByteCursor file, DecodedImage& image);

struct FileBytes {
    HeapBlock bytes;
    int size = 0;
};

struct CloseStream {
    void operator()(FILE* stream) const { std::fclose(stream); }
};

// Null for an extension that no reader takes.
ImageReader ReaderFor(const char* path) {
    static constexpr struct {
        const char* extension;
        ImageReader reader;
    } kReaders[] = {{"bmp", ReadBmp}, {"pcx", ReadPcx}, {"tga", ReadTga}, {"dds", ReadDds}};
    const char* const point = std::strrchr(path, '.');
    if (!point) return nullptr;
    for (const auto& known : kReaders)
        if (_stricmp(point + 1, known.extension) == 0) return known.reader;
    return nullptr;
}

// A file without a byte counts as none.
bool ReadWholeFile(const char* path, FileBytes& file) {
    const std::unique_ptr<FILE, CloseStream> stream(_fsopen(path, "rb", _SH_DENYNO));
    if (!stream || std::fseek(stream.get(), 0, SEEK_END) != 0) return false;
    const long size = std::ftell(stream.get());
    if (size < 1 || size > INT_MAX || std::fseek(stream.get(), 0, SEEK_SET) != 0) return false;
    const auto length = static_cast<size_t>(size);
    file.bytes.reset(static_cast<unsigned char*>(std::malloc(length)));
    file.size = static_cast<int>(size);
    return file.bytes && std::fread(file.bytes.get(), 1, length, stream.get()) == length;
}

bool Load(const char* path, DecodedImage& image) {
    if (!IsUsablePath(path)) return false;
    const ImageReader reader = ReaderFor(path);
    FileBytes file;
    if (!reader || !ReadWholeFile(path, file)) return false;
    if (!reader(ByteCursor(file.bytes.get(), static_cast<size_t>(file.size)), image)) return false;
    // What was identified only is handed over as it stands.
    if (!image.pixels) {
        image.pixels = std::move(file.bytes);
        image.size = file.size;
    }
    return true;
}

}  // namespace

int LoadImageFile(const char* path, unsigned char*& pixels, int& size, unsigned char*& palette, int& width,
                  int& height, int& bytesPerPixel) {
    DecodedImage image;
    const bool loaded = Load(path, image);
    size = image.size;
    width = image.width;
    height = image.height;
    bytesPerPixel = image.bytesPerPixel;
    pixels = image.pixels.release();
    palette = image.palette.release();
    return loaded ? 1 : 0;
}
