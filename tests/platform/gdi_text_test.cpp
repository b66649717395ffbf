#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "platform/canvas.h"

// Text: how large it is, where it comes, and what is around it. Nothing here depends on the font itself.

namespace {

class GdiText : public testing::Test {
protected:
    GdiText() { SelectObject(canvas, GetStockObject(DEFAULT_GUI_FONT)); }

    int Width(const std::string& text) const {
        SIZE size{};
        EXPECT_TRUE(GetTextExtentPoint32A(canvas, text.c_str(), static_cast<int>(text.size()), &size));
        return size.cx;
    }
    int Height() const {
        TEXTMETRICA metrics{};
        EXPECT_TRUE(GetTextMetricsA(canvas, &metrics));
        return metrics.tmHeight;
    }
    // The rectangle that DrawText would take.
    SIZE Taken(const std::string& text, UINT format, RECT room = {10, 20, 200, 120}) const {
        const RECT given = room;
        const int height = DrawTextA(canvas, text.c_str(), -1, &room, format | DT_CALCRECT);
        EXPECT_EQ(room.left, given.left) << text;
        EXPECT_EQ(room.top, given.top) << text;
        EXPECT_EQ(room.bottom - room.top, height) << text;
        return {room.right - room.left, height};
    }
    void ExpectTaken(const std::string& text, UINT format, int width, int lines) const {
        const SIZE taken = Taken(text, format);
        EXPECT_EQ(taken.cx, width) << text;
        EXPECT_EQ(taken.cy, lines * Height()) << text;
    }

    const Canvas canvas{120, 60};
};

TEST_F(GdiText, ExtentsAddUp) {
    SIZE size{};
    EXPECT_TRUE(GetTextExtentPoint32A(canvas, "Hello", 5, &size));
    EXPECT_EQ(size.cy, Height());
    EXPECT_EQ(Width("  "), 2 * Width(" "));
    EXPECT_EQ(Width("HHHH"), 4 * Width("H"));
    EXPECT_GT(Width("W"), Width("i"));
    for (int c = 0x20; c < 0x100; ++c) {
        if (c == 0x7f || c == 0xad) continue;
        EXPECT_GT(Width(std::string(1, static_cast<char>(c))), 0) << c;
    }
    EXPECT_TRUE(GetTextExtentPoint32A(canvas, nullptr, 0, &size));
    EXPECT_EQ(size.cx, 0);
    EXPECT_FALSE(GetTextExtentPoint32A(canvas, "abc", -1, &size));
}

TEST_F(GdiText, MetricsFitTheFont) {
    for (const LONG height : {-11, -13, -20, 13, 16, 30}) {
        for (const LONG weight : {FW_NORMAL, FW_BOLD}) {
            LOGFONTA record{};
            record.lfHeight = height;
            record.lfWeight = weight;
            std::strcpy(record.lfFaceName, "MS Shell Dlg");
            const HFONT font = CreateFontIndirectA(&record);
            const HGDIOBJ former = SelectObject(canvas, font);
            TEXTMETRICA metrics{};
            EXPECT_TRUE(GetTextMetricsA(canvas, &metrics));
            const LONG asked = height < 0 ? metrics.tmHeight - metrics.tmInternalLeading : metrics.tmHeight;
            EXPECT_NEAR(asked, std::abs(height), 1);
            EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent) << height;
            EXPECT_GT(metrics.tmAscent, metrics.tmDescent) << height;
            EXPECT_GT(metrics.tmAveCharWidth, 0) << height;
            EXPECT_GE(metrics.tmMaxCharWidth, Width("W")) << height;
            EXPECT_EQ(metrics.tmWeight, weight) << height;
            SelectObject(canvas, former);
            DeleteObject(font);
        }
    }
}

TEST_F(GdiText, ABoldFontIsBlacker) {
    LOGFONTA record{};
    GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof record, &record);
    const int normal = Width("Hamburg");
    record.lfWeight = FW_BOLD;
    const HFONT font = CreateFontIndirectA(&record);
    const HGDIOBJ former = SelectObject(canvas, font);
    EXPECT_GT(Width("Hamburg"), normal);
    SelectObject(canvas, former);
    DeleteObject(font);
}

TEST_F(GdiText, IsDrawnInsideItsCell) {
    EXPECT_TRUE(TextOutA(canvas, 20, 10, "Hxg\xc4", 4));
    const RECT inked = canvas.Inked();
    EXPECT_GE(inked.left, 19);
    EXPECT_LE(inked.right, 21 + Width("Hxg\xc4"));
    EXPECT_GE(inked.top, 10);
    EXPECT_LE(inked.bottom, 10 + Height());
    EXPECT_GT(inked.bottom - inked.top, Height() / 2);
    EXPECT_FALSE(TextOutA(canvas, 0, 0, "abc", -1));
    EXPECT_TRUE(TextOutA(canvas, 0, 0, nullptr, 0));
}

TEST_F(GdiText, TheBackgroundIsThatOfTheMode) {
    const int width = Width("ab");
    SetBkColor(canvas, RGB(1, 2, 3));
    SetTextColor(canvas, kWhite);
    SetBkMode(canvas, TRANSPARENT);
    TextOutA(canvas, 5, 5, "ab", 2);
    EXPECT_EQ(canvas.Inked().right, 0);
    SetBkMode(canvas, OPAQUE);
    TextOutA(canvas, 5, 5, "ab", 2);
    const RECT inked = canvas.Inked();
    EXPECT_EQ(inked.left, 5);
    EXPECT_EQ(inked.top, 5);
    EXPECT_EQ(inked.right, 5 + width);
    EXPECT_EQ(inked.bottom, 5 + Height());
    EXPECT_EQ(GetPixel(canvas, 5, 5), RGB(1, 2, 3));
}

TEST_F(GdiText, ARectangleIsFilledOrClips) {
    const RECT rect{10, 12, 30, 16};
    SetBkColor(canvas, RGB(1, 2, 3));
    SetBkMode(canvas, TRANSPARENT);
    EXPECT_TRUE(ExtTextOutA(canvas, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr));
    const auto expectRect = [&] {
        const RECT inked = canvas.Inked();
        EXPECT_EQ(inked.left, rect.left);
        EXPECT_EQ(inked.top, rect.top);
        EXPECT_EQ(inked.right, rect.right);
        EXPECT_EQ(inked.bottom, rect.bottom);
    };
    expectRect();
    canvas.Clear();
    SetBkMode(canvas, OPAQUE);
    EXPECT_TRUE(ExtTextOutA(canvas, 0, 10, ETO_CLIPPED, &rect, "MMMMMMMMMMMM", 12, nullptr));
    expectRect();
    canvas.Clear();
    const INT steps[] = {40, 7};
    EXPECT_TRUE(ExtTextOutA(canvas, 3, 0, 0, nullptr, "HH", 2, steps));
    // The last character may be wider than its step.
    EXPECT_NEAR(canvas.Inked().right, 3 + 47, 4);
}

TEST_F(GdiText, DrawTextMeasuresLines) {
    const int hello = Width("Hello");
    const int world = Width("world");
    const int wider = std::max(hello, world);
    ExpectTaken("Hello", 0, hello, 1);
    ExpectTaken("Hello", DT_SINGLELINE | DT_RIGHT, hello, 1);
    for (const char* text :
         {"Hello\nworld", "Hello\r\nworld", "Hello\n\rworld", "Hello\rworld", "Hello\nworld\n"})
        ExpectTaken(text, 0, wider, 2);
    ExpectTaken("\n\n", 0, 0, 2);
    ExpectTaken("Hello\n\nworld", 0, wider, 3);
    ExpectTaken("H&ello", 0, hello, 1);
    ExpectTaken("Hel&&lo", 0, Width("Hel&lo"), 1);
    ExpectTaken("Hello&", 0, Width("Hello&"), 1);
    ExpectTaken("H&ello", DT_NOPREFIX, Width("H&ello"), 1);
    TEXTMETRICA metrics{};
    GetTextMetricsA(canvas, &metrics);
    const int tab = 8 * metrics.tmAveCharWidth;
    ExpectTaken("a\tb", DT_EXPANDTABS, tab + Width("b"), 1);
    ExpectTaken("a\t\tb", DT_EXPANDTABS | DT_SINGLELINE, 2 * tab + Width("b"), 1);
}

TEST_F(GdiText, DrawTextWithNothingToDraw) {
    RECT rect{10, 20, 200, 120};
    EXPECT_EQ(DrawTextA(canvas, "Hello", 0, &rect, DT_CALCRECT), 0);
    EXPECT_EQ(rect.right, 200);
    EXPECT_EQ(DrawTextA(canvas, "", -1, &rect, DT_CALCRECT), Height());
    EXPECT_EQ(rect.right, 10);
    EXPECT_EQ(rect.bottom, 20);
}

TEST_F(GdiText, DrawTextBreaksBetweenWords) {
    const int foo = Width("foo"), bar = Width("bar"), space = Width(" ");
    const struct {
        int room, lines, width;
    } cases[] = {
        {1, 3, std::max({foo, bar, Width("baz")})},
        {std::max(foo, bar) + 2 * space, 3, std::max({foo + space, bar + space, Width("baz")})},
        {Width("foo bar "), 2, Width("foo bar ")},
        // The space behind a word belongs to it.
        {Width("foo bar"), 3, std::max({foo + space, bar + space, Width("baz")})},
        {Width("foo bar baz"), 1, Width("foo bar baz")},
    };
    for (const auto& c : cases) {
        const SIZE taken = Taken("foo bar baz", DT_WORDBREAK, {10, 20, 10 + c.room, 21});
        EXPECT_EQ(taken.cy, c.lines * Height()) << c.room;
        EXPECT_EQ(taken.cx, c.width) << c.room;
    }
    // A word that is too long is not divided.
    EXPECT_EQ(Taken("foobarbaz x", DT_WORDBREAK, {0, 0, foo, 9}).cx, Width("foobarbaz"));
    EXPECT_EQ(Taken("foo bar", DT_WORDBREAK | DT_SINGLELINE, {0, 0, foo, 9}).cy, Height());
}

TEST_F(GdiText, DrawTextPlacesTheLine) {
    const int width = Width("Hxg"), height = Height();
    RECT room{10, 4, 110, 54};
    const int top = 4 + 25 - height / 2;
    const struct {
        UINT format;
        int left, top;
    } cases[] = {{DT_SINGLELINE, 10, 4},
                 {DT_SINGLELINE | DT_VCENTER, 10, top},
                 {DT_CENTER, 10 + (100 - width) / 2, 4},
                 {DT_CENTER | DT_VCENTER, 10 + (100 - width) / 2, 4},  // counts for single lines only
                 {DT_RIGHT | DT_SINGLELINE | DT_VCENTER, 110 - width, top}};
    SetBkColor(canvas, RGB(1, 2, 3));
    for (const auto& c : cases) {
        canvas.Clear();
        EXPECT_EQ(DrawTextA(canvas, "Hxg", 3, &room, c.format), c.top - 4 + height) << c.format;
        const RECT inked = canvas.Inked();
        EXPECT_EQ(inked.left, c.left) << c.format;
        EXPECT_EQ(inked.top, c.top) << c.format;
        EXPECT_EQ(inked.right, c.left + width) << c.format;
    }
    RECT calculated{10, 4, 110, 54};
    EXPECT_EQ(DrawTextA(canvas, "Hxg", 3, &calculated, DT_SINGLELINE | DT_VCENTER | DT_CALCRECT),
              top - 4 + height);
    EXPECT_EQ(calculated.top, 4);
    EXPECT_EQ(calculated.bottom, top + height);
}

TEST_F(GdiText, DrawTextKeepsInsideItsRectangle) {
    RECT small{10, 10, 14, 13};
    SetBkColor(canvas, RGB(1, 2, 3));
    DrawTextA(canvas, "Hello", -1, &small, DT_SINGLELINE);
    RECT inked = canvas.Inked();
    EXPECT_EQ(inked.right, 14);
    EXPECT_EQ(inked.bottom, 13);
    DrawTextA(canvas, "Hello", -1, &small, DT_SINGLELINE | DT_NOCLIP);
    inked = canvas.Inked();
    EXPECT_EQ(inked.right, 10 + Width("Hello"));
    EXPECT_EQ(inked.bottom, 10 + Height());
}

TEST_F(GdiText, AMarkedLetterIsUnderlined) {
    RECT room{10, 10, 110, 50};
    SetBkMode(canvas, TRANSPARENT);
    DrawTextA(canvas, "nm", -1, &room, DT_SINGLELINE);
    const LONG plain = canvas.Inked().bottom;
    canvas.Clear();
    DrawTextA(canvas, "n&m", -1, &room, DT_SINGLELINE);
    const RECT inked = canvas.Inked();
    EXPECT_GT(inked.bottom, plain);
    const int row = inked.bottom - 1;
    EXPECT_EQ(GetPixel(canvas, 10 + Width("n") + Width("m") / 2, row), kBlack);
    EXPECT_EQ(GetPixel(canvas, 10 + Width("n") / 2, row), kWhite);
}

TEST_F(GdiText, ThreadsShareTheFonts) {
    const auto width = [](HDC dc, LONG height) {
        LOGFONTA record{};
        record.lfHeight = height;
        const HFONT font = CreateFontIndirectA(&record);
        const HGDIOBJ former = SelectObject(dc, font);
        SIZE size{};
        GetTextExtentPoint32A(dc, "Hamburg", 7, &size);
        TextOutA(dc, 0, 0, "Hamburg", 7);
        SelectObject(dc, former);
        DeleteObject(font);
        return size.cx;
    };
    LONG widths[2] = {};
    std::vector<std::thread> threads;
    for (LONG& sum : widths) {
        threads.emplace_back([&sum, width] {
            const Canvas own(60, 30);
            for (LONG height = -30; height < -8; ++height)
                sum += width(own, height);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_GT(widths[0], 0);
    EXPECT_EQ(widths[0], widths[1]);
}

}  // namespace
