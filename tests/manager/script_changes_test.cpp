#include "manager/script_changes.h"

#include <gtest/gtest.h>

#include <string>

#include "manager_fixture.h"

namespace {

class ScriptChangesTest : public ManagerTest {
protected:
    RemoveResult Remove(const char* name) {
        return RemoveFromProject(catalogue, ListProjectScripts(catalogue), name, nullptr);
    }
};

TEST_F(ScriptChangesTest, AScriptThatOthersNeedStays) {
    Include("bca");
    const std::string before = Main();
    EXPECT_EQ(Remove("B"), RemoveResult::Needed);
    EXPECT_EQ(Main(), before);
    EXPECT_EQ(TakeBoxes(), std::vector<std::string>{"The following scripts must be removed first: \nC\nC\nA|"
                                                    "Can't Remove Script|16"});
    EXPECT_EQ(Remove("C"), RemoveResult::Removed);
    EXPECT_EQ(Remove("A"), RemoveResult::Removed);
    EXPECT_EQ(Remove("B"), RemoveResult::Removed);
    EXPECT_EQ(Main(), "\nvar x;\n");
    EXPECT_EQ(Remove("B"), RemoveResult::NotIncluded);
    EXPECT_EQ(Remove("nobody"), RemoveResult::NotIncluded);
    EXPECT_TRUE(TakeBoxes().empty());
}

// Only scripts of the project count, and nobody needs himself out of it.
TEST_F(ScriptChangesTest, WhatIsNotIncludedNeedsNothing) {
    CTemplateManager own;
    own.LoadText(R"(<c><Script filename="a.brl" name="A"><need>a.brl</need></Script>)", nullptr);
    Include("ba");
    CStringArray dependents;
    FindDependents(own, ListProjectScripts(own), "A", dependents);
    FindDependents(catalogue, {}, "B", dependents);
    EXPECT_TRUE(dependents.IsEmpty());
}

TEST_F(ScriptChangesTest, ResettingDeletesTheCopy) {
    WriteTemplate("a.brl", "");
    WriteCopy("b.brl", "mine");
    WriteTemplate("b.brl", "");
    answer = IDNO;
    EXPECT_EQ(ResetToTemplate("a.brl", nullptr), ResetResult::NoCopy);
    EXPECT_EQ(ResetToTemplate("x.brl", nullptr), ResetResult::NotFound);
    EXPECT_EQ(ResetToTemplate("b.brl", nullptr), ResetResult::Declined);
    EXPECT_EQ(ReadCopy("b.brl"), "mine");
    answer = IDYES;
    EXPECT_EQ(ResetToTemplate("b.brl", nullptr), ResetResult::Done);
    EXPECT_FALSE(HasCopy("b.brl"));
    const std::string question = Titled("Restore values to default??", MB_YESNO);
    EXPECT_EQ(TakeBoxes(),
              (std::vector<std::string>{"Script is already using default values.|Can't Reset|16",
                                        "Script NOT FOUND!|Can't Reset|16", question, question}));

    std::filesystem::create_directory(folder.Path("project/c.brl"));  // found, but no file to delete
    EXPECT_EQ(ResetToTemplate("c.brl", nullptr), ResetResult::NotDeleted);
    EXPECT_EQ(TakeBoxes().back(), "Could not delete file (is the file locked?).|Can't Reset|16");
}

}  // namespace
