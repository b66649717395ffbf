#include "catalogue/script_info.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "string_arrays.h"

namespace {

using namespace std::string_literals;

TEST(ScriptInfo, VersionDateAndNeeds) {
    const std::pair<std::string, std::string> cases[] = {
        {"// ver: 104\r\n// date: 2026\r\n", "104|2026|"},  {"var x;\n// version: 3\n", "-1|-1|"},
        {"// ver: 1\nvar x;\n// ver: 2\n", "2|-1|"},        {"// ver: 1\n// ver:\n", "|-1|"},
        {"// ver:12\n// ver 34\n// date56 7\n", "4|-1|"},   {"// ver: 1.2;3:4\n", "1.2;3:4|-1|"},
        {"// verb: 3\n// ve: 4\n// dated: 5\n", "-1|-1|"},  {"// ver: 9\0008\n"s, "9|-1|"},
        {"// need: a.brl\nneeds: b.brl\n", "-1|-1|"},       {"// date: 5 May\n", "-1|5|"},
        {"// needs: a\rb\n// needs: c\0d\n"s, "-1|-1|a|c"}, {"// ver: ,,7,8\n", "7|-1|"},
        {"// needs: b, a;c.brl d\n", "-1|-1|b|a|c.brl|d"},  {"// ver\rX 9\n", "9|-1|"},
        {"/// needs: a\n/// ver: 3\n", "-1|-1|"},           {"// needs:\n// needs", "-1|-1|"},
    };
    for (const auto& [text, expected] : cases) {
        CLex lex(text.data(), static_cast<long>(text.size()));
        const ScriptInfo info = ReadScriptInfo(lex);
        CLex again(text.data(), static_cast<long>(text.size()));
        CStringArray names;
        const int count = ReadNeeds(again, names);
        EXPECT_EQ(names.GetSize(), count) << text;
        EXPECT_EQ(expected, (info.ver + "|" + info.date + "|").GetString() + Joined(names)) << text;
    }
}

}  // namespace
