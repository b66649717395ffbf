#include <gtest/gtest.h>

#include "image_bytes.h"

namespace {

struct TgaFields {
    int type;
    uint32_t width, height;
    int depth;
    int identification = 0;
    int colorMap = 0;
};

std::string Tga(const TgaFields& fields, const std::string& body) {
    return Bytes({fields.identification, fields.colorMap, fields.type}) + std::string(9, '\xEE') +
           Number(fields.width, 2) + Number(fields.height, 2) + Bytes({fields.depth, 0xEE}) +
           std::string(static_cast<size_t>(fields.identification), '\xDD') + body;
}

TEST(TgaReader, ReadsPixelsFromTheBottomUp) {
    const struct {
        TgaFields fields;
        std::string body;
        const char* image;
    } cases[] = {
        {{2, 2, 2, 24}, Bytes({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}), "2 2 3: 9 8 7 12 11 10 3 2 1 6 5 4"},
        {{2, 1, 2, 32, 255}, Bytes({1, 2, 3, 4, 5, 6, 7, 8}), "1 2 4: 8 7 6 5 4 3 2 1"},
        {{10, 1, 2, 24, 1}, Bytes({1, 1, 2, 3, 4, 5, 6}), "1 2 3: 6 5 4 3 2 1"},
        // A packet and a run that cross the end of a row, then those that reach beyond the picture.
        {{10, 2, 2, 24},
         Bytes({0, 1, 2, 3, 1, 4, 5, 6, 7, 8, 9, 0, 10, 11, 12}),
         "2 2 3: 9 8 7 12 11 10 3 2 1 6 5 4"},
        {{10, 2, 2, 24}, Bytes({0, 1, 2, 3, 0x82, 4, 5, 6}), "2 2 3: 6 5 4 6 5 4 3 2 1 6 5 4"},
        {{10, 2, 2, 24}, Bytes({0, 1, 2, 3, 0xFF, 4, 5, 6}), "2 2 3: 6 5 4 6 5 4 3 2 1 6 5 4"},
        {{10, 1, 2, 24}, Bytes({2, 1, 2, 3, 4, 5, 6, 7, 8, 9}), "1 2 3: 6 5 4 3 2 1"},
        {{10, 3, 1, 32}, Bytes({0x81, 1, 2, 3, 4, 0, 5, 6, 7, 8}), "3 1 4: 4 3 2 1 4 3 2 1 8 7 6 5"}};
    for (const auto& c : cases) {
        EXPECT_EQ(Read(ReadTga, Tga(c.fields, c.body)), c.image);
        EXPECT_TRUE(NeedsEveryByte(ReadTga, Tga(c.fields, c.body))) << c.image;
    }
}

// Runs are stored in groups of eight pixels; none may reach into the row that was filled before it.
TEST(TgaReader, RunsOfAnyLengthKeepToTheirPixels) {
    for (const int size : {3, 4}) {
        for (uint32_t width = 1; width < 20; ++width) {
            std::string body;
            std::vector<int> inFile;
            for (int length = 1; inFile.size() < width * 5; length = length % 19 + 1) {
                body += Bytes({0x7F + length}) +
                        std::string(static_cast<size_t>(size), static_cast<char>(length));
                inFile.insert(inFile.end(), static_cast<size_t>(length), length);
            }
            std::vector<unsigned char> expected;
            for (size_t i = 0; i < width * 5; ++i)
                expected.insert(expected.end(), static_cast<size_t>(size),
                                static_cast<unsigned char>(inFile[(4 - i / width) * width + i % width]));
            EXPECT_EQ(Read(ReadTga, Tga({10, width, 5, 8 * size}, body)),
                      std::to_string(width) + " 5 " + std::to_string(size) + ": " +
                          Describe(expected.data(), expected.size()));
        }
    }
}

TEST(TgaReader, TakesItsSizesAsUnsigned) {
    EXPECT_EQ(Read(ReadTga, Tga({10, 1, 40000, 24}, std::string(1252, '\xFF'))), "1 40000 3: 255*120000");
}

TEST(TgaReader, RefusesHeadersThatItDoesNotKnow) {
    const struct {
        const char* why;
        TgaFields fields;
    } cases[] = {{"colour map", {2, 2, 2, 24, 0, 1}},
                 {"type 1", {1, 2, 2, 24}},
                 {"type 9", {9, 2, 2, 24}},
                 {"grey", {3, 2, 2, 8}},
                 {"16 bits", {2, 2, 2, 16}},
                 {"no columns", {2, 0, 2, 24}},
                 {"no rows", {10, 2, 0, 24}},
                 {"2^32 bits and more", {2, 12000, 12000, 32}},
                 {"2^32 bytes and more", {2, 65535, 65535, 32}},
                 {"more than packets can hold", {10, 65535, 65535, 32}}};
    for (const auto& c : cases)
        EXPECT_EQ(Read(ReadTga, Tga(c.fields, std::string(300, '\x81'))), "refused") << c.why;
}

}  // namespace
