#include <file_faults.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "manager/script_update.h"
#include "manager_fixture.h"

namespace {

// Each write fails in turn: of the old values, of the template, of the new values.
TEST_F(ManagerTest, AFullDiskNeverCostsTheCopy) {
    const std::string before = "//entry Speed\n//id 1\ns=9;\n";
    WriteTemplate("a.brl", "// ver: 2\n//entry Speed\n//id 1\ns=5;\n");
    std::set<UpdateResult> results;
    for (unsigned write = 1; !results.contains(UpdateResult::Updated); ++write) {
        ASSERT_LT(write, 20u);
        std::filesystem::remove(folder.Path("project/a.brl.brlv"));
        WriteCopy("a.brl", before);
        SetFileFaults({.failingWrite = write, .failures = 1});
        const UpdateResult result = UpdateScript("a.brl").result;
        SetFileFaults({});
        results.insert(result);
        const bool updated = result == UpdateResult::Updated || result == UpdateResult::SideFileStale;
        EXPECT_EQ(ReadCopy("a.brl") != before, updated) << write;
    }
    EXPECT_EQ(results,
              (std::set{UpdateResult::ValuesNotKept, UpdateResult::NotReplaced,
                        UpdateResult::ValuesNotWritten, UpdateResult::SideFileStale, UpdateResult::Updated}));
    EXPECT_EQ(TakeBoxes(), std::vector{Titled("Copy error (1128).\nNo Update.", MB_OK)});

    std::filesystem::remove(folder.Path("project/a.brl.brlv"));
    WriteCopy("a.brl", before);
    SetFileFaults({.failingWrite = 2});
    EXPECT_EQ(UpdateScript("a.brl").result, UpdateResult::CopyLost);
    SetFileFaults({});
    EXPECT_EQ(ReadCopy("a.brl.brlv"), "1\n-1\n-1\n\n1\n11\n9\n\n");
}

}  // namespace
