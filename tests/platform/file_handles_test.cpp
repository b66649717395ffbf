#include <afx.h>
#include <gtest/gtest.h>

#include <string>

#include "temp_folder.h"

namespace {

constexpr DWORD kReadWrite = GENERIC_READ | GENERIC_WRITE;

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
    TempFolder folder;
};

TEST_F(FileHandles, OpenByNameInAnyCase) {
    const struct {
        const char* name;
        DWORD disposition;
        DWORD error;
        const char* content;
    } cases[] = {
        {"OLD.TXT", OPEN_EXISTING, NO_ERROR, "0123456789"},
        {"Old.txt ", OPEN_ALWAYS, ERROR_ALREADY_EXISTS, "0123456789"},
        {"SUB\\..\\old.TXT", CREATE_ALWAYS, ERROR_ALREADY_EXISTS, ""},
        {"sub/New.txt", OPEN_ALWAYS, NO_ERROR, nullptr},
        {"sub\\newER.txt", CREATE_ALWAYS, NO_ERROR, nullptr},
    };
    for (const auto& c : cases) {
        SetLastError(ERROR_GEN_FAILURE);
        const HANDLE file = Open(folder.Name(c.name), GENERIC_WRITE, c.disposition);
        EXPECT_EQ(GetLastError(), c.error) << c.name;
        EXPECT_TRUE(CloseHandle(file)) << c.name;
        if (c.content) {
            EXPECT_EQ(folder.Read("Old.txt"), c.content) << c.name;
        }
    }
    // A new file keeps the spelling it was given, in the folder that was there.
    EXPECT_TRUE(folder.Has("Sub/New.txt"));
    EXPECT_TRUE(folder.Has("Sub/newER.txt"));
}

TEST_F(FileHandles, TellWhyAFileCannotBeOpened) {
    const struct {
        const char* name;
        DWORD disposition;
        DWORD error;
    } cases[] = {
        {"nosuch", OPEN_EXISTING, ERROR_FILE_NOT_FOUND},   {"nosuch\\x", OPEN_ALWAYS, ERROR_PATH_NOT_FOUND},
        {"old.txt\\x", OPEN_ALWAYS, ERROR_PATH_NOT_FOUND}, {"sub", OPEN_EXISTING, ERROR_ACCESS_DENIED},
        {"sub", CREATE_ALWAYS, ERROR_ACCESS_DENIED},       {"sub\\", OPEN_EXISTING, ERROR_ACCESS_DENIED},
        {"old.txt\\", OPEN_EXISTING, ERROR_INVALID_NAME},  {"new\\", CREATE_ALWAYS, ERROR_INVALID_NAME},
        {"a?b", CREATE_ALWAYS, ERROR_INVALID_NAME},        {"a*", OPEN_EXISTING, ERROR_INVALID_NAME},
        {"a<b", CREATE_ALWAYS, ERROR_INVALID_NAME},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Open(folder.Name(c.name), GENERIC_READ, c.disposition), INVALID_HANDLE_VALUE) << c.name;
        EXPECT_EQ(GetLastError(), c.error) << c.name;
    }
    EXPECT_EQ(Open("", GENERIC_READ, OPEN_ALWAYS), INVALID_HANDLE_VALUE);
    EXPECT_EQ(Open(std::string(300, 'x'), GENERIC_WRITE, CREATE_ALWAYS), INVALID_HANDLE_VALUE);
}

TEST_F(FileHandles, ReadAndWriteWhereThePointerStands) {
    const HANDLE file = Open(folder.Name("old.txt"), kReadWrite, OPEN_EXISTING);
    char buffer[16] = {};
    DWORD count = 0;
    EXPECT_TRUE(ReadFile(file, buffer, 4, &count, nullptr));
    EXPECT_EQ(std::string(buffer, count), "0123");
    EXPECT_TRUE(WriteFile(file, "ab", 2, &count, nullptr));
    EXPECT_EQ(count, 2u);
    EXPECT_EQ(SetFilePointer(file, -1, nullptr, FILE_CURRENT), 5u);
    EXPECT_TRUE(ReadFile(file, buffer, sizeof buffer, &count, nullptr));
    EXPECT_EQ(std::string(buffer, count), "b6789");
    EXPECT_TRUE(ReadFile(file, buffer, sizeof buffer, &count, nullptr));
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(SetFilePointer(file, -2, nullptr, FILE_END), 8u);
    EXPECT_TRUE(SetEndOfFile(file));
    EXPECT_EQ(GetFileSize(file, nullptr), 8u);
    EXPECT_EQ(SetFilePointer(file, 2, nullptr, FILE_END), 10u);
    EXPECT_TRUE(SetEndOfFile(file));
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_EQ(folder.Read("Old.txt"), std::string("0123ab67\0\0", 10));
}

TEST_F(FileHandles, MoveThePointerWithinItsRange) {
    const HANDLE file = Open(folder.Name("old.txt"), kReadWrite, OPEN_EXISTING);
    SetFilePointer(file, 3, nullptr, FILE_BEGIN);
    EXPECT_EQ(SetFilePointer(file, -4, nullptr, FILE_CURRENT), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NEGATIVE_SEEK));
    EXPECT_EQ(SetFilePointer(file, 0, nullptr, FILE_END + 1), INVALID_SET_FILE_POINTER);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(SetFilePointer(file, 0, nullptr, FILE_CURRENT), 3u);

    LONG high = 1;
    SetLastError(ERROR_GEN_FAILURE);
    EXPECT_EQ(SetFilePointer(file, -1, &high, FILE_BEGIN), 0xffffffffu);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(NO_ERROR));
    EXPECT_EQ(high, 1);
    high = -1;
    EXPECT_EQ(SetFilePointer(file, -0x7fffffff, &high, FILE_CURRENT), 0x80000000u);
    EXPECT_EQ(high, 1);
    EXPECT_TRUE(CloseHandle(file));
}

TEST_F(FileHandles, AllowOnlyWhatTheyWereOpenedFor) {
    char byte = 'x';
    DWORD count = 7;
    HANDLE file = Open(folder.Name("old.txt"), GENERIC_READ, OPEN_EXISTING);
    EXPECT_FALSE(WriteFile(file, &byte, 1, &count, nullptr));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_FALSE(SetEndOfFile(file));
    EXPECT_FALSE(ReadFile(file, nullptr, 1, &count, nullptr));
    EXPECT_TRUE(CloseHandle(file));
    file = Open(folder.Name("old.txt"), GENERIC_WRITE, OPEN_EXISTING);
    EXPECT_FALSE(ReadFile(file, &byte, 1, &count, nullptr));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_EQ(folder.Read("Old.txt"), "0123456789");
}

TEST_F(FileHandles, AreRefusedOnceClosed) {
    const HANDLE closed = Open(folder.Name("old.txt"), kReadWrite, OPEN_EXISTING);
    ASSERT_TRUE(CloseHandle(closed));
    for (const HANDLE bad : {closed, static_cast<HANDLE>(nullptr)}) {
        char byte = 0;
        DWORD count = 0;
        FILETIME time{};
        const bool refused[] = {
            !CloseHandle(bad),
            !ReadFile(bad, &byte, 1, &count, nullptr),
            !WriteFile(bad, &byte, 1, &count, nullptr),
            SetFilePointer(bad, 0, nullptr, FILE_BEGIN) == INVALID_SET_FILE_POINTER,
            !SetEndOfFile(bad),
            GetFileSize(bad, nullptr) == INVALID_FILE_SIZE,
            !GetFileTime(bad, nullptr, nullptr, &time),
            !SetFileTime(bad, nullptr, nullptr, &time),
        };
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
        for (const bool each : refused)
            EXPECT_TRUE(each) << &each - refused;
    }
}

TEST_F(FileHandles, KeepTimesToTheTick) {
    const FILETIME set{0xd5fae14f, 0x019db1de};  // 15 January 1970, with an odd last digit
    const FILETIME access{0x12345678, 0x01c00000};
    const FILETIME keep{0, 0};
    FILETIME gotWrite{};
    FILETIME gotAccess{};
    HANDLE file = Open(folder.Name("old.txt"), kReadWrite, OPEN_EXISTING);
    EXPECT_TRUE(SetFileTime(file, &set, &access, &set));
    EXPECT_TRUE(SetFileTime(file, &keep, &keep, &keep));
    EXPECT_TRUE(SetFileTime(file, nullptr, nullptr, nullptr));
    EXPECT_TRUE(GetFileTime(file, nullptr, &gotAccess, &gotWrite));
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_EQ(gotWrite.dwLowDateTime, set.dwLowDateTime);
    EXPECT_EQ(gotWrite.dwHighDateTime, set.dwHighDateTime);
    EXPECT_EQ(gotAccess.dwLowDateTime, access.dwLowDateTime);
    EXPECT_EQ(gotAccess.dwHighDateTime, access.dwHighDateTime);

    WIN32_FIND_DATAA found;
    EXPECT_TRUE(FindClose(FindFirstFileA(folder.Name("old.txt").c_str(), &found)));
    EXPECT_EQ(found.ftLastWriteTime.dwLowDateTime, set.dwLowDateTime);
    EXPECT_EQ(found.ftLastWriteTime.dwHighDateTime, set.dwHighDateTime);
}

TEST_F(FileHandles, TurnTimesIntoDosDates) {
    const struct {
        FILETIME time;
        WORD date;
        WORD clock;
    } cases[] = {
        {{0xe1d58000, 0x01a8e79f}, 0x0021, 0x0000},  // 1 January 1980, 0:00:00
        {{0x5cc88580, 0x01c3feca}, 0x305d, 0x6dbd},  // 29 February 2004, 13:45:59
        {{0x676b2980, 0x023868b8}, 0xff9f, 0xbf7d},  // 31 December 2107, 23:59:59
    };
    for (const auto& c : cases) {
        WORD date = 0;
        WORD clock = 0;
        EXPECT_TRUE(FileTimeToDosDateTime(&c.time, &date, &clock));
        EXPECT_EQ(date, c.date);
        EXPECT_EQ(clock, c.clock);
    }
    const FILETIME tooEarly{0xe0a45300, 0x01a8e79f};  // two seconds before the first
    WORD part = 0;
    EXPECT_FALSE(FileTimeToDosDateTime(&tooEarly, &part, &part));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST_F(FileHandles, AreNotNeededToDelete) {
    const struct {
        const char* name;
        DWORD error;
    } refused[] = {{"sub", ERROR_ACCESS_DENIED},
                   {"nosuch", ERROR_FILE_NOT_FOUND},
                   {"nosuch\\x", ERROR_PATH_NOT_FOUND},
                   {"*", ERROR_INVALID_NAME}};
    for (const auto& c : refused) {
        EXPECT_FALSE(DeleteFileA(folder.Name(c.name).c_str())) << c.name;
        EXPECT_EQ(GetLastError(), c.error) << c.name;
    }
    EXPECT_TRUE(DeleteFileA(folder.Name("OLD.txt").c_str()));
    EXPECT_FALSE(folder.Has("Old.txt"));
}

}  // namespace
