#include "catalogue/joined_lines.h"

#include <gtest/gtest.h>

namespace {

TEST(JoinedLines, KnowsWhereEachByteCameFrom) {
    JoinedLines lines;
    for (const char* line : {"", "ab", "", "", "c", ""})
        lines.Add(line);
    EXPECT_EQ(lines.Text(), "abc");
    const struct { size_t offset, line, column; } cases[] = {{0, 2, 1}, {1, 2, 2}, {2, 5, 1}, {3, 6, 1}};
    for (const auto& [offset, line, column] : cases) {
        EXPECT_EQ(lines.PlaceOf(offset).line, line) << offset;
        EXPECT_EQ(lines.PlaceOf(offset).column, column) << offset;
    }
}

TEST(JoinedLines, NoLinesAtAll) {
    EXPECT_EQ(JoinedLines().PlaceOf(0).line, 1u);
    EXPECT_EQ(JoinedLines().PlaceOf(0).column, 1u);
}

}  // namespace
