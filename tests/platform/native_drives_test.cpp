#include <afx.h>
#include <direct.h>
#include <drive_map.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/current_folder.h"
#include "temp_folder.h"

namespace {

bool Finds(const std::string& name) {
    return GetFileAttributesA(name.c_str()) != INVALID_FILE_ATTRIBUTES;
}

class Drives : public testing::Test {
protected:
    Drives() {
        std::filesystem::create_directories(folder.Path("Top/Sub"));
        std::filesystem::create_directories(folder.Path("Topmost"));
        folder.Write("Top/Sub/a.txt", "a");
        folder.Write("outside.txt", "");
        EXPECT_FALSE(MapDrive('q', folder.Path("outside.txt").c_str()));
        EXPECT_FALSE(Finds("q:\\Sub"));
        EXPECT_TRUE(MapDrive('q', folder.Path("Top").c_str()));
    }
    ~Drives() override { EXPECT_TRUE(MapDrive('Q', nullptr)); }
    TempFolder folder;
};

TEST_F(Drives, LeadToTheirFolder) {
    EXPECT_TRUE(Finds("Q:\\SUB\\A.TXT"));
    EXPECT_TRUE(Finds("Q:sub"));
    // Nothing leads out of a drive, and its root has no name of its own.
    EXPECT_FALSE(Finds("q:\\..\\outside.txt"));
    EXPECT_TRUE(Finds("q:\\..\\sub"));
    WIN32_FIND_DATAA found;
    for (const char* name : {"q:", "q:\\", "q:\\.", "q:\\sub\\.."})
        EXPECT_EQ(FindFirstFileA(name, &found), INVALID_HANDLE_VALUE) << name;
    const HANDLE search = FindFirstFileA("q:\\*", &found);
    EXPECT_STREQ(found.cFileName, "Sub");
    EXPECT_FALSE(FindNextFileA(search, &found));
    EXPECT_TRUE(FindClose(search));
}

TEST_F(Drives, HoldTheCurrentFolder) {
    const CurrentFolder current(folder.Name("Topmost"));
    EXPECT_EQ(CurrentFolder::Name(), folder.Name("Topmost"));
    EXPECT_FALSE(Finds("Q:a.txt"));
    ASSERT_EQ(_chdir("q:\\SUB"), 0);
    EXPECT_EQ(CurrentFolder::Name(), "Q:\\Sub");
    for (const std::string& name : {std::string("a.txt"), std::string("q:a.txt"), folder.Name("Topmost")})
        EXPECT_TRUE(Finds(name)) << name;
    EXPECT_FALSE(Finds("..\\..\\Topmost"));
    ASSERT_EQ(_chdir("..\\.."), 0);
    EXPECT_EQ(CurrentFolder::Name(), "Q:\\");
}

}  // namespace
