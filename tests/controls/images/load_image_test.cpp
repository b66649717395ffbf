#include "controls/images/load_image.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "image_bytes.h"
#include "temp_folder.h"

namespace {

// What a load gave, in one line. Every result is set to nonsense before it.
std::string Load(const char* path) {
    unsigned char nonsense = 0;
    unsigned char* pixels = &nonsense;
    unsigned char* palette = &nonsense;
    int size = -1, width = -1, height = -1, bytesPerPixel = -1;
    const int result = LoadImageFile(path, pixels, size, palette, width, height, bytesPerPixel);
    const HeapBlock ownedPixels(pixels);
    const HeapBlock ownedPalette(palette);
    std::string text = std::to_string(result);
    for (const int value : {size, width, height, bytesPerPixel})
        text += " " + std::to_string(value);
    if (pixels) text += ": " + Describe(pixels, static_cast<size_t>(size));
    return palette ? text + "; " + Describe(palette, DecodedImage::kPaletteSize) : text;
}

std::string Load(const std::string& path) {
    return Load(path.c_str());
}

constexpr char kNothing[] = "0 0 0 0 0";

// One pixel: red 3, green 2, blue 1.
const std::string kTga = Bytes({0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 1, 0, 24, 0, 1, 2, 3});

std::string Dds(uint32_t size, uint32_t flags) {
    return "????" + Number(size, 4) + Number(flags, 4) + Number(0xFFFFFFFF, 4) + Number(7, 4);
}

TEST(LoadImageFile, ChoosesTheReaderByTheExtensionAlone) {
    const TempFolder folder;
    for (const char* name : {"a.tga", "b.TGA", "c.x.Tga", ".tga", "d..tga"}) {
        folder.Write(name, kTga);
        EXPECT_EQ(Load(folder.Name(name)), "1 3 1 1 3: 3 2 1") << name;
    }
    for (const char* name : {"a.bmp", "a.pcx", "a.dds", "a.tgax", "a.tga.txt", "tga"}) {
        folder.Write(name, kTga);
        EXPECT_EQ(Load(folder.Name(name)), kNothing) << name;
    }
}

TEST(LoadImageFile, HandsOverAPalette) {
    const TempFolder folder;
    folder.Write("a.bmp", "BM" + std::string(8, 0) + Number(58, 4) + Number(40, 4) + Number(1, 4) +
                              Number(1, 4) + Number(0x80001, 4) + std::string(16, 0) + Number(1, 4) +
                              std::string(4, 0) + Bytes({1, 2, 3, 0, 5, 0, 0, 0}));
    EXPECT_EQ(Load(folder.Name("a.bmp")), "1 1 1 1 1: 5; 3 2 1 0*765");
}

// The sizes stand as the file states them; the pixels are the file.
TEST(LoadImageFile, IdentifiesADdsFile) {
    const TempFolder folder;
    const std::string good = Dds(124, 0x1007);
    folder.Write("a.dds", good);
    EXPECT_EQ(Load(folder.Name("a.dds")),
              "1 20 7 -1 0: " + Describe(reinterpret_cast<const unsigned char*>(good.data()), 20));
    for (const std::string& bad : {Dds(123, 0x1007), Dds(124, 0x1003), good.substr(0, 19)}) {
        folder.Write("bad.dds", bad);
        EXPECT_EQ(Load(folder.Name("bad.dds")), kNothing);
    }
}

TEST(LoadImageFile, GivesNothingWhereNoPictureIs) {
    const TempFolder folder;
    folder.Write("empty.dds", "");
    folder.Write("short.tga", kTga.substr(0, 20));
    std::filesystem::create_directories(folder.Path("folder.dds"));
    std::filesystem::create_directories(folder.Path("pictures.tga"));
    folder.Write("pictures.tga/plain", kTga);
    for (const char* name : {"empty.dds", "short.tga", "folder.dds", "missing.tga", "pictures.tga\\plain"})
        EXPECT_EQ(Load(folder.Name(name)), kNothing) << name;
    EXPECT_EQ(Load(nullptr), kNothing);
    EXPECT_EQ(Load(""), kNothing);
    EXPECT_EQ(Load(std::string(300, 'x') + ".tga"), kNothing);
}

}  // namespace
