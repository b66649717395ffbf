#include <afx.h>
#include <fcntl.h>
#include <file_faults.h>
#include <gtest/gtest.h>
#include <share.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "platform/raises.h"
#include "temp_folder.h"

// What can't be asked of Wine: it knows no faults to order, lets root write to
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
}

TEST(FileFaultHook, FailsTheCallsItIsTold) {
    const TempFolder folder;
    const HANDLE file = Open(folder.Name("a"), GENERIC_WRITE, CREATE_ALWAYS);
    SetFileFaults({.failingWrite = 2, .failures = 1});
    EXPECT_EQ(WriteFours(file, 4), "4 10 4 4 ");
    SetFileFaults({.goodBytes = 6});
    EXPECT_EQ(WriteFours(file, 4), "4 12 10 10 ");
    SetFileFaults({.closeFails = true});
    EXPECT_FALSE(CloseHandle(file));
    EXPECT_EQ(GetLastError(), ERROR_DISK_FULL);
    EXPECT_FALSE(CloseHandle(file));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
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
    EXPECT_TRUE(Raises<CFileException>([&] { stream.Close(); }));
}

TEST(PublishedEdges, AreKeptWhereWineDoesNot) {
    const TempFolder folder;
    const HANDLE file = Open(folder.Name("a"), GENERIC_WRITE, CREATE_ALWAYS);
    LONG high = 1;
    EXPECT_EQ(SetFilePointer(file, 0, &high, FILE_BEGIN), 0u);
    // 32 bits can't tell the place.
    EXPECT_EQ(SetFilePointer(file, 5, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
    EXPECT_TRUE(CloseHandle(file));

    // Before 1970 the fraction of a second still counts forwards.
    const timespec before1970[] = {{-1, 999999999}, {-1, 999999999}};
    ASSERT_EQ(utimensat(AT_FDCWD, folder.Path("a").c_str(), before1970, 0), 0);
    WIN32_FIND_DATAA found;
    FindClose(FindFirstFileA(folder.Name("a").c_str(), &found));
    EXPECT_EQ(found.ftLastWriteTime.dwLowDateTime, 0xd53e7fffu);
    EXPECT_EQ(found.ftLastWriteTime.dwHighDateTime, 0x019db1deu);

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
    for (BOOL more = TRUE; more; more = FindNextFileA(search, &found))
        names.append(found.cFileName) += ' ';
    EXPECT_TRUE(FindClose(search));
    EXPECT_EQ(names, ". .. A a a.b b C ");
    // Of two spellings the exact one is found, then the first.
    EXPECT_TRUE(DeleteFileA(folder.Name("a").c_str()));
    EXPECT_TRUE(folder.Has("A"));
    EXPECT_TRUE(DeleteFileA(folder.Name("a").c_str()));
    EXPECT_FALSE(folder.Has("A"));
}

}  // namespace
