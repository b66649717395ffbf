#include <gtest/gtest.h>

#include "platform/canvas.h"

// Pixels of lines, fills and edges, and the clip.

namespace {

void Line(HDC dc, int x0, int y0, int x1, int y1) {
    MoveToEx(dc, x0, y0, nullptr);
    LineTo(dc, x1, y1);
}

const HBRUSH kBlackBrush = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));

TEST(GdiDrawing, ALineLeavesItsLastPointOut) {
    const Canvas canvas(9, 5);
    Line(canvas, 1, 1, 4, 1);
    Line(canvas, 8, 0, 8, 3);
    Line(canvas, 4, 3, 1, 3);
    Line(canvas, 6, 4, 6, 2);
    Line(canvas, 0, 0, 0, 0);
    EXPECT_EQ(canvas.Picture(), (Picture{"........#", ".###....#", "........#", "..###.#..", "......#.."}));
    POINT position{};
    MoveToEx(canvas, 7, 7, &position);
    EXPECT_EQ(position.x, 0);
}

TEST(GdiDrawing, ASlopeKeepsToTheNearestPixels) {
    const Canvas canvas(22, 10);
    Line(canvas, 9, 0, 0, 4);
    Line(canvas, 21, 0, 14, 9);
    Line(canvas, 9, 9, 0, 5);
    EXPECT_EQ(canvas.Picture(),
              (Picture{"........##...........#", "......##............#.", "....##.............#..",
                       "..##...............#..", ".#................#...", ".#...............#....",
                       "..##............#.....", "....##..........#.....", "......##.......#......",
                       "........##............"}));
    const Canvas diagonals(8, 4);
    Line(diagonals, 0, 0, 3, 3);
    Line(diagonals, 7, 0, 4, 3);
    EXPECT_EQ(diagonals.Picture(), (Picture{"#......#", ".#....#.", "..#..#..", "........"}));
}

TEST(GdiDrawing, LinesReachFarOutside) {
    const Canvas canvas(4, 3);
    Line(canvas, -30000, 1, 30000, 1);
    Line(canvas, 2, -30000, 2, 30000);
    EXPECT_EQ(canvas.Picture(), (Picture{"..#.", "####", "..#."}));
    canvas.Clear();
    Line(canvas, -10000, -10000, 10000, 10000);
    EXPECT_EQ(canvas.Picture(), (Picture{"#...", ".#..", "..#."}));
    SelectObject(canvas, GetStockObject(NULL_PEN));
    Line(canvas, 0, 2, 4, 2);
    EXPECT_EQ(canvas.Picture()[2], "..#.");
}

TEST(GdiDrawing, AWidePenCoversBothSides) {
    const Canvas canvas(10, 9);
    const HPEN pen = CreatePen(PS_SOLID, 3, kBlack);
    const HGDIOBJ former = SelectObject(canvas, pen);
    Line(canvas, 2, 4, 8, 4);
    SelectObject(canvas, former);
    DeleteObject(pen);
    // The ends are not alike everywhere.
    for (int y = 0; y < 9; ++y)
        EXPECT_EQ(GetPixel(canvas, 5, y), y >= 3 && y <= 5 ? kBlack : kWhite) << y;
}

TEST(GdiDrawing, FillsLeaveTheirRightAndLowerSideOut) {
    const Canvas canvas(6, 4);
    const RECT rect{1, 1, 3, 3};
    EXPECT_TRUE(FillRect(canvas, &rect, kBlackBrush));
    EXPECT_EQ(canvas.Picture(), (Picture{"......", ".##...", ".##...", "......"}));
    const RECT mixed{2, 0, 6, 2};
    EXPECT_TRUE(InvertRect(canvas, &mixed));
    EXPECT_EQ(canvas.Picture(), (Picture{"..####", ".#.###", ".##...", "......"}));
    // A size below 0 reaches back, up to and including the starting point.
    canvas.Clear();
    SelectObject(canvas, GetStockObject(BLACK_BRUSH));
    EXPECT_TRUE(PatBlt(canvas, 3, 2, -2, -2, PATCOPY));
    EXPECT_TRUE(PatBlt(canvas, 5, 0, 0, 9, PATCOPY));
    EXPECT_EQ(canvas.Picture(), (Picture{"......", "..##..", "..##..", "......"}));
    EXPECT_TRUE(PatBlt(canvas, 3, 1, 2, 1, DSTINVERT));
    EXPECT_EQ(canvas.Picture()[1], "..#.#.");
    SelectObject(canvas, GetStockObject(WHITE_BRUSH));
    EXPECT_TRUE(PatBlt(canvas, 0, 3, 6, 1, PATINVERT));
    EXPECT_EQ(canvas.Picture()[3], "######");
    SelectObject(canvas, GetStockObject(NULL_BRUSH));
    EXPECT_TRUE(PatBlt(canvas, 0, 0, 6, 4, PATCOPY));
    EXPECT_EQ(canvas.Picture()[3], "######");
    EXPECT_FALSE(PatBlt(canvas, 0, 0, 1, 1, SRCCOPY));
}

TEST(GdiDrawing, ABrushMayBeTheNumberOfASystemColor) {
    const Canvas canvas(3, 1);
    RECT rect{1, 0, 2, 1};
    EXPECT_TRUE(FillRect(canvas, &rect, reinterpret_cast<HBRUSH>(INT_PTR{COLOR_HIGHLIGHT + 1})));
    EXPECT_EQ(GetPixel(canvas, 1, 0), GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(GetPixel(canvas, 2, 0), kWhite);
    rect = {2, 0, 3, 1};
    EXPECT_TRUE(FillRect(canvas, &rect, GetSysColorBrush(COLOR_BTNSHADOW)));
    EXPECT_EQ(GetPixel(canvas, 2, 0), GetSysColor(COLOR_BTNSHADOW));
}

TEST(GdiDrawing, Frames) {
    const Canvas canvas(8, 5);
    const struct {
        RECT rect;
        int drawn;
    } cases[] = {{{0, 0, 4, 4}, 1}, {{6, 1, 7, 4}, 1}, {{5, 1, 5, 4}, 0}, {{4, 4, 1, 1}, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(FrameRect(canvas, &c.rect, kBlackBrush), c.drawn) << c.rect.left;
    EXPECT_EQ(canvas.Picture(), (Picture{"####....", "#..#..#.", "#..#..#.", "####..#.", "........"}));
}

TEST(GdiDrawing, TheFocusRectangleTakesItselfBack) {
    const Canvas canvas(16, 8);
    const RECT odd{1, 1, 8, 6};
    const RECT even{9, 1, 15, 7};
    EXPECT_TRUE(DrawFocusRect(canvas, &odd));
    EXPECT_TRUE(DrawFocusRect(canvas, &even));
    Picture dots = canvas.Picture();
    for (std::string& row : dots)
        std::replace(row.begin(), row.end(), '?', '#');
    EXPECT_EQ(dots,
              (Picture{"................", ".#.#.#.#..#.#.#.", ".........#......", ".#.....#......#.",
                       ".........#......", ".#.#.#.#......#.", ".........#.#.#..", "................"}));
    EXPECT_TRUE(DrawFocusRect(canvas, &odd));
    EXPECT_TRUE(DrawFocusRect(canvas, &even));
    EXPECT_EQ(canvas.Picture(), Picture(8, std::string(16, '.')));
}

TEST(GdiDrawing, Edges) {
    const int light = COLOR_3DLIGHT, high = COLOR_BTNHIGHLIGHT, shadow = COLOR_BTNSHADOW,
              dark = COLOR_3DDKSHADOW;
    const struct {
        UINT edge;
        int outer[2], inner[2];  // left and top, right and bottom; -1 for none
    } cases[] = {
        {EDGE_RAISED, {light, dark}, {high, shadow}},  {EDGE_SUNKEN, {shadow, high}, {dark, light}},
        {EDGE_ETCHED, {shadow, high}, {high, shadow}}, {BDR_RAISEDOUTER, {light, dark}, {-1, -1}},
        {BDR_SUNKENOUTER, {shadow, high}, {-1, -1}},   {BDR_SUNKENINNER, {dark, light}, {-1, -1}},
    };
    for (const auto& c : cases) {
        const Canvas canvas(12, 12);
        RECT rect{2, 2, 10, 10};
        EXPECT_TRUE(DrawEdge(canvas, &rect, c.edge, BF_RECT | BF_ADJUST));
        const bool two = c.inner[0] >= 0;
        EXPECT_EQ(rect.left, two ? 4 : 3) << c.edge;
        EXPECT_EQ(rect.bottom, two ? 8 : 9) << c.edge;
        const auto color = [&](int index) { return index < 0 ? kWhite : GetSysColor(index); };
        EXPECT_EQ(GetPixel(canvas, 2, 5), color(c.outer[0])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 5, 2), color(c.outer[0])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 9, 5), color(c.outer[1])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 5, 9), color(c.outer[1])) << c.edge;
        // The right and the lower side have the corners.
        EXPECT_EQ(GetPixel(canvas, 9, 2), color(c.outer[1])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 2, 9), color(c.outer[1])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 3, 5), color(c.inner[0])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 8, 5), color(c.inner[1])) << c.edge;
        EXPECT_EQ(GetPixel(canvas, 5, 5), kWhite) << c.edge;
    }
    const Canvas canvas(12, 12);
    RECT rect{2, 2, 10, 10};
    EXPECT_TRUE(DrawEdge(canvas, &rect, EDGE_SUNKEN, BF_TOP | BF_MIDDLE));
    EXPECT_EQ(GetPixel(canvas, 9, 3), GetSysColor(dark));
    EXPECT_EQ(GetPixel(canvas, 2, 4), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(GetPixel(canvas, 9, 9), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(rect.top, 2);
}

TEST(GdiDrawing, PixelsOutsideCannotBeRead) {
    const Canvas canvas(2, 2);
    EXPECT_EQ(SetPixel(canvas, 1, 0, RGB(1, 2, 3)), RGB(1, 2, 3));
    EXPECT_EQ(GetPixel(canvas, 1, 0), RGB(1, 2, 3));
    for (const POINT outside : {POINT{-1, 0}, POINT{2, 0}, POINT{0, 2}, POINT{0, -1}})
        EXPECT_EQ(GetPixel(canvas, outside.x, outside.y), CLR_INVALID);
    IntersectClipRect(canvas, 0, 0, 1, 1);
    SetPixel(canvas, 1, 0, kBlack);
    EXPECT_EQ(GetPixel(canvas, 1, 0), RGB(1, 2, 3));
}

void ExpectBox(HDC dc, int kind, RECT expected) {
    RECT box{9, 9, 9, 9};
    EXPECT_EQ(GetClipBox(dc, &box), kind);
    EXPECT_EQ(box.left, expected.left);
    EXPECT_EQ(box.top, expected.top);
    EXPECT_EQ(box.right, expected.right);
    EXPECT_EQ(box.bottom, expected.bottom);
}

TEST(GdiDrawing, TheClipNarrowsAndIsRestored) {
    const Canvas canvas(24, 16);
    ExpectBox(canvas, SIMPLEREGION, {0, 0, 24, 16});
    EXPECT_EQ(IntersectClipRect(canvas, 2, 3, 100, 100), SIMPLEREGION);
    ExpectBox(canvas, SIMPLEREGION, {2, 3, 24, 16});
    EXPECT_EQ(IntersectClipRect(canvas, 10, 10, 5, 5), SIMPLEREGION);
    EXPECT_EQ(SaveDC(canvas), 1);
    ExpectBox(canvas, SIMPLEREGION, {5, 5, 10, 10});
    EXPECT_EQ(IntersectClipRect(canvas, 8, 9, 9, 10), SIMPLEREGION);
    EXPECT_EQ(SaveDC(canvas), 2);
    EXPECT_EQ(IntersectClipRect(canvas, 500, 500, 600, 600), NULLREGION);
    ExpectBox(canvas, NULLREGION, {0, 0, 0, 0});
    for (const int none : {3, 0, -3})
        EXPECT_FALSE(RestoreDC(canvas, none)) << none;
    EXPECT_TRUE(RestoreDC(canvas, -1));
    ExpectBox(canvas, SIMPLEREGION, {8, 9, 9, 10});
    EXPECT_TRUE(RestoreDC(canvas, 1));
    ExpectBox(canvas, SIMPLEREGION, {5, 5, 10, 10});
    EXPECT_FALSE(RestoreDC(canvas, -1));
}

TEST(GdiDrawing, EverythingKeepsInsideTheClip) {
    const Canvas canvas(6, 6);
    const Canvas source(6, 6);
    const RECT all{0, 0, 6, 6};
    FillRect(source, &all, kBlackBrush);
    IntersectClipRect(canvas, 2, 2, 4, 4);
    const Picture expected{"......", "......", "..##..", "..##..", "......", "......"};
    const auto check = [&](const char* what) {
        EXPECT_EQ(canvas.Picture(), expected) << what;
        canvas.Clear();
    };
    FillRect(canvas, &all, kBlackBrush);
    check("fill");
    InvertRect(canvas, &all);
    check("inversion");
    BitBlt(canvas, -1, -1, 6, 6, source, 0, 0, SRCCOPY);
    check("copy");
    for (int y = -1; y < 6; ++y)
        Line(canvas, -5, y, 9, y);
    check("lines");
    SetBkColor(canvas, kBlack);
    ExtTextOutA(canvas, 0, 0, ETO_OPAQUE, &all, "", 0, nullptr);
    check("text background");
}

TEST(GdiDrawing, RestoringSelectsWhatIsStillThere) {
    const Canvas canvas(2, 2);
    const HPEN lasting = CreatePen(PS_SOLID, 1, kBlack);
    const HBRUSH gone = CreateSolidBrush(kBlack);
    const HGDIOBJ pen = SelectObject(canvas, lasting);
    const HGDIOBJ brush = SelectObject(canvas, gone);
    SetTextColor(canvas, RGB(1, 2, 3));
    SaveDC(canvas);
    SelectObject(canvas, pen);
    SelectObject(canvas, brush);
    SetTextColor(canvas, kBlack);
    EXPECT_TRUE(DeleteObject(gone));
    EXPECT_EQ(GetObjectType(gone), 0u);
    EXPECT_TRUE(RestoreDC(canvas, -1));
    EXPECT_EQ(GetCurrentObject(canvas, OBJ_PEN), lasting);
    EXPECT_EQ(GetCurrentObject(canvas, OBJ_BRUSH), brush);
    EXPECT_EQ(GetTextColor(canvas), RGB(1, 2, 3));
    SelectObject(canvas, pen);
    DeleteObject(lasting);
}

}  // namespace
