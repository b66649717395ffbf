#include "catalogue/script_location.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "project_fixture.h"

namespace {

using ScriptLocationTest = ProjectTest;

TEST_F(ScriptLocationTest, TheProjectsCopyGoesFirst) {
    const std::string longest(259 - Copy("").size(), 'n');
    WriteTemplate("a.brl", "template");
    WriteTemplate("b.brl", "template");
    folder.Write("project/b.brl", "");
    folder.Write("project/" + longest, "");
    const std::tuple<std::string, ScriptLocation, std::string> cases[] = {
        {"a.brl", ScriptInTemplates, Template("a.brl")},
        {"b.brl", ScriptInProject, Copy("b.brl")},
        {"c.brl", ScriptNotFound, "c.brl"},
        {"*.brl", ScriptNotFound, "*.brl"},
        {"..\\project\\b.brl", ScriptNotFound, "..\\project\\b.brl"},
        {longest, ScriptInProject, Copy(longest)},
        {longest + "n", ScriptNotFound, longest + "n"},  // and not found where it would be cut
    };
    for (const auto& [given, location, path] : cases) {
        EXPECT_EQ(location, LocateScript(given.c_str())) << given;
        CString name = given.c_str();
        EXPECT_EQ(location, ResolveScript(name)) << given;
        EXPECT_EQ(path, name.GetString());
    }
}

TEST(IsInFolder, ComparesTheFolderPart) {
    EXPECT_TRUE(IsInFolder("C:\\game", "c:\\GAME\\a.brl"));
    EXPECT_FALSE(IsInFolder("C:\\game", "C:\\game\\sub\\a.brl"));
    EXPECT_TRUE(IsInFolder("C:\\games", "C:\\game\\a.brl"));
    EXPECT_FALSE(IsInFolder("C:\\game", "C:\\games\\a.brl"));
    EXPECT_FALSE(IsInFolder("", "C:\\a.brl"));
}

}  // namespace
