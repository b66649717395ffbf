#include "support/saved_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "support/file_objects.h"
#include "temp_folder.h"

namespace {

SavedFileResult Save(const TempFolder& folder, const std::string& file, const std::string& bytes) {
    return SaveFileContent(folder.Name(file).c_str(), bytes.data(), bytes.size());
}

// Bytes without a period that could hide a block in the wrong place.
std::string Bytes(size_t size) {
    std::string bytes(size, '\0');
    unsigned state = 1;
    for (char& byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

TEST(SavedFile, HoldsExactlyTheNewContent) {
    TempFolder folder;
    const std::string large = Bytes(100000);
    std::string lateChange = large;
    lateChange[99000] ^= 1;
    const std::pair<std::string, std::string> cases[] = {
        {"", "abc"},
        {"abc", ""},
        {"abc\r\nold tail", "xyz"},
        {large, lateChange},
        {large, large},
        {large, large.substr(0, 8192)},
        {large.substr(0, 8192), large},
        {large, large.substr(1)},
        {large, std::string(3, '\0')},
    };
    for (const auto& [before, after] : cases) {
        folder.Write("a.brl", before);
        EXPECT_EQ(SavedFileResult::Saved, Save(folder, "a.brl", after));
        EXPECT_TRUE(after == folder.Read("a.brl")) << before.size() << " to " << after.size();
    }
    EXPECT_EQ(SavedFileResult::Saved, Save(folder, "new.brl", "abc"));
    EXPECT_EQ("abc", folder.Read("new.brl"));
    EXPECT_TRUE(ReplaceFileContent(folder.Name("empty").c_str(), nullptr, 0));
    EXPECT_TRUE(folder.Has("empty"));
}

TEST(SavedFile, GetsTheTimeOfTheSave) {
    TempFolder folder;
    const std::string bytes = Bytes(8192);
    folder.Write("a", bytes);
    FILETIME time{0x12345680, 0x01c40000};
    ASSERT_TRUE(file_t::set_file_time(folder.Name("a").c_str(), &time));
    EXPECT_EQ(SavedFileResult::Saved, Save(folder, "a", bytes));
    ASSERT_TRUE(file_t::get_file_time(folder.Name("a").c_str(), &time));
    EXPECT_GT(time.dwHighDateTime, 0x01c40000u);
}

TEST(SavedFile, TouchesNothingWhenItCannotOpen) {
    TempFolder folder;
    std::filesystem::create_directory(folder.Path("sub"));
    const std::string tooLong(260 - folder.Name("").size(), 'n');
    for (const std::string& file : {std::string("sub"), std::string("missing\\a"), tooLong}) {
        EXPECT_EQ(SavedFileResult::CannotOpen, Save(folder, file, "abc")) << file;
    }
    EXPECT_FALSE(ReplaceFileContent(nullptr, "abc", 3));
    EXPECT_FALSE(ReplaceFileContent("", "abc", 3));
    EXPECT_FALSE(folder.Has("missing"));
    EXPECT_FALSE(folder.Has(tooLong));
    EXPECT_EQ(SavedFileResult::Saved, Save(folder, tooLong.substr(1), "abc"));
}

TEST(SavedFile, LeavesAReadOnlyFileAlone) {
    TempFolder folder;
    folder.Write("locked", "old");
    using std::filesystem::perms;
    constexpr perms kWriting = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(folder.Path("locked"), kWriting, std::filesystem::perm_options::remove);
    FILETIME time{0x12345680, 0x01c40000};
    const bool enforced = !file_t::set_file_time(folder.Name("locked").c_str(), &time);
    const SavedFileResult result = enforced ? Save(folder, "locked", "abc") : SavedFileResult::CannotOpen;
    EXPECT_EQ("old", folder.Read("locked"));
    std::filesystem::permissions(folder.Path("locked"), kWriting, std::filesystem::perm_options::add);
    EXPECT_EQ(SavedFileResult::CannotOpen, result);
    if (!enforced) GTEST_SKIP() << "this user may write to read-only files";
}

TEST(SavedFile, ReplacesAFileThatIsBeingRead) {
    TempFolder folder;
    folder.Write("a", "old");
    file_t reader;
    ASSERT_TRUE(reader.OpenRead(folder.Name("a").c_str()));
    EXPECT_EQ(SavedFileResult::Saved, Save(folder, "a", "new content"));
    EXPECT_EQ("new content", folder.Read("a"));
}

}  // namespace
