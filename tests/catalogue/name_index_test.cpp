#include "catalogue/name_index.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(NameIndex, FindsTheFirstOfEachNameHoweverTheListGrows) {
    std::vector<std::string> names;
    const auto nameAt = [&names](uint32_t place) { return std::string_view(names[place]); };
    NameIndex index;
    EXPECT_EQ(index.Find("", nameAt), NameIndex::kNotFound);
    // Each name comes twice, the second time with other steps of growth.
    for (const size_t step : {1u, 700u}) {
        for (int i = 0; i < 5000; ++i) {
            names.push_back(std::to_string(i));
            if (names.size() % step == 0) index.Extend(names.size(), nameAt);
        }
    }
    index.Extend(names.size(), nameAt);
    for (uint32_t i = 0; i < 5000; ++i)
        ASSERT_EQ(index.Find(std::to_string(i), nameAt), i);
    EXPECT_EQ(index.Find("5000", nameAt), NameIndex::kNotFound);
    EXPECT_EQ(index.Find("", nameAt), NameIndex::kNotFound);
    names.emplace_back();
    index.Extend(names.size(), nameAt);
    EXPECT_EQ(index.Find("", nameAt), 10000u);
}

}  // namespace
