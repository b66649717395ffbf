#include "customize/keywords.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cstring>
#include <set>
#include <string>

namespace {

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
    EXPECT_STREQ(KeywordName(KeywordCount), "");
    for (const char* text : {"entryx", "entr", "flag9", "skill21", "", "entry_chooseFile_x"}) {
        EXPECT_EQ(FindKeyword(text, static_cast<int>(strlen(text))), KindNone) << text;
    }
    EXPECT_EQ(FindKeyword("SKILL20", 7), 51);
}

}  // namespace
