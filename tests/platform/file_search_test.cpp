#include <afx.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <io.h>

#include <cerrno>
#include <string>
#include <vector>

#include "platform/current_folder.h"
#include "temp_folder.h"

using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

namespace {

using Names = std::vector<std::string>;

Names Find(const std::string& pattern) {
    Names names;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        names.emplace_back(found.cFileName);
    } while (FindNextFileA(search, &found));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_FILES)) << pattern;
    EXPECT_TRUE(FindClose(search));
    return names;
}

class FileSearch : public testing::Test {
protected:
    FileSearch() {
        for (const char* name : {"a.txt", "ab", "b.TXT", "noext", "x.y.txt"})
            folder.Write(name, "hello");
        std::filesystem::create_directory(folder.Path("Sub"));
        folder.Write("Sub/in.dat", "");
    }
    TempFolder folder;
};

TEST_F(FileSearch, FindsWhatFitsThePattern) {
    const Names all{".", "..", "a.txt", "ab", "b.TXT", "noext", "Sub", "x.y.txt"};
    const struct {
        const char* pattern;
        Names names;
    } cases[] = {
        {"*", all},
        {"*.*", all},
        {"*.txt", {"a.txt", "b.TXT", "x.y.txt"}},
        {"x*txt", {"x.y.txt"}},
        {"a*", {"a.txt", "ab"}},
        {"A?", {"ab"}},
        {"?.txt", {"a.txt", "b.TXT"}},
        {"noext.*", {"noext"}},
        {"*z*", {}},
        {"sub\\*.*", {".", "..", "in.dat"}},
        {"SUB/i*", {"in.dat"}},
        {"nosuch\\*", {}},
        {"*\\", {}},
    };
    for (const auto& c : cases)
        EXPECT_THAT(Find(folder.Name(c.pattern)), UnorderedElementsAreArray(c.names)) << c.pattern;
}

TEST_F(FileSearch, TellsANameAsItIsSpelled) {
    const struct {
        const char* name;
        Names names;
    } cases[] = {
        {"A.TXT", {"a.txt"}},
        {"a.txt. .", {"a.txt"}},
        {"sub", {"Sub"}},
        {"SUB\\IN.DAT", {"in.dat"}},
        {"sub/in.dat", {"in.dat"}},
        {"Sub\\\\in.dat", {"in.dat"}},
        {"Sub\\..\\a.txt", {"a.txt"}},
        {"nosuch\\.\\..\\a.txt", {"a.txt"}},
        {"Sub\\.", {"Sub"}},
        {"sub\\", {}},
        {"a.txt\\", {}},
        {"a.txt\\in.dat", {}},
        {"...", {}},
        {"nosuch", {}},
    };
    for (const auto& c : cases)
        EXPECT_THAT(Find(folder.Name(c.name)), UnorderedElementsAreArray(c.names)) << c.name;
}

TEST_F(FileSearch, StartsAtTheCurrentFolder) {
    const CurrentFolder current(folder.Name("sub"));
    EXPECT_THAT(Find("IN.*"), ElementsAre("in.dat"));
    EXPECT_THAT(Find("..\\A.txt"), ElementsAre("a.txt"));
    EXPECT_THAT(Find("."), ElementsAre("Sub"));
    const std::string drive = folder.Name().substr(0, 2);
    EXPECT_THAT(Find(drive + "in.dat"), ElementsAre("in.dat"));
    EXPECT_THAT(Find(folder.Name("ab").substr(2)), ElementsAre("ab"));
    for (const std::string& name : {drive, drive + "\\", drive + "\\.", std::string("\\")})
        EXPECT_THAT(Find(name), ElementsAre()) << name;
}

TEST_F(FileSearch, TellsKindAndSize) {
    WIN32_FIND_DATAA found;
    FindClose(FindFirstFileA(folder.Name("A.txt").c_str(), &found));
    EXPECT_FALSE(found.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(found.nFileSizeLow, 5u);
    EXPECT_EQ(found.nFileSizeHigh, 0u);
    FindClose(FindFirstFileA(folder.Name("SUB").c_str(), &found));
    EXPECT_TRUE(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_EQ(found.nFileSizeLow, 0u);
    EXPECT_EQ(GetFileAttributesA(folder.Name("SUB\\").c_str()), found.dwFileAttributes);
}

TEST_F(FileSearch, TellsWhyThereIsNothing) {
    const struct {
        std::string pattern;
        DWORD error;
    } cases[] = {
        {folder.Name("nosuch"), ERROR_FILE_NOT_FOUND},    {folder.Name("sub\\"), ERROR_FILE_NOT_FOUND},
        {folder.Name("z*"), ERROR_FILE_NOT_FOUND},        {folder.Name("nosuch\\*"), ERROR_PATH_NOT_FOUND},
        {folder.Name("nosuch\\x"), ERROR_PATH_NOT_FOUND}, {"", ERROR_PATH_NOT_FOUND},
        {folder.Name("s*\\in.dat"), ERROR_INVALID_NAME},
    };
    for (const auto& c : cases) {
        WIN32_FIND_DATAA found;
        EXPECT_EQ(FindFirstFileA(c.pattern.c_str(), &found), INVALID_HANDLE_VALUE) << c.pattern;
        EXPECT_EQ(GetLastError(), c.error) << c.pattern;
    }
    EXPECT_EQ(GetFileAttributesA(folder.Name("nosuch").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetFileAttributesA(folder.Name("*").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FileSearch, RefusesBadHandles) {
    WIN32_FIND_DATAA found;
    for (const HANDLE bad : {INVALID_HANDLE_VALUE, static_cast<HANDLE>(nullptr)}) {
        EXPECT_FALSE(FindNextFileA(bad, &found));
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
        EXPECT_FALSE(FindClose(bad));
    }
}

TEST_F(FileSearch, GoesTheSameByTheRunTimeLibrary) {
    _finddata_t found;
    const intptr_t search = _findfirst(folder.Name("?*b*").c_str(), &found);
    ASSERT_NE(search, -1);
    Names names;
    do {
        names.emplace_back(found.name);
        const bool isFolder = found.attrib & _A_SUBDIR;
        EXPECT_EQ(isFolder, names.back() == "Sub");
        EXPECT_EQ(found.size, isFolder ? 0u : 5u);
    } while (_findnext(search, &found) == 0);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(_findclose(search), 0);
    EXPECT_THAT(names, UnorderedElementsAreArray({"ab", "Sub"}));
    for (const char* name : {"nosuch", "Sub\\", "nosuch\\x"}) {
        errno = 0;
        EXPECT_EQ(_findfirst(folder.Name(name).c_str(), &found), -1) << name;
        EXPECT_EQ(errno, ENOENT) << name;
    }
}

}  // namespace
