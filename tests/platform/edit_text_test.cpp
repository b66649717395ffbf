#include <gtest/gtest.h>

#include "edit_lines.h"
#include "edit_text.h"

namespace {

TEST(EditText, StepsOverLineEndsAndWords) {
    EditText text(true);
    text.Assign("a b\r\n\r\r\n\nc\r");
    const struct {
        size_t at;
        size_t next;
        size_t next_word;
    } forward[] = {{0, 1, 2}, {2, 3, 3},   {3, 5, 5},    {5, 8, 8},
                   {8, 9, 9}, {9, 10, 11}, {10, 11, 11}, {11, 11, 11}};
    for (const auto& c : forward) {
        EXPECT_EQ(text.Next(c.at), c.next) << c.at;
        EXPECT_EQ(text.NextWord(c.at), c.next_word) << c.at;
        if (c.next > c.at) {
            EXPECT_EQ(text.Previous(c.next), c.at);
        }
    }
    EXPECT_EQ(text.Previous(0), 0u);
    EXPECT_EQ(text.PreviousWord(3), 2u);
    EXPECT_EQ(text.PreviousWord(2), 0u);
    EXPECT_EQ(text.PreviousWord(5), 3u);
    EditText one(false);
    one.Assign("a\r\nb");
    EXPECT_EQ(one.Next(1), 2u) << "a line end is none in a single line";
    EXPECT_EQ(one.LineEndAt(1), 0u);
}

TEST(EditText, CutsBackWhatHadNoRoom) {
    EditText text(false);
    text.Assign("abc");
    text.Select(1, 2);
    text.Replace("XYZ");
    text.CutBeforeCaret(2);
    EXPECT_EQ(text.Text(), "aXc");
    EXPECT_EQ(text.Caret(), 2u);
}

// Ten pixels for every character but the narrow i.
TextMeasure TenEach() {
    return TextMeasure([](char c) { return c == 'i' ? 3 : 10; });
}

TEST(TextMeasure, WidthsPlacesAndTabs) {
    TextMeasure measure = TenEach();
    EXPECT_EQ(measure.WidthOf("aib"), 23);
    EXPECT_EQ(measure.WidthOf("a\tb"), 30) << "without tabs they are characters";
    measure.SetTabs({15, 70}, 80);
    EXPECT_EQ(measure.WidthOf("\tb"), 25);
    EXPECT_EQ(measure.WidthOf("\t\tb"), 80);
    EXPECT_EQ(measure.WidthOf("\t\t\t"), 80);
    EXPECT_EQ(measure.WidthOf("\t\t\t\t"), 160);
    const struct {
        int x;
        size_t position;
    } places[] = {{-5, 0}, {4, 0}, {5, 1}, {11, 1}, {12, 2}, {17, 2}, {18, 3}, {500, 3}};
    for (const auto& c : places)
        EXPECT_EQ(measure.PositionAt("aib", c.x), c.position) << c.x;
    EXPECT_EQ(measure.Fitting("aaaa", 29), 2u);
    EXPECT_EQ(measure.Fitting("aaaa", 30), 3u);
    EXPECT_EQ(measure.Fitting("aaaa", 400), 4u);
}

TEST(EditLines, WrapBehindTheLastWordThatFits) {
    const struct {
        const char* text;
        int width;
        std::vector<std::string> lines;
    } cases[] = {
        {"aa bb cc", 61, {"aa bb ", "cc"}},
        {"aa bb cc", 60, {"aa ", "bb cc"}},
        {"aaaaaaaa b", 41, {"aaaa", "aaaa", " b"}},
        {"aa\r\nbb cc", 41, {"aa", "bb ", "cc"}},
        {"aa ", 25, {"aa", " "}},
        {"abc", 1, {"a", "b", "c"}},
        {"", 50, {""}},
        {"a\n", 50, {"a", ""}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.text << " in " << c.width);
        EditText text(true);
        text.Assign(c.text);
        EditLines lines;
        lines.Build(text, TenEach(), c.width);
        ASSERT_EQ(lines.Count(), c.lines.size());
        for (size_t i = 0; i < lines.Count(); ++i) {
            EXPECT_EQ(text.Text().substr(lines[i].start, lines[i].length), c.lines[i]);
            EXPECT_EQ(lines.LineOf(lines[i].start), i);
            const bool end = i + 1 == lines.Count() || text.LineEndAt(lines[i].start + lines[i].length) > 0;
            EXPECT_EQ(lines.IsWrapped(i), !end);
        }
    }
}

}  // namespace
