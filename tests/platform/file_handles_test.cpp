#include <afx.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>

#include "temp_folder.h"

namespace {

HANDLE Open(const std::string& name, DWORD access, DWORD disposition) {
    return CreateFileA(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

class FileHandles : public testing::Test {
protected:
    FileHandles() {
        folder.Write("Old.txt", "0123456789");
        std::filesystem::create_directory(folder.Path("Sub"));
    }
    HANDLE OpenOld(DWORD access) { return Open(folder.Name("old.txt"), access, OPEN_EXISTING); }
    TempFolder folder;
};

TEST_F(FileHandles, OpenByNameInAnyCase) {
    const std::tuple<const char*, DWORD, DWORD, const char*> cases[] = {
        {"OLD.TXT", OPEN_EXISTING, NO_ERROR, "0123456789"},
        {"Old.txt ", OPEN_ALWAYS, ERROR_ALREADY_EXISTS, "0123456789"},
        {"SUB\\..\\old.TXT", CREATE_ALWAYS, ERROR_ALREADY_EXISTS, ""},
        {"sub/New.txt", OPEN_ALWAYS, NO_ERROR, ""},
        {"sub\\newER.txt", CREATE_ALWAYS, NO_ERROR, ""}};
    for (const auto& [name, disposition, error, content] : cases) {
        SetLastError(ERROR_GEN_FAILURE);
        const HANDLE file = Open(folder.Name(name), GENERIC_WRITE, disposition);
        EXPECT_EQ(GetLastError(), error) << name;
        EXPECT_TRUE(CloseHandle(file)) << name;
        EXPECT_EQ(folder.Read("Old.txt"), content) << name;
    }
    // A new file keeps the spelling it was given, in the folder that was there.
    EXPECT_TRUE(folder.Has("Sub/New.txt"));
    EXPECT_TRUE(folder.Has("Sub/newER.txt"));
}

TEST_F(FileHandles, TellWhyAFileCannotBeOpenedOrDeleted) {
    const std::tuple<const char*, DWORD, DWORD> cases[] = {
        {"nosuch", OPEN_EXISTING, ERROR_FILE_NOT_FOUND},   {"nosuch\\x", OPEN_ALWAYS, ERROR_PATH_NOT_FOUND},
        {"old.txt\\x", OPEN_ALWAYS, ERROR_PATH_NOT_FOUND}, {"sub", CREATE_ALWAYS, ERROR_ACCESS_DENIED},
        {"old.txt\\", OPEN_EXISTING, ERROR_INVALID_NAME},  {"sub\\", OPEN_EXISTING, ERROR_ACCESS_DENIED},
        {"new\\", CREATE_ALWAYS, ERROR_INVALID_NAME},      {"a?b", CREATE_ALWAYS, ERROR_INVALID_NAME},
    };
    for (const auto& [name, disposition, error] : cases) {
        EXPECT_EQ(Open(folder.Name(name), GENERIC_READ, disposition), INVALID_HANDLE_VALUE) << name;
        EXPECT_EQ(GetLastError(), error) << name;
    }
    EXPECT_EQ(Open(std::string(300, 'x'), GENERIC_WRITE, CREATE_ALWAYS), INVALID_HANDLE_VALUE);
    for (const char* name : {"sub", "nosuch", "*"})
        EXPECT_FALSE(DeleteFileA(folder.Name(name).c_str())) << name;
    EXPECT_TRUE(DeleteFileA(folder.Name("OLD.txt").c_str()));
    EXPECT_FALSE(folder.Has("Old.txt"));
}

TEST_F(FileHandles, ReadAndWriteWhereThePointerStands) {
    const HANDLE file = OpenOld(GENERIC_READ | GENERIC_WRITE);
    char buffer[16] = {};
    DWORD count = 0;
    EXPECT_TRUE(ReadFile(file, buffer, 4, &count, nullptr));
    EXPECT_EQ(std::string(buffer, count), "0123");
    EXPECT_TRUE(WriteFile(file, "ab", 2, &count, nullptr));
    EXPECT_EQ(SetFilePointer(file, -1, nullptr, FILE_CURRENT), 5u);
    EXPECT_TRUE(ReadFile(file, buffer, sizeof buffer, &count, nullptr));
    EXPECT_EQ(std::string(buffer, count), "b6789");
    EXPECT_TRUE(ReadFile(file, buffer, sizeof buffer, &count, nullptr));
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(SetFilePointer(file, -2, nullptr, FILE_END), 8u);
    EXPECT_TRUE(SetEndOfFile(file));
    EXPECT_EQ(SetFilePointer(file, 2, nullptr, FILE_END), 10u);
    EXPECT_TRUE(SetEndOfFile(file));
    EXPECT_EQ(GetFileSize(file, nullptr), 10u);
    EXPECT_EQ(folder.Read("Old.txt"), std::string("0123ab67\0\0", 10));

    EXPECT_EQ(SetFilePointer(file, -11, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NEGATIVE_SEEK));
    EXPECT_EQ(SetFilePointer(file, 0, nullptr, FILE_CURRENT), 10u);
    LONG high = 1;
    SetLastError(ERROR_GEN_FAILURE);
    EXPECT_EQ(SetFilePointer(file, -1, &high, FILE_BEGIN), 0xffffffffu);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(NO_ERROR));
    high = -1;
    EXPECT_EQ(SetFilePointer(file, -0x7fffffff, &high, FILE_CURRENT), 0x80000000u);
    EXPECT_EQ(high, 1);
    EXPECT_TRUE(CloseHandle(file));
}

TEST_F(FileHandles, AllowOnlyWhatTheyWereOpenedFor) {
    char byte = 'x';
    DWORD count = 7;
    const HANDLE reading = OpenOld(GENERIC_READ);
    EXPECT_FALSE(WriteFile(reading, &byte, 1, &count, nullptr));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_FALSE(SetEndOfFile(reading));
    const HANDLE writing = OpenOld(GENERIC_WRITE);
    EXPECT_FALSE(ReadFile(writing, &byte, 1, &count, nullptr));
    EXPECT_TRUE(CloseHandle(reading));
    EXPECT_TRUE(CloseHandle(writing));
    EXPECT_EQ(folder.Read("Old.txt"), "0123456789");
    EXPECT_FALSE(CloseHandle(writing));
    EXPECT_FALSE(WriteFile(writing, &byte, 1, &count, nullptr));
    EXPECT_EQ(GetFileSize(nullptr, nullptr), INVALID_FILE_SIZE);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
}

TEST_F(FileHandles, KeepTimesToTheTick) {
    const FILETIME set{0xd5fae14f, 0x019db1de};  // 15 January 1970, with an odd last digit
    const FILETIME access{0x12345678, 0x01c00000};
    const FILETIME keep{0, 0};
    FILETIME gotAccess{};
    const HANDLE file = OpenOld(GENERIC_READ | GENERIC_WRITE);
    EXPECT_TRUE(SetFileTime(file, &set, &access, &set));
    EXPECT_TRUE(SetFileTime(file, &keep, &keep, &keep));
    EXPECT_TRUE(GetFileTime(file, nullptr, &gotAccess, nullptr));
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_EQ(std::memcmp(&gotAccess, &access, sizeof access), 0);
    WIN32_FIND_DATAA found;
    EXPECT_TRUE(FindClose(FindFirstFileA(folder.Name("old.txt").c_str(), &found)));
    EXPECT_EQ(std::memcmp(&found.ftLastWriteTime, &set, sizeof set), 0);
}

TEST_F(FileHandles, TurnTimesIntoDosDates) {
    const std::pair<FILETIME, int64_t> cases[] = {
        {{0x5cc88580, 0x01c3feca}, 0x305d6dbd},  // 29 February 2004, 13:45:59
        {{0x676b2980, 0x023868b8}, 0xff9fbf7d},  // 31 December 2107, 23:59:59
        {{0xe0a45300, 0x01a8e79f}, -1},          // two seconds before 1980
    };
    for (const auto& [time, expected] : cases) {
        WORD date = 0;
        WORD clock = 0;
        const BOOL fits = FileTimeToDosDateTime(&time, &date, &clock);
        EXPECT_EQ(fits ? int64_t{date} << 16 | clock : -1, expected);
    }
}

}  // namespace
