#include <gtest/gtest.h>

#include <climits>

#include "image_bytes.h"

namespace {

struct BmpFields {
    uint32_t offset, width, height, bits;
    uint32_t colors = 0;
    uint32_t infoSize = 40;
    uint32_t planes = 1;
    uint32_t compression = 0;
};

// The fields that no reader looks at hold nonsense.
std::string Bmp(const BmpFields& fields, const std::string& body) {
    const std::string info = Number(fields.infoSize, 4) + Number(fields.width, 4) + Number(fields.height, 4) +
                             Number(fields.planes, 2) + Number(fields.bits, 2) +
                             Number(fields.compression, 4) + std::string(12, '\xEE') +
                             Number(fields.colors, 4) + std::string(4, '\xEE');
    return "BM" + std::string(8, '\xEE') + Number(fields.offset, 4) + info.substr(0, fields.infoSize) + body;
}

// Three pixels by two with three bytes of padding to each row.
const std::string kRows =
    Bytes({1, 2, 3, 4, 5, 6, 7, 8, 9, 99, 99, 99, 11, 12, 13, 14, 15, 16, 17, 18, 19, 99, 99, 99});
constexpr char kRowsRead[] = "3 2 3: 13 12 11 16 15 14 19 18 17 3 2 1 6 5 4 9 8 7";

TEST(BmpReader, ReadsTrueColorFromTheBottomUp) {
    EXPECT_EQ(Read(ReadBmp, Bmp({54, 3, 2, 24}, kRows)), kRowsRead);
    EXPECT_EQ(Read(ReadBmp, Bmp({54, 3, 2, 24, 70000}, kRows)), kRowsRead) << "colours do not count here";
    EXPECT_EQ(Read(ReadBmp, Bmp({30, 3, 2, 24, 0, 16}, kRows)), kRowsRead) << "left out fields are 0";
    EXPECT_TRUE(NeedsEveryByte(ReadBmp, Bmp({54, 3, 2, 24}, kRows)));
}

// Eight pixels are swapped at once, in words that must not mix up neighbours.
TEST(BmpReader, SwapsEveryPixelOfALongRow) {
    std::string row;
    std::string expected = "20 1 3:";
    for (int i = 0; i < 60; ++i) {
        row += static_cast<char>(i);
        expected += " " + std::to_string(i / 3 * 3 + 2 - i % 3);
    }
    EXPECT_EQ(Read(ReadBmp, Bmp({54, 20, 1, 24}, row)), expected);
}

TEST(BmpReader, ReadsAPalette) {
    const std::string two = Bytes({10, 20, 30, 40, 50, 60, 70, 80, 0, 1, 99, 99});
    EXPECT_EQ(Read(ReadBmp, Bmp({62, 2, 1, 8, 2}, two)), "2 1 1: 0 1; 30 20 10 70 60 50 0*762");
    const std::string all = std::string(1024, 7) + Bytes({5, 0, 0, 0});
    EXPECT_EQ(Read(ReadBmp, Bmp({54 + 1024, 1, 1, 8}, all)), "1 1 1: 5; 7*768") << "0 stands for 256";
    // It lies behind the info header even when the pixels begin earlier.
    const std::string early = Bmp({0, 4, 1, 8, 1}, Bytes({1, 2, 3, 4}));
    EXPECT_EQ(Read(ReadBmp, early), "4 1 1: 66 77 238*2; 3 2 1 0*765");
    EXPECT_TRUE(NeedsEveryByte(ReadBmp, early));
}

TEST(BmpReader, RefusesHeadersThatItDoesNotKnow) {
    const struct {
        const char* why;
        BmpFields fields;
    } cases[] = {{"rows from top to bottom", {54, 3, 0xFFFFFFFE, 24}},
                 {"both sides below 0", {54, 0xFFFFFFFD, 0xFFFFFFFE, 24}},
                 {"no columns", {54, 0, 2, 24}},
                 {"no rows", {54, 3, 0, 24}},
                 {"size of 2 in 32 bits", {54, 3, 0x55555556, 24}},
                 {"size of 0 in 32 bits", {54, 65536, 65536, 24}},
                 {"the greatest size", {54, INT_MAX, INT_MAX, 24}},
                 {"pixels beyond the file", {0x80000036, 3, 2, 24}},
                 {"info header of 41 bytes", {54, 3, 2, 24, 0, 41}},
                 {"info header of 2^31 bytes", {54, 3, 2, 24, 0, 0x80000028}},
                 {"OS/2 header", {26, 3, 2, 24, 0, 12}},
                 {"no info header", {18, 3, 2, 24, 0, 3}},
                 {"two planes", {54, 3, 2, 24, 0, 40, 2}},
                 {"coded", {54, 3, 2, 24, 0, 40, 1, 1}},
                 {"16 bits", {54, 3, 2, 16}},
                 {"32 bits", {54, 1, 1, 32}},
                 {"257 colours", {54, 3, 2, 8, 257}},
                 {"4 times the colours is 4", {54, 3, 2, 8, 0x40000001}}};
    // With so many bytes the length of the file is no reason.
    for (const auto& c : cases)
        EXPECT_EQ(Read(ReadBmp, Bmp(c.fields, std::string(2000, 0))), "refused") << c.why;
    EXPECT_EQ(Read(ReadBmp, "BN" + Bmp({54, 3, 2, 24}, kRows).substr(2)), "refused");
}

}  // namespace
