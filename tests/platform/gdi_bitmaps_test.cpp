#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "platform/canvas.h"

// Bitmaps in memory: their bytes, what moves between them, and what cannot be made.

namespace {

BITMAPINFO Info(int width, int height, int bits) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<WORD>(bits);
    return info;
}

struct Indexed {
    BITMAPINFO info;
    RGBQUAD more[255];

    RGBQUAD* Colors() { return info.bmiColors; }
};

TEST(GdiBitmaps, RowsLieInTheOrderThatTheHeightSays) {
    for (const bool topDown : {false, true}) {
        const Canvas canvas(3, 2, 24, topDown);
        SetPixel(canvas, 1, 0, RGB(1, 2, 3));
        const BYTE* row = canvas.Bytes() + (topDown ? 0 : 12);  // rows begin at multiples of 4 bytes
        EXPECT_EQ(row[3], 3);
        EXPECT_EQ(row[4], 2);
        EXPECT_EQ(row[5], 1);
        canvas.Bytes()[topDown ? 12 : 0] = 0;
        EXPECT_EQ(GetPixel(canvas, 0, 1), RGB(255, 255, 0));
    }
}

TEST(GdiBitmaps, EachDepthIsDrawnTo) {
    for (const int bits : {8, 24, 32}) {
        const Canvas canvas(5, 3, bits);
        const RECT rect{1, 1, 4, 2};
        const HBRUSH brush = CreateSolidBrush(RGB(70, 70, 70));
        EXPECT_TRUE(FillRect(canvas, &rect, brush));
        DeleteObject(brush);
        SetPixel(canvas, 0, 2, kBlack);
        EXPECT_EQ(canvas.Picture(), (Picture{".....", ".???.", "#...."})) << bits;
        EXPECT_EQ(GetPixel(canvas, 2, 1), RGB(70, 70, 70)) << bits;
        InvertRect(canvas, &rect);
        EXPECT_EQ(GetPixel(canvas, 2, 1), RGB(185, 185, 185)) << bits;
    }
    // Where there is a palette, the nearest of its colours is stored.
    const Canvas indexed(1, 1, 8);
    EXPECT_EQ(SetPixel(indexed, 0, 0, RGB(10, 10, 11)), RGB(10, 10, 10));
    EXPECT_EQ(indexed.Bytes()[0], 245);
}

TEST(GdiBitmaps, WhatCannotBeMadeFails) {
    const int most = 0x7fffffff;
    const struct {
        int width, height, bits;
    } cases[] = {{0, 1, 32},    {1, 0, 32},         {-1, 1, 32},        {1, 1, 7},
                 {1, 1, 0},     {most, 1, 8},       {most, 2, 32},      {1, -most - 1, 32},
                 {1, most, 32}, {70000, 70000, 32}, {70000, -70000, 24}};
    for (const auto& c : cases) {
        const BITMAPINFO info = Info(c.width, c.height, c.bits);
        void* bits = &bits;
        EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr)
            << c.width << " x " << c.height << ", " << c.bits;
        EXPECT_EQ(bits, nullptr);
    }
    void* bits = nullptr;
    BITMAPINFO info = Info(1, 1, 32);
    EXPECT_EQ(CreateDIBSection(nullptr, &info, 3, &bits, nullptr, 0), nullptr);
    EXPECT_EQ(CreateDIBSection(nullptr, nullptr, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
    info.bmiHeader.biCompression = 1;
    EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
    info = Info(1, 1, 32);
    info.bmiHeader.biPlanes = 2;
    EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
    info = Info(1, 1, 32);
    info.bmiHeader.biSize = 39;
    EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
    const Canvas canvas(1, 1);
    EXPECT_EQ(CreateCompatibleBitmap(canvas, 100000, 100000), nullptr);
}

TEST(GdiBitmaps, CompatibleOnesHaveTheirSize) {
    const Canvas canvas(1, 1);
    const struct {
        SIZE asked, made;
        int bits;
    } cases[] = {{{5, 6}, {5, 6}, 32}, {{0, 5}, {1, 1}, 1}, {{5, 0}, {1, 1}, 1}};
    for (const auto& c : cases) {
        const HBITMAP bitmap = CreateCompatibleBitmap(canvas, c.asked.cx, c.asked.cy);
        BITMAP record{};
        EXPECT_NE(GetObjectA(bitmap, sizeof record, &record), 0);
        EXPECT_EQ(record.bmWidth, c.made.cx);
        EXPECT_EQ(record.bmHeight, c.made.cy);
        EXPECT_EQ(record.bmBitsPixel, c.bits);
        DeleteObject(bitmap);
    }
    const HDC fresh = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(fresh, 17, 2);
    BITMAP record{};
    GetObjectA(bitmap, sizeof record, &record);
    EXPECT_EQ(record.bmBitsPixel, 1);
    EXPECT_EQ(record.bmWidthBytes, 4);
    DeleteObject(bitmap);
    DeleteDC(fresh);
}

TEST(GdiBitmaps, ColorsMayBeIndexesIntoTheDefaultPalette) {
    Indexed indexed{};
    indexed.info = Info(1, 1, 8);
    WORD indexes[256];
    for (int i = 0; i < 256; ++i)
        indexes[i] = static_cast<WORD>(i);
    std::memcpy(indexed.Colors(), indexes, sizeof indexes);
    void* bits = nullptr;
    EXPECT_EQ(CreateDIBSection(nullptr, &indexed.info, DIB_PAL_COLORS, &bits, nullptr, 0), nullptr);
    const Canvas canvas(1, 1);
    const HBITMAP bitmap = CreateDIBSection(canvas, &indexed.info, DIB_PAL_COLORS, &bits, nullptr, 0);
    ASSERT_NE(bitmap, nullptr);
    const HGDIOBJ former = SelectObject(canvas, bitmap);
    const struct {
        int index;
        COLORREF color;
    } cases[] = {
        {0, kBlack}, {1, RGB(128, 0, 0)}, {12, RGB(128, 128, 128)}, {19, kWhite}, {24, RGB(0, 0, 128)}};
    for (const auto& c : cases) {
        *static_cast<BYTE*>(bits) = static_cast<BYTE>(c.index);
        EXPECT_EQ(GetPixel(canvas, 0, 0), c.color) << c.index;
    }
    SelectObject(canvas, former);
    DeleteObject(bitmap);
    // Where pixels are colours, the usage does not count.
    const BITMAPINFO direct = Info(1, 1, 32);
    const HBITMAP plain = CreateDIBSection(nullptr, &direct, DIB_PAL_COLORS, &bits, nullptr, 0);
    EXPECT_NE(plain, nullptr);
    DeleteObject(plain);
}

TEST(GdiBitmaps, BlocksMoveBetweenDepthsAndWithinOne) {
    for (const int from : {8, 24, 32}) {
        for (const int to : {8, 24, 32}) {
            // Wine takes another colour than the nearest one.
            if (to == 8 && from != 8) continue;
            const Canvas source(4, 4, from);
            const Canvas target(5, 5, to, false);
            SetPixel(source, 2, 0, RGB(70, 70, 70));
            SetPixel(source, 3, 1, kBlack);
            // What the source does not have is left as it is.
            SetPixel(target, 0, 0, kBlack);
            EXPECT_TRUE(BitBlt(target, 0, 0, 4, 4, source, 2, -1, SRCCOPY));
            EXPECT_EQ(target.Picture(), (Picture{"#....", "?....", ".#...", ".....", "....."})) << from << to;
        }
    }
    for (const POINT by :
         {POINT{1, 1}, POINT{-1, 1}, POINT{1, -1}, POINT{-1, -1}, POINT{1, 0}, POINT{-1, 0}}) {
        const Canvas canvas(7, 7);
        for (int i = 0; i < 3; ++i)
            SetPixel(canvas, 2 + i, 2 + i * i % 3, kBlack);
        const Picture before = canvas.Picture();
        EXPECT_TRUE(BitBlt(canvas, 2 + by.x, 2 + by.y, 3, 3, canvas, 2, 2, SRCCOPY));
        const Picture after = canvas.Picture();
        for (int y = 0; y < 3; ++y) {
            EXPECT_EQ(after[static_cast<size_t>(2 + y + by.y)].substr(static_cast<size_t>(2 + by.x), 3),
                      before[static_cast<size_t>(2 + y)].substr(2, 3));
        }
    }
}

// Sets lines of a picture 1 wide and 6 high, whose rows are numbered as they stand in memory, and tells which
// row came where.
std::string SetLines(bool topDown, int y, DWORD height, int fromY, UINT start, UINT count) {
    const Canvas canvas(1, 12);
    BITMAPINFO info = Info(1, topDown ? -6 : 6, 32);
    const DWORD rows[6] = {0, 1, 2, 3, 4, 5};
    std::ostringstream text;
    text << SetDIBitsToDevice(canvas, 0, y, 1, height, 0, fromY, start, count, rows, &info, DIB_RGB_COLORS)
         << ':';
    for (int line = 0; line < 12; ++line) {
        const COLORREF color = GetPixel(canvas, 0, line);
        if (color != kWhite) text << ' ' << line << '<' << static_cast<int>(GetBValue(color));
    }
    return text.str();
}

TEST(GdiBitmaps, LinesOfAPictureAreSet) {
    const struct {
        bool topDown;
        int y;
        DWORD height;
        int fromY;
        UINT start, count;
        const char* set;
    } cases[] = {
        {false, 4, 6, 0, 0, 6, "6: 4<5 5<4 6<3 7<2 8<1 9<0"},
        {true, 4, 6, 0, 0, 6, "6: 4<0 5<1 6<2 7<3 8<4 9<5"},
        // Cut off by the target's edges.
        {false, -2, 6, 0, 0, 6, "6: 0<3 1<2 2<1 3<0"},
        {true, 9, 6, 0, 0, 6, "6: 9<0 10<1 11<2"},
        // A part, counted from below.
        {false, 4, 2, 1, 0, 6, "3: 4<2 5<1"},
        {true, 4, 2, 1, 0, 6, "6: 4<3 5<4"},
        {false, 4, 6, 1, 0, 6, "6: 5<5 6<4 7<3 8<2 9<1"},
        {false, 4, 6, -1, 0, 6, "5: 4<4 5<3 6<2 7<1 8<0"},
        // Bands of it.
        {false, 4, 6, 0, 1, 2, "2: 7<1 8<0"},
        {true, 4, 6, 0, 1, 2, "2: 7<0 8<1"},
        {false, 4, 6, 0, 5, 6, "1: 4<0"},
        {false, 4, 6, 0, 0, 0, "0:"},
        {false, 4, 6, 0, 7, 1, "0:"},
        {false, 4, 6, 6, 0, 6, "0:"},
        {false, 4, 0, 0, 0, 6, "0:"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(SetLines(c.topDown, c.y, c.height, c.fromY, c.start, c.count), c.set);
}

TEST(GdiBitmaps, PicturesOfEachDepthAreSet) {
    Indexed indexed{};
    indexed.info = Info(3, 1, 8);
    indexed.info.bmiHeader.biClrUsed = 2;
    indexed.Colors()[1] = {30, 20, 10, 0};
    const BYTE bytes8[4] = {1, 0, 1, 0};
    const BYTE bytes24[12] = {30, 20, 10, 0, 0, 0, 30, 20, 10};
    const BYTE bytes32[13] = {0, 30, 20, 10, 255, 0, 0, 0, 255, 30, 20, 10, 255};
    const BITMAPINFO info24 = Info(3, 1, 24);
    const BITMAPINFO info32 = Info(3, 1, 32);
    const struct {
        const BITMAPINFO* info;
        const BYTE* bytes;
    } cases[] = {{&indexed.info, bytes8}, {&info24, bytes24}, {&info32, bytes32 + 1}};  // at any address
    for (const auto& c : cases) {
        for (const int bits : {24, 32}) {
            const Canvas canvas(4, 2, bits);
            EXPECT_EQ(SetDIBitsToDevice(canvas, -1, 1, 9, 1, 0, 0, 0, 1, c.bytes, c.info, DIB_RGB_COLORS), 1);
            EXPECT_EQ(canvas.Picture(), (Picture{"....", "#?.."})) << bits;
            EXPECT_EQ(GetPixel(canvas, 1, 1), RGB(10, 20, 30));
        }
    }
}

TEST(GdiBitmaps, PicturesThatAreNotUnderstoodAreNotSet) {
    const Canvas canvas(2, 2);
    const DWORD pixels[4] = {};
    const auto set = [&](const BITMAPINFO* info, const void* bits, UINT usage) {
        return SetDIBitsToDevice(canvas, 0, 0, 2, 2, 0, 0, 0, 2, bits, info, usage);
    };
    const BITMAPINFO good = Info(2, 2, 32);
    EXPECT_EQ(set(&good, nullptr, DIB_RGB_COLORS), 0);
    EXPECT_EQ(set(nullptr, pixels, DIB_RGB_COLORS), 0);
    EXPECT_EQ(set(&good, pixels, 3), 0);
    for (const BITMAPINFO& bad : {Info(2, 2, 7), Info(-2, 2, 32), Info(2, 0, 32), Info(0, 2, 32)})
        EXPECT_EQ(set(&bad, pixels, DIB_RGB_COLORS), 0);
    EXPECT_EQ(SetDIBitsToDevice(canvas, 0, 0, 2, 2, 2, 0, 0, 2, pixels, &good, DIB_RGB_COLORS), 0);
    EXPECT_EQ(canvas.Picture(), (Picture{"..", ".."}));
    EXPECT_EQ(set(&good, pixels, DIB_RGB_COLORS), 2);
    EXPECT_EQ(canvas.Picture(), (Picture{"##", "##"}));
}

}  // namespace
