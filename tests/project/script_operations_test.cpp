#include "catalogue/script_operations.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "project_fixture.h"

namespace {

using ScriptOperationsTest = ProjectTest;

TEST(IsNumberedTemplate, GoesByTheName) {
    for (const char* numbered : {"C:\\t\\door_.brl", "door_.BRL", "_.brl", "a.b_.brl"})
        EXPECT_TRUE(IsNumberedTemplate(numbered)) << numbered;
    for (const char* plain : {"door_0.brl", "door_.brl.brl", "door_", "door_.brlx", "", "C:\\t_.brl\\door"})
        EXPECT_FALSE(IsNumberedTemplate(plain)) << plain;
}

TEST_F(ScriptOperationsTest, APlainTemplateIsIncludedAndNotCopied) {
    WriteTemplate("lamp.brl", "// needs: tools.brl\n");
    WriteMain("// main\r\nvar x;\r\n");
    EXPECT_TRUE(InstallScript(Template("lamp.brl").c_str()));
    EXPECT_EQ("// main\r\ninclude <tools.brl>;\r\ninclude <lamp.brl>;\r\nvar x;\r\n", Main());
    EXPECT_FALSE(HasCopy("lamp.brl"));
    EXPECT_EQ(1, CountCalls("ScriptsChanged"));

    EXPECT_EQ(InstallResult::NothingToAdd, Install(host.get(), Template("lamp.brl").c_str()));
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
    EXPECT_TRUE(InstallScript(Copy("door_.brl").c_str()));  // in the project it goes by its own name
    EXPECT_TRUE(Main().find("include <door_.brl>;\r\n") != std::string::npos);
    EXPECT_FALSE(HasCopy("door_3.brl"));
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
}

TEST_F(ScriptOperationsTest, InstallsThatCannotBe) {
    WriteTemplate("door_.brl", "");
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
    const std::string project = folder.Name("project");
    const std::string room(259 - Copy("_.brl").size(), 'n');
    WriteTemplate(room + "_.brl", "");
    char out[260] = "as it was";
    for (const std::string& name : {room + "_.brl", std::string("gone.brl")})
        EXPECT_FALSE(CopyScript(Template(name).c_str(), out, sizeof out, project.c_str()));
    EXPECT_STREQ("as it was", out);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("project")));

    WriteTemplate("a.brl", "text");
    EXPECT_TRUE(CopyScript(Template("a.brl").c_str(), out, 4, project.c_str()));
    EXPECT_EQ(Copy("a.brl").substr(0, 3), out);
    EXPECT_EQ("text", folder.Read("project/a.brl"));
}

TEST_F(ScriptOperationsTest, VersionsComeFromTheCopyOrTheTemplate) {
    WriteTemplate("a.brl", "// ver: 2\n// date: 20260101\n");
    folder.Write("project/a.brl", "// ver: 1\n");
    WriteTemplate("b.brl", "// ver: 3\n");
    const std::tuple<const char*, bool, const char*> cases[] = {
        {"a.brl", false, "1|-1"},
        {"a.brl", true, "2|20260101"},
        {"b.brl", false, "3|-1"},
        {"gone.brl", false, "-1|-1"},
    };
    for (const auto& [name, fromTemplate, info] : cases) {
        CString ver("old"), date("old");
        EXPECT_EQ(name != std::string("gone.brl"), GetScriptInfo(name, ver, date, fromTemplate)) << name;
        EXPECT_EQ(info, std::string((ver + "|" + date).GetString())) << name;
    }
}

TEST_F(ScriptOperationsTest, DeletingTakesTheProjectsCopyAlone) {
    WriteTemplate("a.brl", "template");
    EXPECT_FALSE(DeleteProjectScript("a.brl"));
    folder.Write("project/a.brl", "copy");
    EXPECT_FALSE(DeleteProjectScript("..\\base\\templates\\a.brl"));
    EXPECT_TRUE(DeleteProjectScript("A.brl"));
    EXPECT_FALSE(HasCopy("a.brl"));
    EXPECT_EQ("template", folder.Read("base/templates/a.brl"));

    folder.Write("project/a.brl", "copy");
    const ReadOnly guard(folder.Path("project/a.brl"));
    EXPECT_FALSE(DeleteProjectScript("a.brl"));
    EXPECT_TRUE(HasCopy("a.brl"));
}

TEST_F(ScriptOperationsTest, Restoring) {
    WriteTemplate("a.brl", "template");
    std::filesystem::create_directory(folder.Path("base/templates/folder.brl"));
    EXPECT_TRUE(RestoreScript(host.get(), "a.brl"));
    EXPECT_EQ("template", folder.Read("project/a.brl"));
    EXPECT_TRUE(boxes.empty());
    const std::tuple<const char*, std::string, bool> cases[] = {
        {"a.brl", "Original file still there.|Can't Update Script|16", true},
        {"gone.brl", "Can't find the original in template folder.|Can't Update Script|16", false},
        {"folder.brl", Titled("Copy error (1128).\nNo Update.", MB_OK), false}};
    for (const auto& [name, box, can] : cases) {
        EXPECT_FALSE(RestoreScript(host.get(), name)) << name;
        EXPECT_EQ(std::vector{box}, TakeBoxes());
        EXPECT_EQ(can, CanRestoreScript(host.get(), name)) << name;
    }
    EXPECT_FALSE(RestoreScript(nullptr, "a.brl"));
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
}

}  // namespace
