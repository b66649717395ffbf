#include "catalogue/script_info.h"

#include <gtest/gtest.h>

#include <string>

#include "string_arrays.h"

namespace {

using namespace std::string_literals;

std::string InfoOf(const std::string& text) {
    CLex lex(text.data(), static_cast<long>(text.size()));
    const ScriptInfo info = ReadScriptInfo(lex);
    return (info.ver + "|" + info.date).GetString();
}

TEST(ScriptInfo, VersionAndDate) {
    const struct {
        const char* what;
        std::string text, info;
    } cases[] = {
        {"none", "var x;\n// version: 3\n", "-1|-1"},
        {"empty", "", "-1|-1"},
        {"both", "// ver: 104\r\n// date: 20260101\r\n", "104|20260101"},
        {"any case, no blank in front", "//VER: 1a\n  //Date: today", "1a|today"},
        {"a date ends at a blank or comma", "// date: 5 May\n", "-1|5"},
        {"or at a tab", "// date: 5\tMay\n", "-1|5"},
        {"commas in front are skipped", "// ver: ,,7,8\n", "7|-1"},
        {"other separators stay", "// ver: 1.2;3:4\n", "1.2;3:4|-1"},
        {"the last one counts", "// ver: 1\nvar x;\n// ver: 2\n", "2|-1"},
        {"an empty one too", "// ver: 1\n// ver:\n", "|-1"},
        {"nothing behind the key", "// ver", "|-1"},
        {"two bytes are skipped, whatever they are", "// ver:12\n// ver 34\n// date56 7\n", "4|-1"},
        {"delimiters around the key", "//:,;ver,; 9\n", "9|-1"},
        {"three slashes hide it", "/// ver: 3\n", "-1|-1"},
        {"a comment behind code is none", "x; // ver: 3\n", "-1|-1"},
        {"nor is one behind a lone CR", "\r// ver: 3\n", "-1|-1"},
        {"a value may lie behind a lone CR", "// ver\rX 9\n", "9|-1"},
        {"but ends at one", "// ver: 9\r8\n", "9|-1"},
        {"and at a NUL", "// ver: 9\0008\n"s, "9|-1"},
        {"the key must be whole", "// verb: 3\n// ve: 4\n// dated: 5\n", "-1|-1"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.info, InfoOf(c.text)) << c.what;
}

TEST(ScriptInfo, Needs) {
    const struct {
        const char* what;
        std::string text;
        const char* names;
    } cases[] = {
        {"none", "// need: a.brl\nneeds: b.brl\n", ""},
        {"several, in their order", "// needs: b.brl, a.brl;c.brl d.brl\n", "b.brl|a.brl|c.brl|d.brl"},
        {"anywhere, again and again", "//NEEDS a\r\nvar x;\r\n\t// needs: b\r\n", "a|b"},
        {"the same twice", "// needs: a, a\n", "a|a"},
        {"no names", "// needs:\n// needs", ""},
        {"leading delimiters", "//:;,needs a\n", "a"},
        {"three slashes hide it", "/// needs: a\n", ""},
        {"up to a CR or NUL", "// needs: a\rb\n// needs: c\0d\n"s, "a|c"},
        {"not behind code", "x // needs: a\n", ""},
    };
    for (const auto& c : cases) {
        CLex lex(c.text.data(), static_cast<long>(c.text.size()));
        CStringArray names;
        const int count = ReadNeeds(lex, names);
        EXPECT_EQ(names.GetSize(), count) << c.what;
        EXPECT_EQ(c.names, Joined(names)) << c.what;
    }
}

}  // namespace
