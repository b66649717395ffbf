#include "catalogue/script_operations.h"

#include <gtest/gtest.h>

#include <string>

#include "project_fixture.h"

namespace {

using ScriptOperationsTest = ProjectTest;

TEST(IsNumberedTemplate, GoesByTheName) {
    const struct {
        const char* path;
        bool numbered;
    } cases[] = {
        {"C:\\t\\door_.brl", true}, {"door_.BRL", true},      {"_.brl", true},  {"door.brl", false},
        {"door_0.brl", false},      {"door_.brl.brl", false}, {"door_", false}, {"door_.brlx", false},
        {"door_.b", false},         {".brl", false},          {"", false},      {"C:\\t_.brl\\door", false},
        {"a.b_.brl", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.numbered, IsNumberedTemplate(c.path)) << c.path;
}

TEST_F(ScriptOperationsTest, APlainTemplateIsIncludedAndNotCopied) {
    WriteTemplate("lamp.brl", "// needs: tools.brl\n");
    WriteMain("// main\r\nvar x;\r\n");
    EXPECT_TRUE(InstallScript(Template("lamp.brl").c_str()));
    EXPECT_EQ("// main\r\ninclude <tools.brl>;\r\ninclude <lamp.brl>;\r\nvar x;\r\n", Main());
    EXPECT_FALSE(HasCopy("lamp.brl"));
    EXPECT_EQ(1, CountCalls("ScriptsChanged"));

    EXPECT_EQ(InstallResult::NothingToAdd, Install(host.get(), Template("lamp.brl").c_str()));
    EXPECT_TRUE(InstallScript(Template("lamp.brl").c_str()));
    EXPECT_EQ(0, CountCalls("ScriptsChanged"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ScriptOperationsTest, NumberedCopiesTakeTheFirstFreeNumber) {
    WriteTemplate("door_.brl", "// needs: lock%_%.brl\nvar door%_%; // 100%_% %%_%\n");
    WriteMain("var x;\n");
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(InstallScript(Template("door_.brl").c_str()));
    EXPECT_EQ("// needs: lock_1.brl\nvar door_1; // 100_1 %_1\n", folder.Read("project/door_1.brl"));
    EXPECT_EQ(
        "include <lock_0.brl>;\r\ninclude <door_0.brl>;\r\ninclude <lock_1.brl>;\r\ninclude <door_1.brl>;\r\n"
        "include <lock_2.brl>;\r\ninclude <door_2.brl>;\r\nvar x;\n",
        Main());
    std::filesystem::remove(folder.Path("project/door_1.brl"));
    folder.Write("project/door_.brl", "the project's own");
    EXPECT_EQ(InstallResult::NothingToAdd, Install(host.get(), Template("door_.brl").c_str()));
    EXPECT_TRUE(HasCopy("door_1.brl"));
    EXPECT_FALSE(HasCopy("door_3.brl"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ScriptOperationsTest, ANumberedTemplateInTheProjectGoesByItsName) {
    folder.Write("project/door_.brl", "");
    WriteMain("var x;\n");
    EXPECT_TRUE(InstallScript(Copy("door_.brl").c_str()));
    EXPECT_EQ("include <door_.brl>;\r\nvar x;\n", Main());
    EXPECT_EQ(0, CountCalls("CopyWithSubstitution"));
}

TEST_F(ScriptOperationsTest, AMainScriptFromElsewhereIsCopiedIn) {
    HostProject project = host->Project();
    project.mainScript = folder.Name("base\\start.brl");
    folder.Write("base/start.brl", "var x;\n");
    WriteTemplate("lamp.brl", "");

    folder.Write("project/start.brl", "another");
    Begin(project);
    answer = IDCANCEL;
    EXPECT_EQ(InstallResult::MainScriptNotCopied, Install(host.get(), Template("lamp.brl").c_str()));
    EXPECT_EQ(TakeBoxes(), std::vector{Titled(Copy("start.brl") + "\nFile exist! Overwrite?", MB_OKCANCEL)});
    EXPECT_EQ("another", folder.Read("project/start.brl"));

    answer = IDOK;
    EXPECT_TRUE(InstallScript(Template("lamp.brl").c_str()));
    EXPECT_EQ(1u, TakeBoxes().size());
    EXPECT_EQ("include <lamp.brl>;\r\nvar x;\n", folder.Read("project/start.brl"));
    EXPECT_EQ("var x;\n", folder.Read("base/start.brl"));

    WriteTemplate("more.brl", "");
    EXPECT_TRUE(InstallScript(Template("more.brl").c_str()));
    EXPECT_EQ("include <lamp.brl>;\r\ninclude <more.brl>;\r\nvar x;\n", folder.Read("project/start.brl"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ScriptOperationsTest, ANewProjectGetsAMainScript) {
    HostProject project = host->Project();
    project.mainScript.clear();
    Begin(project);
    EXPECT_TRUE(InstallScript(Template("lamp.brl").c_str()));
    EXPECT_NE(std::string::npos, Main().find("include <lamp.brl>;\r\n"));
}

TEST_F(ScriptOperationsTest, InstallsThatCannotBe) {
    WriteTemplate("door_.brl", "");
    g_appInterface = nullptr;
    EXPECT_FALSE(InstallScript(Template("door_.brl").c_str()));
    g_appInterface = host->App();
    const std::string tooLong = "C:\\" + std::string(260, 'n');
    EXPECT_EQ(InstallResult::PathTooLong, Install(host.get(), tooLong.c_str()));

    WriteMain("");
    EXPECT_EQ(InstallResult::MainScriptEmpty, Install(host.get(), Template("door_.brl").c_str()));
    EXPECT_TRUE(HasCopy("door_0.brl"));
    WriteMain("var x;\n");
    EXPECT_EQ(InstallResult::TemplateNotCopied, Install(host.get(), Template("gone_.brl").c_str()));
    EXPECT_EQ("var x;\n", Main());

    HostProject project = host->Project();
    project.folder = folder.Name("missing");
    project.mainScript.clear();
    Begin(project);
    EXPECT_EQ(InstallResult::NoMainScript, Install(host.get(), Template("door_.brl").c_str()));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(ScriptOperationsTest, CopyScriptRefusesWhatDoesNotFit) {
    const std::string room(259 - Copy("_.brl").size(), 'n');
    folder.Write("base/templates/" + room + "_.brl", "");
    char out[260] = "as it was";
    EXPECT_FALSE(
        CopyScript(Template(room + "_.brl").c_str(), out, sizeof out, folder.Name("project").c_str()));
    EXPECT_FALSE(CopyScript(Template("gone.brl").c_str(), out, sizeof out, folder.Name("project").c_str()));
    EXPECT_STREQ("as it was", out);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("project")));

    WriteTemplate("a.brl", "text");
    char small[4];
    EXPECT_TRUE(CopyScript(Template("a.brl").c_str(), small, sizeof small, folder.Name("project").c_str()));
    EXPECT_EQ(Copy("a.brl").substr(0, 3), small);
    EXPECT_EQ("text", folder.Read("project/a.brl"));
}

TEST_F(ScriptOperationsTest, VersionsComeFromTheCopyOrTheTemplate) {
    WriteTemplate("a.brl", "// ver: 2\n// date: 20260101\n");
    folder.Write("project/a.brl", "// ver: 1\n");
    WriteTemplate("b.brl", "// ver: 3\n");
    WriteTemplate("c.brl", "// ver: 4\n");
    folder.Write("project/c.brl", "");
    const struct {
        const char* name;
        bool fromTemplate, found;
        const char* info;
    } cases[] = {
        {"a.brl", false, true, "1|-1"}, {"a.brl", true, true, "2|20260101"},
        {"b.brl", false, true, "3|-1"}, {"c.brl", false, true, "-1|-1"},
        {"c.brl", true, true, "4|-1"},  {"gone.brl", false, false, "-1|-1"},
    };
    CString ver, date;
    for (const auto& c : cases) {
        ver = date = "old";
        EXPECT_EQ(c.found, GetScriptInfo(c.name, ver, date, c.fromTemplate)) << c.name;
        EXPECT_EQ(c.info, std::string((ver + "|" + date).GetString())) << c.name;
    }
    g_appInterface = nullptr;
    EXPECT_FALSE(GetScriptInfo("a.brl", ver, date, false));
    EXPECT_STREQ("-1", ver);
}

TEST_F(ScriptOperationsTest, DeletingTakesTheProjectsCopyAlone) {
    WriteTemplate("a.brl", "template");
    EXPECT_FALSE(DeleteProjectScript("a.brl"));
    folder.Write("project/a.brl", "copy");
    EXPECT_FALSE(DeleteProjectScript("..\\base\\templates\\a.brl"));
    EXPECT_FALSE(DeleteProjectScript("*.brl"));
    EXPECT_TRUE(DeleteProjectScript("A.brl"));
    EXPECT_FALSE(HasCopy("a.brl"));
    EXPECT_EQ("template", folder.Read("base/templates/a.brl"));

    folder.Write("project/a.brl", "copy");
    const ReadOnly guard(folder.Path("project/a.brl"));
    EXPECT_FALSE(DeleteProjectScript("a.brl"));
    EXPECT_TRUE(HasCopy("a.brl"));
}

TEST_F(ScriptOperationsTest, Restoring) {
    using Boxes = std::vector<std::string>;
    WriteTemplate("a.brl", "template");
    EXPECT_TRUE(RestoreScript(host.get(), "a.brl"));
    EXPECT_EQ("template", folder.Read("project/a.brl"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(RestoreScript(host.get(), "a.brl"));
    EXPECT_EQ(Boxes{"Original file still there.|Can't Update Script|16"}, TakeBoxes());
    EXPECT_FALSE(RestoreScript(host.get(), "gone.brl"));
    EXPECT_EQ(Boxes{"Can't find the original in template folder.|Can't Update Script|16"}, TakeBoxes());
    std::filesystem::create_directory(folder.Path("base/templates/folder.brl"));
    EXPECT_FALSE(RestoreScript(host.get(), "folder.brl"));
    EXPECT_EQ(Boxes{Titled("Copy error (1128).\nNo Update.", MB_OK)}, TakeBoxes());
    EXPECT_FALSE(RestoreScript(nullptr, "a.brl"));
    EXPECT_TRUE(boxes.empty());

    EXPECT_TRUE(CanRestoreScript(host.get(), "a.brl"));
    EXPECT_FALSE(CanRestoreScript(host.get(), "gone.brl"));
    EXPECT_FALSE(CanRestoreScript(host.get(), "folder.brl"));
    EXPECT_FALSE(CanRestoreScript(nullptr, "a.brl"));
}

TEST_F(ScriptOperationsTest, AnUpdateNeverCostsTheCopy) {
    WriteTemplate("a.brl", "new");
    EXPECT_EQ(TemplateSwap::NotDeleted, ReplaceByTemplate(host.get(), "a.brl"));
    folder.Write("project/a.brl", "old");
    EXPECT_EQ(TemplateSwap::Done, ReplaceByTemplate(host.get(), "a.brl"));
    EXPECT_EQ("new", folder.Read("project/a.brl"));
    EXPECT_TRUE(boxes.empty());

    folder.Write("project/b.brl", "old");
    EXPECT_EQ(TemplateSwap::NotRestored, ReplaceByTemplate(host.get(), "b.brl"));
    EXPECT_EQ("old", folder.Read("project/b.brl"));
    EXPECT_EQ(1u, TakeBoxes().size());

    const ReadOnly guard(folder.Path("project/a.brl"));
    EXPECT_EQ(TemplateSwap::NotDeleted, ReplaceByTemplate(host.get(), "a.brl"));
    EXPECT_EQ("new", folder.Read("project/a.brl"));
}

}  // namespace
