#include "catalogue/script_location.h"

#include <gtest/gtest.h>

#include <string>

#include "project_fixture.h"

namespace {

using ScriptLocationTest = ProjectTest;

TEST_F(ScriptLocationTest, TheProjectsCopyGoesFirst) {
    WriteTemplate("a.brl", "template");
    WriteTemplate("b.brl", "template");
    folder.Write("project/b.brl", "");
    const struct {
        const char* name;
        ScriptLocation location;
        std::string path;
    } cases[] = {
        {"a.brl", ScriptInTemplates, Template("a.brl")},
        {"b.brl", ScriptInProject, Copy("b.brl")},
        {"A.BRL", ScriptInTemplates, Template("A.BRL")},
        {"c.brl", ScriptNotFound, "c.brl"},
        {"", ScriptNotFound, ""},
        {"*.brl", ScriptNotFound, "*.brl"},
        {"..\\project\\b.brl", ScriptNotFound, "..\\project\\b.brl"},
        {"../project/b.brl", ScriptNotFound, "../project/b.brl"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.location, LocateScript(c.name)) << c.name;
        CString name = c.name;
        EXPECT_EQ(c.location, ResolveScript(name)) << c.name;
        EXPECT_EQ(c.path, name.GetString());
    }
    g_appInterface = nullptr;
    EXPECT_EQ(ScriptNotFound, LocateScript("b.brl"));
}

TEST_F(ScriptLocationTest, AHostThatTellsNoFolder) {
    WriteTemplate("a.brl", "template");
    HostProject project = host->Project();
    project.folder.clear();
    Begin(project);
    EXPECT_EQ(ScriptInTemplates, LocateScript("a.brl"));
    project.templateFolder.clear();
    Begin(project);
    EXPECT_EQ(ScriptNotFound, LocateScript("a.brl"));
}

// A name that would have to be cut is found nowhere, even where the cut one is there.
TEST_F(ScriptLocationTest, ThePathsLimit) {
    const std::string longest(259 - Copy("").size(), 'n');
    folder.Write("project/" + longest, "");
    EXPECT_EQ(ScriptInProject, LocateScript(longest.c_str()));
    EXPECT_EQ(ScriptNotFound, LocateScript((longest + "n").c_str()));
}

TEST(IsInFolder, ComparesTheFolderPart) {
    const struct {
        const char *folder, *path;
        bool in;
    } cases[] = {
        {"C:\\game", "C:\\game\\a.brl", true},
        {"C:\\game", "c:\\GAME\\a.brl", true},
        {"C:\\game", "C:\\game\\sub\\a.brl", false},
        {"C:\\game\\sub", "C:\\game\\a.brl", true},
        {"C:\\games", "C:\\game\\a.brl", true},
        {"C:\\game", "C:\\games\\a.brl", false},
        {"C:\\game", "a.brl", false},
        {"C:\\game", "\\a.brl", true},
        {"", "C:\\a.brl", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.in, IsInFolder(c.folder, c.path)) << c.folder << " " << c.path;
}

}  // namespace
