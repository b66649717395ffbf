#include <file_faults.h>
#include <gtest/gtest.h>

#include <string>

#include "support/saved_file.h"
#include "temp_folder.h"

namespace {

class SavedFileFaults : public testing::Test {
protected:
    ~SavedFileFaults() override { SetFileFaults({}); }

    SavedFileResult Save(const FileFaults& faults, const std::string& bytes) {
        SetFileFaults(faults);
        const SavedFileResult result = SaveFileContent(folder_.Name("a").c_str(), bytes.data(), bytes.size());
        SetFileFaults({});
        return result;
    }
    bool Holds(const std::string& bytes) const { return folder_.Read("a") == bytes; }

    TempFolder folder_;
};

constexpr size_t kMegabyte = size_t{1} << 20;

TEST_F(SavedFileFaults, AnyFailingWriteBringsTheOldContentBack) {
    const std::string old(2 * kMegabyte + 10, 'a');
    for (const size_t size : {size_t{1}, kMegabyte, old.size(), old.size() + 1, 4 * kMegabyte}) {
        const std::string bytes(size, 'b');
        unsigned failing = 0;
        SavedFileResult result;
        do {
            folder_.Write("a", old);
            FileFaults faults;
            faults.failingWrite = ++failing;
            faults.failures = 1;
            result = Save(faults, bytes);
            EXPECT_TRUE(Holds(result == SavedFileResult::Saved ? bytes : old)) << size << " at " << failing;
        } while (result == SavedFileResult::CannotWrite);
        // The first one that comes through is the one whose fault was never met.
        EXPECT_EQ(SavedFileResult::Saved, result);
        EXPECT_GT(failing, (size + kMegabyte - 1) / kMegabyte);
    }
}

TEST_F(SavedFileFaults, HalfAWriteAndAFullDiskBringTheOldContentBack) {
    const std::string old(10000, 'a');
    folder_.Write("a", old);
    for (const uint64_t good : {0, 1, 5000, 9999}) {
        FileFaults faults;
        faults.goodBytes = good;
        faults.failures = 1;
        EXPECT_EQ(SavedFileResult::CannotWrite, Save(faults, std::string(10000, 'b'))) << good;
        EXPECT_TRUE(Holds(old)) << good;
    }
    folder_.Write("a", "old");
    FileFaults full;
    full.goodBytes = 10;  // and every write after the failing one fails too
    EXPECT_EQ(SavedFileResult::CannotWrite, Save(full, "much longer than before"));
    EXPECT_TRUE(Holds("old"));
    FileFaults broken;
    broken.failingWrite = 1;
    EXPECT_EQ(SavedFileResult::CannotRestore, Save(broken, "new"));
}

TEST_F(SavedFileFaults, AFailingCloseBringsTheOldContentBack) {
    FileFaults closing;
    closing.closeFails = true;
    EXPECT_EQ(SavedFileResult::CannotWrite, Save(closing, "new"));
    EXPECT_FALSE(folder_.Has("a"));
    folder_.Write("a", "old text");
    for (const std::string bytes : {"", "new", "longer than the old"}) {
        EXPECT_EQ(SavedFileResult::CannotWrite, Save(closing, bytes));
        EXPECT_TRUE(Holds("old text")) << bytes;
    }
}

TEST_F(SavedFileFaults, ANewFileIsGoneAgain) {
    FileFaults writing;
    writing.failingWrite = 1;
    EXPECT_EQ(SavedFileResult::CannotWrite, Save(writing, "new"));
    EXPECT_FALSE(folder_.Has("a"));
}

}  // namespace
