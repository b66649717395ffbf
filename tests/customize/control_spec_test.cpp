#include "customize/control_spec.h"

#include <gtest/gtest.h>

namespace {

TEST(ControlSpec, Spin) {
    const struct {
        const char* argument;
        double minimum, maximum, step;
    } cases[] = {
        {"spin", -999999, 999999, 0}, {"SPIN x X x", -999999, 999999, 0},
        {"spin 0 x 5", 0, 999999, 5}, {"spin -1.5 1e2 .25 9", -1.5, 100, 0.25},
        {"spin 1,2 y", 1, 0, 0},
    };
    for (const auto& c : cases) {
        CScriptEntry entry;
        EXPECT_TRUE(ParseControlSpec(entry, c.argument)) << c.argument;
        EXPECT_EQ(entry.limitsMode, LimitsSpin);
        EXPECT_EQ(entry.minValue, c.minimum) << c.argument;
        EXPECT_EQ(entry.maxValue, c.maximum) << c.argument;
        EXPECT_EQ(entry.stepValue, c.step) << c.argument;
    }
}

// A second specification changes only what its own mode sets.
TEST(ControlSpec, ListsAndRepetition) {
    CScriptEntry entry;
    ParseControlSpec(entry, "drop a, b");
    EXPECT_EQ(entry.limitsMode, LimitsDrop);
    EXPECT_EQ(entry.items, (std::vector<CString>{"a,", "b"}));
    ParseControlSpec(entry, "spin 1 2");
    EXPECT_EQ(entry.items.size(), 2u);
    ParseControlSpec(entry, "drop_list c");
    EXPECT_EQ(entry.items, std::vector<CString>{"c"});
    EXPECT_EQ(entry.maxValue, 2);
    EXPECT_FALSE(ParseControlSpec(entry, "slider 1 2"));
    EXPECT_FALSE(ParseControlSpec(entry, ""));
    EXPECT_EQ(entry.limitsMode, LimitsDrop);
    ParseControlSpec(entry, "Drop_Pair x y");
    EXPECT_EQ(entry.limitsMode, LimitsDropPair);
    EXPECT_EQ(entry.items.size(), 1u);
}

TEST(ControlSpec, SizePrefix) {
    const struct {
        const char* text;
        int result, width, height;
        const char* rest;
    } cases[] = {
        {"200, 60, Notes", 1, 200, 60, "Notes"},
        {"200,60,,  Notes, more", 1, 200, 60, "Notes, more"},
        {"200 Notes", 0, 0, 0, "Notes"},
        {"3rd", 0, 0, 0, "rd"},
        {"200", 0, 0, 0, "200"},
        {",,Notes", 0, 0, 0, "Notes"},
        {"200, 60 Notes", 0, 0, 0, "Notes"},
        {"Notes", 0, 0, 0, "Notes"},
        {"", 0, 0, 0, ""},
        {"99999999999, 2, x", 1, 2147483647, 2, "x"},
    };
    for (const auto& c : cases) {
        CString text = c.text;
        int width = -1;
        int height = -1;
        EXPECT_EQ(ParseSizePrefix(text, width, height), c.result) << c.text;
        EXPECT_EQ(width, c.width) << c.text;
        EXPECT_EQ(height, c.height) << c.text;
        EXPECT_EQ(text, c.rest) << c.text;
    }
}

}  // namespace
