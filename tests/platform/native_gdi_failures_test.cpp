#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "platform/canvas.h"

// Where the stand-in fails as published and Wine crashes, or tells of a success.

namespace {

TEST(GdiFailures, NullPointersAreRefused) {
    const Canvas canvas(2, 2);
    EXPECT_FALSE(FillRect(canvas, nullptr, GetSysColorBrush(COLOR_BTNFACE)));
    EXPECT_FALSE(FrameRect(canvas, nullptr, GetSysColorBrush(COLOR_BTNFACE)));
    EXPECT_FALSE(InvertRect(canvas, nullptr));
    EXPECT_FALSE(DrawFocusRect(canvas, nullptr));
    EXPECT_FALSE(DrawEdge(canvas, nullptr, EDGE_RAISED, BF_RECT));
    EXPECT_EQ(DrawTextA(canvas, "a", 1, nullptr, DT_LEFT), 0);
    EXPECT_FALSE(TextOutA(canvas, 0, 0, nullptr, 3));
    EXPECT_FALSE(GetTextExtentPoint32A(canvas, "a", 1, nullptr));
    EXPECT_FALSE(GetTextMetricsA(canvas, nullptr));
    EXPECT_EQ(GetClipBox(canvas, nullptr), RGN_ERROR);
    EXPECT_EQ(CreateFontIndirectA(nullptr), nullptr);
}

TEST(GdiFailures, BadContextsAndBrushesAreRefused) {
    const Canvas canvas(2, 2);
    RECT rect{0, 0, 1, 1};
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    EXPECT_FALSE(FillRect(nullptr, &rect, brush));
    for (const HGDIOBJ bad :
         {HGDIOBJ(nullptr), GetStockObject(BLACK_PEN), reinterpret_cast<HGDIOBJ>(INT_PTR{32})}) {
        EXPECT_FALSE(FillRect(canvas, &rect, static_cast<HBRUSH>(bad)));
        EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    }
    EXPECT_EQ(DrawTextA(nullptr, "a", 1, &rect, DT_CALCRECT), 0);
    EXPECT_EQ(DrawTextA(canvas, "a", -2, &rect, DT_CALCRECT), 0);
    EXPECT_EQ(CreatePen(1, 1, kBlack), nullptr);
    EXPECT_EQ(canvas.Picture(), (Picture{"..", ".."}));
}

TEST(GdiFailures, TooManyObjectsAreRefused) {
    std::vector<HBRUSH> brushes;
    for (HBRUSH brush = nullptr; (brush = CreateSolidBrush(kBlack));)
        brushes.push_back(brush);
    EXPECT_GT(brushes.size(), 9000u);
    EXPECT_EQ(CreateCompatibleDC(nullptr), nullptr);
    for (const HBRUSH brush : brushes)
        EXPECT_TRUE(DeleteObject(brush));
    EXPECT_EQ(GetObjectType(brushes.back()), 0u);
    const HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_TRUE(DeleteDC(dc));
}

TEST(GdiFailures, PlacesFarAwayDoNotOverflow) {
    const Canvas canvas(3, 3);
    const int most = 0x7fffffff;
    for (const int far : {most, -most - 1}) {
        const int opposite = far > 0 ? -most / 2 : most / 2;
        const RECT rect{far, far, opposite, most};
        RECT text = rect;
        FillRect(canvas, &rect, GetSysColorBrush(COLOR_BTNTEXT));
        DrawFocusRect(canvas, &rect);
        MoveToEx(canvas, far, 3, nullptr);
        LineTo(canvas, opposite, far);
        PatBlt(canvas, far, far, far, far, PATCOPY);
        BitBlt(canvas, far, 0, far, 3, canvas, far, far, SRCCOPY);
        TextOutA(canvas, far, far, "abc", 3);
        DrawTextA(canvas, "abc def", -1, &text, DT_WORDBREAK | DT_CENTER);
        const DWORD pixel = 0;
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, 1, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        SetDIBitsToDevice(canvas, far, far, 0xffffffffu, 0xffffffffu, far, far, 0, 1, &pixel, &info,
                          DIB_RGB_COLORS);
        EXPECT_EQ(SetPixel(canvas, far, far, kBlack), kBlack);
        EXPECT_EQ(GetPixel(canvas, far, far), CLR_INVALID);
        IntersectClipRect(canvas, far, far, opposite, 0);
        GetClipBox(canvas, &text);
    }
}

}  // namespace
