#include <afx.h>
#include <direct.h>
#include <fcntl.h>
#include <file_faults.h>
#include <gtest/gtest.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <string>

#include "temp_folder.h"

// What can't be asked of Wine: it knows no faults to order, crashes on some null pointers, lets root write to
// read-only files, and goes its own way at a few edges that are published otherwise.

namespace {

HANDLE Open(const std::string& name, DWORD access, DWORD disposition) {
    return CreateFileA(name.c_str(), access, 0, nullptr, disposition, 0, nullptr);
}

// Each entry is what one write of 4 bytes put: its number of bytes, and 10 more when it failed.
std::string WriteFours(HANDLE file, int times) {
    std::string results;
    for (int i = 0; i < times; ++i) {
        DWORD written = 99;
        const BOOL good = WriteFile(file, "abcd", 4, &written, nullptr);
        EXPECT_TRUE(good || GetLastError() == ERROR_DISK_FULL);
        results += std::to_string(good ? written : written + 10) + " ";
    }
    return results;
}

TEST(ReadOnlyFiles, AreNotWritten) {
    const TempFolder folder;
    folder.Write("a", "old");
    ASSERT_EQ(chmod(folder.Path("a").c_str(), 0444), 0);
    const std::string name = folder.Name("A");
    EXPECT_EQ(GetFileAttributesA(name.c_str()), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE);
    for (const DWORD disposition : {OPEN_EXISTING, OPEN_ALWAYS, CREATE_ALWAYS}) {
        EXPECT_EQ(Open(name, GENERIC_WRITE, disposition), INVALID_HANDLE_VALUE);
        EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    }
    EXPECT_FALSE(DeleteFileA(name.c_str()));
    for (const char* mode : {"wb", "r+b", "ab"}) {
        EXPECT_EQ(_fsopen(name.c_str(), mode, _SH_DENYNO), nullptr);
        EXPECT_EQ(errno, EACCES);
    }
    EXPECT_EQ(folder.Read("a"), "old");
    EXPECT_TRUE(CloseHandle(Open(name, GENERIC_READ, OPEN_EXISTING)));
}

TEST(FileFaultHook, FailsTheWritesItIsTold) {
    const struct {
        FileFaults faults;
        const char* results;
    } cases[] = {
        {{}, "4 4 4 4 "},
        {{.failingWrite = 1}, "10 10 10 10 "},
        {{.failingWrite = 3}, "4 4 10 10 "},
        {{.failingWrite = 2, .failures = 1}, "4 10 4 4 "},
        {{.goodBytes = 6}, "4 12 10 10 "},
        {{.goodBytes = 8, .failures = 1}, "4 4 10 4 "},
        {{.failingWrite = 2, .goodBytes = 6, .failures = 2}, "4 10 10 4 "},
    };
    const TempFolder folder;
    for (const auto& c : cases) {
        const HANDLE file = Open(folder.Name("a"), GENERIC_WRITE, CREATE_ALWAYS);
        SetFileFaults(c.faults);
        EXPECT_EQ(WriteFours(file, 4), c.results);
        SetFileFaults({});
        EXPECT_EQ(WriteFours(file, 1), "4 ");
        EXPECT_TRUE(CloseHandle(file));
    }
}

TEST(FileFaultHook, FailsOneClose) {
    const TempFolder folder;
    const HANDLE first = Open(folder.Name("a"), GENERIC_WRITE, CREATE_ALWAYS);
    const HANDLE second = Open(folder.Name("b"), GENERIC_WRITE, CREATE_ALWAYS);
    SetFileFaults({.closeFails = true});
    EXPECT_FALSE(CloseHandle(first));
    EXPECT_EQ(GetLastError(), ERROR_DISK_FULL);
    EXPECT_FALSE(CloseHandle(first));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    EXPECT_TRUE(CloseHandle(second));
}

TEST(FullDisk, IsToldByEveryWayOfWriting) {
    const HANDLE file = Open("Z:\\dev\\full", GENERIC_WRITE, OPEN_EXISTING);
    DWORD written = 1;
    EXPECT_FALSE(WriteFile(file, "x", 1, &written, nullptr));
    EXPECT_EQ(GetLastError(), ERROR_DISK_FULL);
    EXPECT_EQ(written, 0u);
    EXPECT_TRUE(CloseHandle(file));

    CStdioFile stream;
    ASSERT_TRUE(stream.Open("Z:\\dev\\full", CFile::modeWrite));
    stream.WriteString("x");
    EXPECT_THROW(
        try { stream.Close(); } catch (CFileException* exception) {
            exception->Delete();
            throw 0;
        },
        int);
}

TEST(PublishedEdges, AreKeptWhereWineDoesNot) {
    const TempFolder folder;
    const HANDLE file = Open(folder.Name("a"), GENERIC_WRITE, CREATE_ALWAYS);
    LONG high = 1;
    EXPECT_EQ(SetFilePointer(file, 0, &high, FILE_BEGIN), 0u);
    // 32 bits can't tell the place.
    EXPECT_EQ(SetFilePointer(file, 5, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    high = 0;
    EXPECT_EQ(SetFilePointer(file, 0, &high, FILE_CURRENT), 0u);
    EXPECT_EQ(high, 1);
    EXPECT_TRUE(CloseHandle(file));

    const FILETIME tooLate{0x6803c000, 0x023868b8};  // 1 January 2108
    WORD part = 0;
    EXPECT_FALSE(FileTimeToDosDateTime(&tooLate, &part, &part));
    EXPECT_GT(_stricmp("a\x80", "az"), 0);
}

TEST(Searches, TellNamesInOrder) {
    const TempFolder folder;
    for (const char* name : {"b", "C", "a.b", "A", "a"})
        folder.Write(name, "");
    std::string names;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(folder.Name("*").c_str(), &found);
    do {
        names.append(found.cFileName) += ' ';
    } while (FindNextFileA(search, &found));
    EXPECT_TRUE(FindClose(search));
    EXPECT_EQ(names, ". .. A a a.b b C ");
    // Of two spellings the exact one is found, then the first.
    EXPECT_TRUE(DeleteFileA(folder.Name("a").c_str()));
    EXPECT_TRUE(folder.Has("A"));
    EXPECT_TRUE(DeleteFileA(folder.Name("a").c_str()));
    EXPECT_FALSE(folder.Has("A"));
}

TEST(FileTimes, StayInTheRangeOfBothSides) {
    const TempFolder folder;
    folder.Write("a", "");
    const struct {
        timespec set;
        FILETIME time;
    } cases[] = {
        {{-11644473600, 100}, {1, 0}},
        {{-11644473601, 0}, {0, 0}},
        {{-1, 999999999}, {0xd53e7fff, 0x019db1de}},
        {{0, 0}, {0xd53e8000, 0x019db1de}},
    };
    for (const auto& c : cases) {
        const timespec both[] = {c.set, c.set};
        if (utimensat(AT_FDCWD, folder.Path("a").c_str(), both, 0) != 0) continue;
        struct stat kept;
        ASSERT_EQ(stat(folder.Path("a").c_str(), &kept), 0);
        if (kept.st_mtim.tv_sec != c.set.tv_sec) continue;  // the file system has a smaller range
        WIN32_FIND_DATAA found;
        FindClose(FindFirstFileA(folder.Name("a").c_str(), &found));
        EXPECT_EQ(found.ftLastWriteTime.dwLowDateTime, c.time.dwLowDateTime) << c.set.tv_sec;
        EXPECT_EQ(found.ftLastWriteTime.dwHighDateTime, c.time.dwHighDateTime) << c.set.tv_sec;
    }
}

TEST(NullPointers, GiveAnError) {
    WIN32_FIND_DATAA found;
    _finddata_t entry;
    char byte;
    DWORD count;
    const TempFolder folder;
    const HANDLE file = Open(folder.Name("a"), GENERIC_READ | GENERIC_WRITE, CREATE_ALWAYS);
    EXPECT_EQ(FindFirstFileA(nullptr, &found), INVALID_HANDLE_VALUE);
    EXPECT_EQ(FindFirstFileA("*", nullptr), INVALID_HANDLE_VALUE);
    EXPECT_EQ(_findfirst(nullptr, &entry), -1);
    EXPECT_EQ(_findfirst("*", nullptr), -1);
    EXPECT_EQ(CreateFileA(nullptr, GENERIC_READ, 0, nullptr, OPEN_ALWAYS, 0, nullptr), INVALID_HANDLE_VALUE);
    EXPECT_FALSE(ReadFile(file, &byte, 1, nullptr, nullptr));
    EXPECT_FALSE(ReadFile(file, nullptr, 1, &count, nullptr));
    EXPECT_FALSE(WriteFile(file, &byte, 1, nullptr, nullptr));
    EXPECT_FALSE(WriteFile(file, nullptr, 1, &count, nullptr));
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, nullptr));
    EXPECT_FALSE(FileTimeToDosDateTime(nullptr, nullptr, nullptr));
    EXPECT_FALSE(DeleteFileA(nullptr));
    EXPECT_EQ(GetFileAttributesA(nullptr), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(_getcwd(nullptr, 260), nullptr);
    EXPECT_EQ(_mkdir(nullptr), -1);
    EXPECT_EQ(_chdir(nullptr), -1);
    EXPECT_EQ(_fsopen(nullptr, "rb", _SH_DENYNO), nullptr);
    EXPECT_EQ(_fsopen("a", nullptr, _SH_DENYNO), nullptr);
    EXPECT_EQ(_stricmp(nullptr, "a"), INT_MAX);
    EXPECT_EQ(_strlwr(nullptr), nullptr);
    _splitpath(nullptr, &byte, nullptr, nullptr, nullptr);
    EXPECT_EQ(byte, '\0');
    EXPECT_TRUE(CloseHandle(file));
}

}  // namespace
