#include "manager/script_update.h"

#include <gtest/gtest.h>

#include <string>

#include "manager_fixture.h"

namespace {

using ScriptUpdateTest = ManagerTest;

const std::string kClosing("\r\n\0", 3);

TEST_F(ScriptUpdateTest, ValuesMoveByTheirIds) {
    WriteCopy("a.brl",
              "// ver: 1\n//entry Speed\n//id 1\ns=9;\n//entry Gone\n//id 2\ng=1;\n//entry Free\nf=3;\n"
              "//entry Same\nq=4;\n");
    WriteTemplate("a.brl", "// ver: 2\n//entry Same\nq=4;\n//entry Free\nf=1;\n//entry Pace\n//id 1\ns=5;\n");
    const ScriptUpdate update = UpdateScript("a.brl");
    ASSERT_EQ(update.result, UpdateResult::Updated);
    EXPECT_EQ(ReadCopy("a.brl"),
              "// ver: 2\n//entry Same\nq=4;\n//entry Free\nf=1;\n//entry Pace\n//id 1\ns=9;\n" + kClosing);
    EXPECT_EQ(ReadCopy("a.brl.brlv"), "1\n2\n-1\n\n1\n11\n9\n\n");
    ASSERT_EQ(update.carried.size(), 2u);
    EXPECT_EQ(update.carried[0].entry, 2);
    EXPECT_EQ(update.carried[1].entry, -1);
    EXPECT_EQ(update.carried[1].saved->id, 2);
    EXPECT_EQ(FindLostValues(update.before.List(), update.original.List()), std::vector<size_t>{2});
    EXPECT_TRUE(TakeBoxes().empty());
}

// Without a value to carry the copy is the template to the last byte; the side file keeps what was there.
TEST_F(ScriptUpdateTest, NothingToCarry) {
    WriteCopy("a.brl", "//entry Gone\n//id 2\ng=1;\n");
    WriteTemplate("a.brl", "// ver: 2\n");
    EXPECT_EQ(UpdateScript("a.brl").result, UpdateResult::Updated);
    EXPECT_EQ(ReadCopy("a.brl"), "// ver: 2\n");
    EXPECT_EQ(ReadCopy("a.brl.brlv"), "1\n-1\n-1\n\n2\n11\n1\n\n");
}

TEST_F(ScriptUpdateTest, ARefusalChangesNothing) {
    const std::string longLine(1100, 'x');
    const struct {
        std::string copy;
        const char* original;
        UpdateResult result;
    } cases[] = {
        {"//entry_drop A\n//id 1\na=x\"y;\n", "//entry A\n//id 1\na=\"z\";\n", UpdateResult::WouldBreak},
        {"// " + longLine + "\n", "", UpdateResult::LineTooLong},
        {"//entry A\n//id 1\na=1;\n", nullptr, UpdateResult::TemplateNotReadable},
    };
    for (const auto& c : cases) {
        WriteCopy("a.brl", c.copy);
        std::filesystem::remove(folder.Path("base/templates/a.brl"));
        if (c.original) WriteTemplate("a.brl", c.original);
        EXPECT_EQ(UpdateScript("a.brl").result, c.result);
        EXPECT_EQ(ReadCopy("a.brl"), c.copy);
        EXPECT_FALSE(HasCopy("a.brl.brlv"));
    }
    EXPECT_EQ(UpdateScript("b.brl").result, UpdateResult::CopyNotReadable);
    EXPECT_EQ(UpdateScript("..\\a.brl").result, UpdateResult::CopyNotReadable);
}

}  // namespace
