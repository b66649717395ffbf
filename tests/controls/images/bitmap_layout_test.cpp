#include "controls/images/bitmap_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

namespace {

TEST(BitmapLayout, RoundsRowsUpToFourPixels) {
    const struct {
        int width, height, bytesPerPixel, strideWidth;
        size_t size;
    } cases[] = {{3, 2, 3, 4, 24}, {4, 2, 3, 4, 24}, {5, 3, 1, 8, 24}, {1, 1, 1, 4, 4}};
    for (const auto& c : cases) {
        BitmapLayout layout;
        ASSERT_TRUE(LayOutBitmap(c.width, c.height, c.bytesPerPixel, layout));
        EXPECT_EQ(layout.strideWidth, c.strideWidth);
        EXPECT_EQ(layout.Size(), c.size);
    }
}

TEST(BitmapLayout, RefusesWhatIsNoBitmap) {
    const struct {
        const char* why;
        int width, height, bytesPerPixel;
    } cases[] = {{"not decoded", 4, 4, 0},        {"alpha", 4, 4, 4},
                 {"no columns", 0, 4, 3},         {"no rows", 4, 0, 1},
                 {"below 0", -4, -4, 3},          {"rounding up overflows", INT_MAX, 1, 1},
                 {"2^31 bytes", 65536, 32768, 1}, {"2^31 bytes by rounding up", 1, 536870912, 1}};
    for (const auto& c : cases) {
        BitmapLayout layout;
        EXPECT_FALSE(LayOutBitmap(c.width, c.height, c.bytesPerPixel, layout)) << c.why;
        EXPECT_EQ(layout.height, 0) << c.why;
    }
    BitmapLayout layout;
    EXPECT_TRUE(LayOutBitmap(1, 536870911, 1, layout)) << "the greatest of width 1";
}

TEST(BitmapLayout, StoresRowsFromTheBottomUp) {
    using Bytes = std::vector<unsigned char>;
    const struct {
        int bytesPerPixel;
        Bytes pixels;
        Bytes bits;
    } cases[] = {{1, {1, 2, 3, 4}, {3, 4, 77, 77, 1, 2, 77, 77}},
                 {3, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, {9, 8, 7, 12, 11, 10, 77, 77, 77, 77, 77, 77,
                                                               3, 2, 1, 6,  5,  4,  77, 77, 77, 77, 77, 77}}};
    for (const auto& c : cases) {
        BitmapLayout layout;
        ASSERT_TRUE(LayOutBitmap(2, 2, c.bytesPerPixel, layout));
        Bytes bits(layout.Size(), 77);
        StoreBitmapRows(layout, c.pixels.data(), bits.data());
        EXPECT_EQ(bits, c.bits);
    }
}

TEST(BitmapLayout, StoresTheColorTable) {
    std::vector<unsigned char> palette(768, 9);
    std::copy_n("abcdef", 6, palette.begin());
    std::vector<unsigned char> table(1024, 77);
    StoreColorTable(palette.data(), table.data());
    EXPECT_EQ(std::string(table.begin(), table.begin() + 8), std::string("cba\0fed\0", 8));
    EXPECT_EQ(std::string(table.end() - 4, table.end()), std::string("\x09\x09\x09\0", 4));
}

}  // namespace
