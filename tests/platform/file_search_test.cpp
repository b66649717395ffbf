#include <afx.h>
#include <gtest/gtest.h>
#include <io.h>

#include <cerrno>
#include <set>
#include <string>
#include <utility>

#include "platform/current_folder.h"
#include "temp_folder.h"

namespace {

// The names in the order of their bytes, each with a blank behind it.
std::string Joined(const std::set<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text.append(name) += ' ';
    return text;
}

std::string Find(const std::string& pattern) {
    std::set<std::string> names;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return "";
    do {
        EXPECT_TRUE(names.insert(found.cFileName).second) << pattern;
    } while (FindNextFileA(search, &found));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NO_MORE_FILES)) << pattern;
    EXPECT_TRUE(FindClose(search));
    return Joined(names);
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

TEST_F(FileSearch, FindsWhatFitsAsItIsSpelled) {
    const char* const all = ". .. Sub a.txt ab b.TXT noext x.y.txt ";
    const std::pair<const char*, const char*> cases[] = {
        {"*.txt", "a.txt b.TXT x.y.txt "},  {"x*txt", "x.y.txt "},     {"A?", "ab "},         {"*", all},
        {"sub\\*.*", ". .. in.dat "},       {"?.txt", "a.txt b.TXT "}, {"sub", "Sub "},       {"*.*", all},
        {"Sub\\\\IN.dat", "in.dat "},       {"noext.*", "noext "},     {"Sub\\.", "Sub "},    {"*z*", ""},
        {"Sub\\..\\A.txt", "a.txt "},       {"SUB/i*", "in.dat "},     {"a.txt\\", ""},       {"*\\", ""},
        {"nosuch\\.\\..\\a.txt", "a.txt "}, {"a.txt. .", "a.txt "},    {"a.txt\\in.dat", ""}, {"...", ""},
    };
    for (const auto& [pattern, names] : cases)
        EXPECT_EQ(Find(folder.Name(pattern)), names) << pattern;
}

TEST_F(FileSearch, StartsAtTheCurrentFolder) {
    const CurrentFolder current(folder.Name("sub"));
    const std::string drive = folder.Name().substr(0, 2);
    EXPECT_EQ(Find("IN.*"), "in.dat ");
    EXPECT_EQ(Find("..\\A.txt"), "a.txt ");
    EXPECT_EQ(Find("."), "Sub ");
    EXPECT_EQ(Find(drive + "in.dat"), "in.dat ");
    EXPECT_EQ(Find(folder.Name("ab").substr(2)), "ab ");
    for (const std::string& name : {drive, drive + "\\", drive + "\\.", std::string("\\")})
        EXPECT_EQ(Find(name), "") << name;
}

TEST_F(FileSearch, TellsWhyThereIsNothing) {
    const std::pair<const char*, DWORD> cases[] = {
        {"nosuch", ERROR_FILE_NOT_FOUND},    {"sub\\", ERROR_FILE_NOT_FOUND},
        {"nosuch\\*", ERROR_PATH_NOT_FOUND}, {"nosuch\\x", ERROR_PATH_NOT_FOUND},
        {"s*\\in.dat", ERROR_INVALID_NAME},
    };
    WIN32_FIND_DATAA found;
    for (const auto& [pattern, error] : cases) {
        EXPECT_EQ(FindFirstFileA(folder.Name(pattern).c_str(), &found), INVALID_HANDLE_VALUE) << pattern;
        EXPECT_EQ(GetLastError(), error) << pattern;
    }
    EXPECT_EQ(GetFileAttributesA(folder.Name("*").c_str()), INVALID_FILE_ATTRIBUTES);
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
    std::set<std::string> names;
    do {
        names.insert(found.name);
        const bool isFolder = found.attrib & _A_SUBDIR;
        EXPECT_EQ(isFolder, found.name == std::string("Sub"));
        EXPECT_EQ(found.size, isFolder ? 0u : 5u);
        EXPECT_FALSE(found.attrib & _A_RDONLY);
    } while (_findnext(search, &found) == 0);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(_findclose(search), 0);
    EXPECT_EQ(Joined(names), "Sub ab ");
    EXPECT_EQ(_findfirst(folder.Name("nosuch\\x").c_str(), &found), -1);
    EXPECT_EQ(errno, ENOENT);
}

}  // namespace
