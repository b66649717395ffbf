#include <gtest/gtest.h>

#include "image_bytes.h"

namespace {

struct PcxFields {
    uint32_t xmax, ymax;
    int planes;
    uint32_t bytesPerLine;
    int encoding = 1;
    uint32_t xmin = 0;
    uint32_t ymin = 0;
    int version = 5;
    int bits = 8;
    int manufacturer = 10;
};

// With one plane a palette of nines, behind a byte that is no marker.
std::string Pcx(const PcxFields& fields, const std::string& body) {
    std::string file = Bytes({fields.manufacturer, fields.version, fields.encoding, fields.bits});
    for (const uint32_t edge : {fields.xmin, fields.ymin, fields.xmax, fields.ymax})
        file += Number(edge, 2);
    file += std::string(53, '\xEE') + static_cast<char>(fields.planes) + Number(fields.bytesPerLine, 2);
    return file + std::string(60, '\xEE') + body + std::string(fields.planes == 1 ? 769 : 0, 9);
}

TEST(PcxReader, DecodesRuns) {
    const struct {
        const char* what;
        uint32_t bytesPerLine;
        std::string body;
        const char* pixels;  // three by two
    } cases[] = {
        {"plain bytes", 3, Bytes({1, 2, 3, 4, 5, 0xBF}), "1 2 3 4 5 191"},
        {"a run over the end of a line", 3, Bytes({1, 0xC4, 7, 5}), "1 7 7 7 7 5"},
        {"values that look like runs", 3, Bytes({0xC1, 0xC5, 0xC2, 0xFF, 1, 2, 3}), "197 255 255 1 2 3"},
        {"empty runs", 3, Bytes({0xC0, 7, 1, 0xC0, 0xC5, 0xC4, 2, 3}), "1 2 2 2 2 3"},
        {"the last run reaches beyond the picture", 3, Bytes({1, 2, 0xFF, 8}), "1 2 8*4"},
        {"padding", 4, Bytes({1, 2, 3, 99, 4, 5, 6}), "1 2 3 4 5 6"},
        {"a run over padding", 5, Bytes({1, 0xC5, 7, 5, 6}), "1 7 7 7 5 6"},
        {"a run of padding only", 70, Bytes({1, 2, 3, 0xFF, 0, 0xC6, 7, 5}), "1 2 3 7 7 5"}};
    for (const auto& c : cases) {
        const std::string file = Pcx({2, 1, 1, c.bytesPerLine}, c.body);
        EXPECT_EQ(Read(ReadPcx, file), std::string("3 2 1: ") + c.pixels + "; 9*768") << c.what;
        EXPECT_TRUE(NeedsEveryByte(ReadPcx, file)) << c.what;
    }
}

// Long lines are decoded in blocks, which must end where the line does.
TEST(PcxReader, DecodesLongLines) {
    std::string body;
    std::string pixels;
    for (int length = 1; length < 64; ++length) {
        body += Bytes({0xC0 | length, length + 100});
        pixels.append(static_cast<size_t>(length), static_cast<char>(length + 100));
        const std::string plain =
            std::string("0123456789abcdefghijk").substr(0, static_cast<size_t>(length) % 21);
        body += plain;
        pixels += plain;
    }
    const auto width = static_cast<uint32_t>(pixels.size());
    EXPECT_EQ(Read(ReadPcx, Pcx({width - 1, 0, 1, width}, body)),
              std::to_string(width) + " 1 1: " +
                  Describe(reinterpret_cast<const unsigned char*>(pixels.data()), pixels.size()) + "; 9*768");
}

TEST(PcxReader, PutsThreePlanesTogether) {
    const PcxFields padded{1, 1, 3, 3};
    for (const std::string& file :
         {Pcx({1, 1, 3, 2}, Bytes({1, 2, 3, 4, 5, 6, 7, 8, 9, 9, 11, 9})),
          Pcx(padded, Bytes({1, 2, 99, 3, 4, 99, 5, 6, 99, 7, 8, 99, 9, 9, 99, 11, 9})),
          Pcx(padded, Bytes({1, 2, 99, 3, 4, 99, 5, 6, 99, 7, 8, 0xC3, 9, 99, 11, 9}))}) {
        EXPECT_EQ(Read(ReadPcx, file), "2 2 3: 1 3 5 2 4 6 7 9 11 8 9*2");
        EXPECT_TRUE(NeedsEveryByte(ReadPcx, file));
    }
}

TEST(PcxReader, CopiesLinesThatAreNotCoded) {
    const std::string file = Pcx({12, 21, 1, 4, 0, 10, 20}, Bytes({0xC1, 2, 3, 99, 4, 5, 6, 99}));
    EXPECT_EQ(Read(ReadPcx, file), "3 2 1: 193 2 3 4 5 6; 9*768");
    EXPECT_TRUE(NeedsEveryByte(ReadPcx, file));
}

TEST(PcxReader, TakesItsSizesAsUnsigned) {
    EXPECT_EQ(Read(ReadPcx, Pcx({39999, 0, 1, 40000}, std::string(1270, '\xFF'))),
              "40000 1 1: 255*40000; 9*768");
}

TEST(PcxReader, RefusesHeadersThatItDoesNotKnow) {
    const struct {
        const char* why;
        PcxFields fields;
    } cases[] = {{"manufacturer", {2, 1, 1, 3, 1, 0, 0, 5, 8, 11}},
                 {"version 3", {2, 1, 1, 3, 1, 0, 0, 3}},
                 {"encoding 2", {2, 1, 1, 3, 2}},
                 {"4 bits", {2, 1, 1, 3, 1, 0, 0, 5, 4}},
                 {"no planes", {2, 1, 0, 3}},
                 {"four planes", {2, 1, 4, 3}},
                 {"three planes that are not coded", {2, 1, 3, 3, 0}},
                 {"lines shorter than the width", {2, 1, 1, 2}},
                 {"no columns", {2, 1, 1, 3, 1, 3}},
                 {"no rows", {2, 1, 1, 3, 1, 0, 2}},
                 {"both sides below 0", {2, 1, 1, 3, 1, 9, 9}},
                 {"more than the file can hold, coded", {65534, 65535, 3, 65535}},
                 {"more than the file can hold", {65534, 65535, 1, 65535, 0}}};
    for (const auto& c : cases)
        EXPECT_EQ(Read(ReadPcx, Pcx(c.fields, std::string(100, 1))), "refused") << c.why;
}

}  // namespace
