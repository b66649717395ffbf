#include "catalogue/joined_lines.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(JoinedLines, KnowsWhereEachByteCameFrom) {
    JoinedLines lines;
    for (const char* line : {"", "ab", "", "", "c", ""})
        lines.Add(line);
    EXPECT_EQ(lines.Text(), "abc");
    const std::tuple<size_t, size_t, size_t> cases[] = {{0, 2, 1}, {1, 2, 2}, {2, 5, 1}, {3, 6, 1}};
    for (const auto& [offset, line, column] : cases) {
        EXPECT_EQ(lines.PlaceOf(offset).line, line) << offset;
        EXPECT_EQ(lines.PlaceOf(offset).column, column) << offset;
    }
    EXPECT_EQ(JoinedLines().PlaceOf(0).line, 1u);
}

}  // namespace
