#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <tuple>
#include <utility>

#include "support/file_objects.h"
#include "temp_folder.h"

namespace {

// Stands in another current directory as long as it lives.
class InFolder {
public:
    explicit InFolder(const std::filesystem::path& path) : before_(std::filesystem::current_path()) {
        std::filesystem::current_path(path);
    }
    ~InFolder() { std::filesystem::current_path(before_); }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

private:
    std::filesystem::path before_;
};

std::string AbsPath(const char* name) {
    return static_cast<const char*>(file_t::AbsPath(name));
}

TEST(FileSystem, FindsFilesAndFolders) {
    TempFolder folder;
    folder.Write("a.brl", "abc");
    std::filesystem::create_directory(folder.Path("sub"));
    const std::tuple<const char*, bool, bool> cases[] = {
        {"a.brl", true, false},  {"*.brl", true, false}, {"?.txt", false, false},     {"sub", true, true},
        {"sub\\", false, false}, {"s*", true, true},     {"no\\a.brl", false, false},
    };
    for (const auto& [file, isThere, isDir] : cases) {
        const std::string name = folder.Name(file);
        EXPECT_EQ(isThere, file_t::FileExist(name.c_str(), nullptr)) << name;
        EXPECT_EQ(isDir, file_t::DirExist(name.c_str())) << name;
    }
    const std::string tooLong = folder.Name(std::string(260, 'n'));
    for (const char* name : {"", tooLong.c_str(), static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(file_t::FileExist(name, nullptr));
        EXPECT_FALSE(file_t::DirExist(name));
        EXPECT_FALSE(file_t::get_file_time(name, nullptr));
    }
    fileinfo_t info;
    std::memset(&info, '#', sizeof info);
    InFolder inside(folder.Path(""));
    ASSERT_TRUE(file_t::FileExist("*.brl", &info));
    EXPECT_EQ(folder.Name("*.brl"), info.name);
    EXPECT_EQ(0u, info.sizeHigh);
    EXPECT_EQ(3u, info.sizeLow);
    FILETIME time;
    ASSERT_TRUE(file_t::get_file_time("a.brl", &time));
    EXPECT_EQ(0, std::memcmp(&time, &info.time, sizeof time));
}

TEST(FileSystem, MakesAChainOfFolders) {
    TempFolder folder;
    for (const char* path : {"a\\b\\c", "d", "e\\f\\", "a\\b\\x"})
        file_t::MakeDir(folder.Name(path).c_str());
    for (const char* path : {"a\\b\\c", "d", "e\\f", "a\\b\\x"})
        EXPECT_TRUE(file_t::DirExist(folder.Name(path).c_str())) << path;

    folder.Write("file", "abc");
    file_t::MakeDir(folder.Name("file\\below").c_str());
    EXPECT_EQ("abc", folder.Read("file"));

    InFolder inside(folder.Path("d"));
    // One character, a drive alone, nothing at all: no folders to make.
    for (const char* path : {"x", "", "C:", "C:\\", "c:x", "\\", static_cast<const char*>(nullptr)})
        file_t::MakeDir(path);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path("d")));
}

TEST(FileSystem, CompletesNames) {
    TempFolder folder;
    std::filesystem::create_directories(folder.Path("a") / "b");
    const std::string top = folder.Name();
    const std::string drive = top.substr(0, 2);
    {
        InFolder inside(folder.Path("a") / "b");
        const std::pair<const char*, std::string> cases[] = {
            {"", top + "\\a\\b\\"},
            {"..\\..\\x\\y", top + "\\x\\y"},
            {"..\\", top + "\\a\\"},
            {"../x", top + "\\a\\b\\../x"},
            {".\\x", top + "\\a\\b\\.\\x"},
            {"x\\..\\y", top + "\\a\\b\\x\\..\\y"},
            {"\\\\server\\x", drive + "\\\\server\\x"},
            {"Q:\\x", "Q:\\x"},
        };
        for (const auto& [name, absolute] : cases)
            EXPECT_EQ(absolute, AbsPath(name)) << name;
    }
    InFolder atRoot(folder.Path("").root_path());
    EXPECT_EQ(drive + "\\x", AbsPath("x"));
    EXPECT_EQ("..\\x", AbsPath("..\\x"));
}

TEST(FileSystem, NamesThatDoNotFitTheirRecordAreRefused) {
    TempFolder folder;
    const std::string deep(150, 'd');
    std::filesystem::create_directory(folder.Path(deep));
    const std::string name(259 - folder.Name(deep + "\\").size() + 1, 'n');
    InFolder inside(folder.Path(deep));
    // The shorter name just fits with its folder in front, the longer does not.
    folder.Write(deep + "/" + name.substr(1), "abc");
    fileinfo_t info;
    EXPECT_TRUE(file_t::FileExist(name.substr(1).c_str(), &info));
    EXPECT_EQ(259u, std::strlen(info.name));
    EXPECT_FALSE(file_t::FileExist(("*" + name.substr(1)).c_str(), &info));
}

TEST(FileSystem, SetsGetsAndPrintsTimes) {
    const FILETIME leapDay{0x5cc88580, 0x01c3feca};  // in steps of 100 ns since 1601, UTC
    EXPECT_STREQ("29.02.2004  13:45", file_t::ConvertFileTime(&leapDay));
    TempFolder folder;
    folder.Write("a", "abc");
    const std::string name = folder.Name("a");
    FILETIME wanted{0x12345680, 0x01c40000};
    ASSERT_TRUE(file_t::set_file_time(name.c_str(), &wanted));
    FILETIME got{};
    ASSERT_TRUE(file_t::get_file_time(name.c_str(), &got));
    EXPECT_EQ(0, std::memcmp(&wanted, &got, sizeof got));
    file_t file;
    ASSERT_TRUE(file.OpenRead(name.c_str()));
    EXPECT_EQ(0, std::memcmp(&wanted, file.GetDatum(), sizeof wanted));
    file.Close();
    EXPECT_FALSE(file_t::set_file_time(name.c_str(), nullptr));
    EXPECT_FALSE(file_t::set_file_time(nullptr, &wanted));
    EXPECT_FALSE(file_t::set_file_time(folder.Name("missing").c_str(), &wanted));
    EXPECT_FALSE(file_t::get_file_time(folder.Name("missing").c_str(), &got));
    EXPECT_FALSE(folder.Has("missing"));
}

}  // namespace
