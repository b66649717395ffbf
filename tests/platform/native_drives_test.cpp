#include <afx.h>
#include <direct.h>
#include <drive_map.h>
#include <gtest/gtest.h>
#include <io.h>

#include <string>

#include "platform/current_folder.h"
#include "temp_folder.h"

namespace {

bool Finds(const char* name) {
    return GetFileAttributesA(name) != INVALID_FILE_ATTRIBUTES;
}

class MappedDrive {
public:
    MappedDrive(char letter, const std::filesystem::path& folder) : letter_(letter) {
        EXPECT_TRUE(MapDrive(letter, folder.c_str()));
    }
    ~MappedDrive() { EXPECT_TRUE(MapDrive(letter_, nullptr)); }
    MappedDrive(const MappedDrive&) = delete;
    MappedDrive& operator=(const MappedDrive&) = delete;

private:
    char letter_;
};

TEST(Drives, LeadToTheirFolder) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.Path("Top/Sub"));
    folder.Write("Top/Sub/a.txt", "a");
    folder.Write("outside.txt", "");
    EXPECT_FALSE(Finds("q:\\Sub"));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
    const MappedDrive q('q', folder.Path("Top"));
    EXPECT_TRUE(Finds("Q:\\SUB\\A.TXT"));
    EXPECT_TRUE(Finds("Q:sub"));
    // Nothing leads out of a drive, and its root has no name of its own.
    EXPECT_FALSE(Finds("q:\\..\\outside.txt"));
    EXPECT_TRUE(Finds("q:\\..\\sub"));
    for (const char* name : {"q:", "q:\\", "q:\\.", "q:\\sub\\.."})
        EXPECT_EQ(FindFirstFileA(name, std::make_unique<WIN32_FIND_DATAA>().get()), INVALID_HANDLE_VALUE)
            << name;
    _finddata_t found;
    const intptr_t search = _findfirst("q:\\*", &found);
    EXPECT_STREQ(found.name, "Sub");
    EXPECT_EQ(_findnext(search, &found), -1);
    EXPECT_EQ(_findclose(search), 0);
}

TEST(Drives, HoldTheCurrentFolder) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.Path("Top/Sub"));
    std::filesystem::create_directories(folder.Path("Topmost"));
    folder.Write("Top/Sub/a.txt", "a");
    const MappedDrive q('Q', folder.Path("Top"));
    const CurrentFolder current(folder.Name("Topmost"));
    EXPECT_EQ(CurrentFolder::Name(), folder.Name("Topmost"));
    EXPECT_FALSE(Finds("Q:a.txt"));
    ASSERT_EQ(_chdir("q:\\SUB"), 0);
    EXPECT_EQ(CurrentFolder::Name(), "Q:\\Sub");
    EXPECT_TRUE(Finds("a.txt"));
    EXPECT_TRUE(Finds("q:a.txt"));
    EXPECT_TRUE(Finds("\\sub\\a.txt"));
    EXPECT_FALSE(Finds("..\\..\\Topmost"));
    EXPECT_TRUE(Finds(folder.Name("Topmost").c_str()));
    ASSERT_EQ(_chdir("..\\.."), 0);
    EXPECT_EQ(CurrentFolder::Name(), "Q:\\");
}

TEST(Drives, BeginAtFoldersOnly) {
    const TempFolder folder;
    folder.Write("file", "");
    EXPECT_FALSE(MapDrive('q', folder.Path("file").c_str()));
    EXPECT_FALSE(MapDrive('q', folder.Path("nosuch").c_str()));
    EXPECT_FALSE(MapDrive('1', "/"));
    EXPECT_TRUE(Finds("Z:\\"));
}

}  // namespace
