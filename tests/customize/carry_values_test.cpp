#include "customize/carry_values.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parsed_script.h"

namespace {

TEST(CarryValues, GoToTheFirstRecordWithTheirId) {
    const ParsedScript script(
        "//entry A\n//id 5\na=1;\n//entry B\n//id 7\nb=\"x\";\n//entry C\n//id 5\nc=3;\n// id 9\n// title: "
        "T\n");
    const std::vector<SavedValue> values = {{5, 11, "50"}, {6, 11, "60"}, {7, 14, "long\ntext"}, {9, 0, "t"}};
    std::string taken;
    const std::vector<CarriedValue> carried =
        CarryValues(script.list, values, [&taken](size_t entry, const CString& value) {
            taken += std::to_string(entry) + "=" + value.GetString() + ";";
        });
    EXPECT_EQ(taken, "0=50;1=long\ntext;3=t;");
    ASSERT_EQ(carried.size(), 4u);
    EXPECT_EQ(carried[1].entry, -1);
    EXPECT_EQ(carried[1].saved->id, 6);
    EXPECT_EQ(carried[3].entry, 3);
}

}  // namespace
