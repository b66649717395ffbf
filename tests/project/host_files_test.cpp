#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "host/action_text.h"
#include "host/file_copy.h"
#include "host/host_path.h"
#include "host/ini_text.h"

namespace {

TEST(HostPath, IsFullAndPlain) {
    EXPECT_EQ("Z:\\game\\sub\\a.brl", PathFrom("Z:\\game", "sub/./a.brl"));
    EXPECT_EQ("Z:\\a", PathFrom("Z:\\game", "..\\..\\..\\a\\"));
    EXPECT_EQ("C:\\a", PathFrom("Z:\\game", "C:\\x\\..\\a"));
    EXPECT_EQ("\\a\\b", PathFrom("Z:\\game", "/a//b"));
}

TEST(IniText, ChangesTheLineAlone) {
    const std::string text = "; note\r\n[a]\r\n  one =  1  \r\ntwo=2\r\n\r\n[ b   c ]\r\none = 3";
    const std::tuple<const char*, const char*, const char*, std::string, std::string> cases[] = {
        {"a", "one", "10", "  one =  1  \r\n", "  one =  10\r\n"},  {"a", "two", "", "two=2\r\n", ""},
        {"a", "three", "x", "two=2\r\n", "two=2\r\nthree = x\r\n"}, {"b c", "one", "5", "one = 3", "one = 5"},
        {"b c", "two", "5", "one = 3", "one = 3\ntwo = 5\n"},       {"b c", "two", "", "", ""},
    };
    EXPECT_EQ(text, IniText(text).Text());
    for (const auto& [section, key, value, before, after] : cases) {
        IniText ini(text);
        ini.Set(section, key, value);
        std::string expected = text;
        if (!before.empty()) expected.replace(expected.rfind(before), before.size(), after);
        EXPECT_EQ(expected, ini.Text()) << section << " " << key;
    }
}

TEST(ActionText, RunsFromItsCommentsToItsEnd) {
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"the body", "x;\naction a_act()\n{\n\tif (x) { y; }\n}\nz;\n", "a_act",
         "action a_act()\n{\n\tif (x) { y; }\n}"},
        {"comments right above", "// no\n\n// yes\n// yes\nAction A_act {\n}\n", "a_act",
         "// yes\n// yes\nAction A_act {\n}"},
        {"the whole name", "action a_actor() {\n}\naction a_act ()\n{\n}", "a_act", "action a_act ()\n{\n}"},
        {"none", "// action a_act\nx; action a_act()\n", "a_act", nullptr},
    };
    for (const auto& [what, script, name, text] : cases) {
        const auto found = FindAction(script, name);
        ASSERT_EQ(text != nullptr, found.has_value()) << what;
        if (found) {
            EXPECT_EQ(text, std::string(script).substr(found->offset, found->length)) << what;
        }
    }
}

TEST(FileCopy, Substitutes) {
    const char* const one[] = {"%_%", "_0", nullptr};
    const char* const two[] = {"ab", "b", "b", "ab", "", "never", nullptr};
    EXPECT_EQ("x_0y_0%_", Substituted("x%_%y%_%%_", one));
    EXPECT_EQ("babab", Substituted("abbb", two));
    EXPECT_EQ("%_%", Substituted("%_%", nullptr));
}

}  // namespace
