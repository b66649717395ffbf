#include <gtest/gtest.h>

#include <string>

#include "host/action_text.h"
#include "host/file_copy.h"
#include "host/host_path.h"
#include "host/ini_text.h"

namespace {

TEST(HostPath, IsFullAndPlain) {
    const struct {
        const char *folder, *path, *full;
    } cases[] = {
        {"Z:\\game", "main.brl", "Z:\\game\\main.brl"},
        {"Z:\\game", "sub/./a.brl", "Z:\\game\\sub\\a.brl"},
        {"Z:\\game", ".", "Z:\\game"},
        {"Z:\\game", "", "Z:\\game"},
        {"Z:\\game", "..\\base\\", "Z:\\base"},
        {"Z:\\game", "..\\..\\..\\a", "Z:\\a"},
        {"Z:\\game", "C:\\x\\..\\a", "C:\\a"},
        {"Z:\\game", "/a//b", "\\a\\b"},
        {"Z:\\game", "\\\\server\\a", "\\\\server\\a"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.full, PathFrom(c.folder, c.path)) << c.path;
}

TEST(IniText, ChangesTheLineAlone) {
    const std::string text = "; note\r\n[a]\r\n  one =  1  \r\ntwo=2\r\n\r\n[ b   c ]\r\none = 3";
    const struct {
        const char *section, *key, *value;
        std::string before, after;
    } cases[] = {
        {"a", "one", "10", "  one =  1  \r\n", "  one =  10\r\n"},  {"a", "two", "", "two=2\r\n", ""},
        {"a", "three", "x", "two=2\r\n", "two=2\r\nthree = x\r\n"}, {"b c", "one", "5", "one = 3", "one = 5"},
        {"b c", "two", "5", "one = 3", "one = 3\ntwo = 5\n"},       {"b c", "two", "", "", ""},
    };
    EXPECT_EQ(text, IniText(text).Text());
    for (const auto& c : cases) {
        IniText ini(text);
        ini.Set(c.section, c.key, c.value);
        std::string expected = text;
        if (!c.before.empty()) expected.replace(expected.rfind(c.before), c.before.size(), c.after);
        EXPECT_EQ(expected, ini.Text()) << c.section << " " << c.key;
    }
}

TEST(ActionText, RunsFromItsCommentsToItsEnd) {
    const struct {
        const char *what, *script, *name, *text;
    } cases[] = {
        {"the body", "x;\naction a_act()\n{\n\tif (x) { y; }\n}\nz;\n", "a_act",
         "action a_act()\n{\n\tif (x) { y; }\n}"},
        {"comments right above", "// no\n\n// yes\n// yes\nAction A_act {\n}\n", "a_act",
         "// yes\n// yes\nAction A_act {\n}"},
        {"the whole name", "action a_actor() {\n}\naction a_act ()\n{\n}", "a_act", "action a_act ()\n{\n}"},
        {"no end", "action a_act()\n{\n", "a_act", "action a_act()\n{\n"},
        {"none", "// action a_act\nx; action a_act()\n", "a_act", nullptr},
    };
    for (const auto& c : cases) {
        const auto found = FindAction(c.script, c.name);
        ASSERT_EQ(c.text != nullptr, found.has_value()) << c.what;
        if (found) {
            EXPECT_EQ(c.text, std::string(c.script).substr(found->offset, found->length)) << c.what;
        }
    }
}

TEST(FileCopy, Substitutes) {
    const char* const one[] = {"%_%", "_0", nullptr};
    const char* const two[] = {"ab", "b", "b", "ab", "", "never", nullptr};
    const char* const none[] = {nullptr};
    EXPECT_EQ("x_0y_0%_", Substituted("x%_%y%_%%_", one));
    EXPECT_EQ("babab", Substituted("abbb", two));
    EXPECT_EQ("%_%", Substituted("%_%", none));
    EXPECT_EQ("%_%", Substituted("%_%", nullptr));
    EXPECT_EQ(std::string("\0_0\0", 4), Substituted(std::string_view("\0%_%\0", 5), one));
}

}  // namespace
