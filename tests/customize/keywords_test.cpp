#include "customize/keywords.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <set>
#include <string>

namespace {

TEST(Keywords, FoundByTheirNumbers) {
    const struct {
        const char* text;
        int kind;
    } cases[] = {{"title", 0},          {"ENTRY", 10},      {"entry_numEditF", 12},
                 {"entry_numedit", 11}, {"entry_text", 18}, {"ver", 19},
                 {"flag", 22},          {"flag1", 23},      {"FLAG8", 30},
                 {"skill", 31},         {"skill1", 32},     {"skill20", 51},
                 {"entryx", -1},        {"entr", -1},       {"flag9", -1},
                 {"skill21", -1},       {"", -1},           {"entry_chooseFile_x", -1}};
    for (const auto& c : cases)
        EXPECT_EQ(FindKeyword(c.text, static_cast<int>(strlen(c.text))), c.kind) << c.text;
    EXPECT_EQ(FindKeyword("entryx", 5), KindEntry);
    EXPECT_EQ(FindKeyword(nullptr, 5), -1);
}

TEST(Keywords, EveryNameFindsItselfInAnyCase) {
    std::set<std::string> names;
    for (int kind = 0; kind < KeywordCount; ++kind) {
        std::string name = KeywordName(kind);
        names.insert(name);
        for (char& ch : name)
            ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
        EXPECT_EQ(FindKeyword(name.data(), static_cast<int>(name.size())), kind) << name;
    }
    EXPECT_EQ(names.size(), 52u);
    EXPECT_STREQ(KeywordName(-1), "");
    EXPECT_STREQ(KeywordName(52), "");
}

}  // namespace
