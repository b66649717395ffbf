#include "customize/control_spec.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

TEST(ControlSpec, Spin) {
    const std::tuple<const char*, double, double, double> cases[] = {
        {"spin", -999999, 999999, 0}, {"SPIN x X x", -999999, 999999, 0},
        {"spin 0 x 5", 0, 999999, 5}, {"spin -1.5 1e2 .25 9", -1.5, 100, 0.25},
        {"spin 1,2 y", 1, 0, 0},
    };
    for (const auto& [argument, minimum, maximum, step] : cases) {
        CScriptEntry entry;
        EXPECT_TRUE(ParseControlSpec(entry, argument)) << argument;
        EXPECT_EQ(entry.limitsMode, LimitsSpin);
        EXPECT_EQ(entry.minValue, minimum) << argument;
        EXPECT_EQ(entry.maxValue, maximum) << argument;
        EXPECT_EQ(entry.stepValue, step) << argument;
    }
}

// A second specification changes only what its own mode sets.
TEST(ControlSpec, ListsAndRepetition) {
    CScriptEntry entry;
    ParseControlSpec(entry, "drop a, b");
    EXPECT_EQ(entry.limitsMode, LimitsDrop);
    ParseControlSpec(entry, "spin 1 2");
    EXPECT_EQ(entry.items, (std::vector<CString>{"a,", "b"}));
    ParseControlSpec(entry, "drop_list c");
    EXPECT_EQ(entry.items, std::vector<CString>{"c"});
    EXPECT_EQ(entry.maxValue, 2);
    EXPECT_FALSE(ParseControlSpec(entry, "slider 1 2") || ParseControlSpec(entry, ""));
    EXPECT_EQ(entry.limitsMode, LimitsDrop);
    ParseControlSpec(entry, "Drop_Pair x y");
    EXPECT_EQ(entry.limitsMode, LimitsDropPair);
    EXPECT_EQ(entry.items.size(), 1u);
}

TEST(ControlSpec, SizePrefix) {
    const std::tuple<const char*, int, int, int, const char*> cases[] = {
        {"200,60,,  Notes, more", 1, 200, 60, "Notes, more"},
        {"200 Notes", 0, 0, 0, "Notes"},
        {"200", 0, 0, 0, "200"},
        {",,Notes", 0, 0, 0, "Notes"},
        {"200, 60 Notes", 0, 0, 0, "Notes"},
        {"", 0, 0, 0, ""},
        {"99999999999, 2, x", 1, 2147483647, 2, "x"},
    };
    for (const auto& [given, result, expectedWidth, expectedHeight, rest] : cases) {
        CString text = given;
        int width = -1;
        int height = -1;
        EXPECT_EQ(ParseSizePrefix(text, width, height), result) << given;
        EXPECT_EQ(width, expectedWidth) << given;
        EXPECT_EQ(height, expectedHeight) << given;
        EXPECT_EQ(text, rest) << given;
    }
}

}  // namespace
