#include <file_faults.h>
#include <gtest/gtest.h>

#include <string>

#include "catalogue/project_record.h"
#include "catalogue/script_operations.h"
#include "project_fixture.h"

namespace {

class ProjectFaultsTest : public ProjectTest {
protected:
    ~ProjectFaultsTest() override { SetFileFaults({}); }
};

// The disk is full after any number of bytes: the main script is the old or the new one, never a part.
TEST_F(ProjectFaultsTest, TheMainScriptSurvivesAFullDisk) {
    WriteTemplate("lamp.brl", "// needs: tools.brl\n");
    const std::string before = "include <a.brl>;\nvar x; " + std::string(9000, 'x') + "\n";
    int written = 0;
    for (uint64_t goodBytes = 0; goodBytes < 9200; goodBytes += 97) {
        WriteMain(before);
        SetFileFaults({.goodBytes = goodBytes, .failures = 1});
        const InstallResult result = Install(host.get(), Template("lamp.brl").c_str());
        SetFileFaults({});
        written += result == InstallResult::Installed;
        const std::string lines = "include <tools.brl>;\r\ninclude <lamp.brl>;\r\n";
        const std::string after = std::string(before).insert(17, lines);
        EXPECT_TRUE(Main() == (result == InstallResult::Installed ? after : before)) << goodBytes;

        WriteMain(before);
        host->TakeCalls();
        SetFileFaults({.goodBytes = goodBytes, .failures = 1});
        const RecordChange change = ChangeByRemoving("a.brl");
        SetFileFaults({});
        EXPECT_TRUE(Main() == (change == RecordChange::Written ? before.substr(17) : before)) << goodBytes;
        EXPECT_EQ(change == RecordChange::Written, CountCalls("ScriptsChanged") == 1);
    }
    EXPECT_GT(written, 0);
}

TEST_F(ProjectFaultsTest, CopiesThatFail) {
    WriteTemplate("a.brl", "the new text");
    folder.Write("project/a.brl", "old");
    SetFileFaults({.failingWrite = 1, .failures = 1});
    EXPECT_EQ(TemplateSwap::NotRestored, ReplaceByTemplate(host.get(), "a.brl"));
    EXPECT_EQ("old", folder.Read("project/a.brl"));
    EXPECT_EQ(TakeBoxes(), std::vector{Titled("Copy error (1128).\nNo Update.", MB_OK)});

    // A number is free again, and nothing is included.
    WriteTemplate("door_.brl", "var door%_%;\n");
    WriteMain("var x;\n");
    SetFileFaults({.goodBytes = 4, .failures = 1});
    EXPECT_EQ(InstallResult::TemplateNotCopied, Install(host.get(), Template("door_.brl").c_str()));
    EXPECT_FALSE(HasCopy("door_0.brl"));
    EXPECT_EQ("var x;\n", Main());
}

// Here and not beside the other tests: under Wine the superuser writes to read-only files.
TEST_F(ProjectFaultsTest, AReadOnlyMainScriptStaysAsItIs) {
    WriteMain("include <a>;\nvar x;\n");
    const ReadOnly guard(folder.Path("project/main.brl"));
    EXPECT_EQ(InstallResult::MainScriptNotWritten, Install(host.get(), Template("b.brl").c_str()));
    EXPECT_TRUE(InstallScript(Template("b.brl").c_str()));
    EXPECT_EQ(2, CountCalls("ScriptsChanged"));
    EXPECT_EQ(RecordChange::NotWritten, ChangeByRemoving("a"));
    EXPECT_TRUE(RemoveInclude("a"));
    EXPECT_EQ(0, CountCalls("ScriptsChanged"));
    EXPECT_EQ("include <a>;\nvar x;\n", Main());
}

}  // namespace
