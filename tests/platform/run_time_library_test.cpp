#include <afx.h>
#include <direct.h>
#include <gtest/gtest.h>
#include <share.h>

#include <cerrno>
#include <string>
#include <tuple>
#include <utility>

#include "platform/current_folder.h"
#include "temp_folder.h"

namespace {

TEST(TextWithoutCase, ComparesAsSmallLetters) {
    EXPECT_EQ(_stricmp("AbC", "aBc"), 0);
    EXPECT_LT(_stricmp("ab", "abc"), 0);
    EXPECT_LT(_stricmp("a_", "AB"), 0);
    EXPECT_GT(_stricmp("Z", "["), 0);
    EXPECT_GT(_stricmp("\xe4", "\xc4"), 0);
    EXPECT_EQ(_strnicmp("ABx", "abY", 2), 0);
    EXPECT_LT(_strnicmp("ABx", "abY", 3), 0);
    char text[] = "AZ[@a\xc4";
    EXPECT_STREQ(_strlwr(text), "az[@a\xc4");
}

TEST(Directories, AreMadeAndEntered) {
    const TempFolder folder;
    folder.Write("file", "");
    EXPECT_EQ(_mkdir(folder.Name("One").c_str()), 0);
    EXPECT_EQ(_mkdir(folder.Name("one\\Two\\").c_str()), 0);
    EXPECT_TRUE(folder.Has("One/Two"));
    const std::pair<const char*, int> refused[] = {
        {"ONE", EEXIST}, {"file", EEXIST}, {"nosuch\\x", ENOENT}, {"a?b", EINVAL}};
    for (const auto& [name, code] : refused) {
        errno = 0;
        EXPECT_EQ(_mkdir(folder.Name(name).c_str()), -1) << name;
        EXPECT_EQ(errno, code) << name;
    }
    const CurrentFolder current(folder.Name("One\\Two"));
    EXPECT_EQ(_chdir(".."), 0);
    for (const std::string& name : {std::string("nosuch"), folder.Name("file"), std::string()})
        EXPECT_EQ(_chdir(name.c_str()), -1) << name;
    const std::string name = folder.Name("One");
    const int length = static_cast<int>(name.size());
    char buffer[260];
    EXPECT_STREQ(_getcwd(buffer, length + 1), name.c_str());
    EXPECT_EQ(_getcwd(buffer, length), nullptr);
    EXPECT_EQ(errno, ERANGE);
    ASSERT_EQ(_chdir("\\"), 0);
    EXPECT_EQ(CurrentFolder::Name(), name.substr(0, 2) + "\\");
}

TEST(Streams, OpenByNameInAnyCase) {
    const TempFolder folder;
    folder.Write("Old.txt", "0123");
    std::filesystem::create_directory(folder.Path("Sub"));
    const std::tuple<const char*, const char*, int> cases[] = {
        {"OLD.TXT", "r+b", 0},       {"sub\\New.txt", "wb", 0}, {"nosuch", "r+b", ENOENT},
        {"nosuch\\x", "wb", ENOENT}, {"sub", "rb", EACCES},     {"a?b", "wb", EINVAL},
    };
    for (const auto& [name, mode, code] : cases) {
        FILE* stream = _fsopen(folder.Name(name).c_str(), mode, _SH_DENYNO);
        EXPECT_EQ(stream ? 0 : errno, code) << name;
        if (stream) std::fclose(stream);
    }
    EXPECT_EQ(folder.Read("Old.txt"), "0123");
    EXPECT_TRUE(folder.Has("Sub/New.txt"));
}

}  // namespace
