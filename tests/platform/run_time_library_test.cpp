#include <afx.h>
#include <direct.h>
#include <gtest/gtest.h>
#include <share.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <string>

#include "platform/current_folder.h"
#include "temp_folder.h"

namespace {

TEST(SplitPath, CutsAtTheLastSeparatorAndDot) {
    const struct {
        const char* path;
        const char* parts[4];
    } cases[] = {
        {"c:\\d.x\\a.b.txt", {"c:", "\\d.x\\", "a.b", ".txt"}},
        {"c:a", {"c:", "", "a", ""}},
        {"\\a/b.c", {"", "\\a/", "b", ".c"}},
        {"\\\\srv\\sh\\a.b", {"", "\\\\srv\\sh\\", "a", ".b"}},
        {"d.e\\f", {"", "d.e\\", "f", ""}},
        {"dir\\", {"", "dir\\", "", ""}},
        {"a.", {"", "", "a", "."}},
        {".x", {"", "", "", ".x"}},
        {"..", {"", "", ".", "."}},
        {"", {"", "", "", ""}},
    };
    for (const auto& c : cases) {
        char drive[_MAX_DRIVE];
        char dir[_MAX_DIR];
        char name[_MAX_FNAME];
        char ext[_MAX_EXT];
        _splitpath(c.path, drive, dir, name, ext);
        EXPECT_STREQ(drive, c.parts[0]) << c.path;
        EXPECT_STREQ(dir, c.parts[1]) << c.path;
        EXPECT_STREQ(name, c.parts[2]) << c.path;
        EXPECT_STREQ(ext, c.parts[3]) << c.path;
        std::fill_n(name, sizeof name, 'x');
        _splitpath(c.path, nullptr, nullptr, name, nullptr);
        EXPECT_STREQ(name, c.parts[2]) << c.path;
    }
}

TEST(SplitPath, StaysWithinItsBuffers) {
    const auto longest = [](char ch) { return std::string(255, ch); };
    const std::string ext = "." + std::string(254, 'e');
    char name[_MAX_FNAME];
    char gotExt[_MAX_EXT];
    _splitpath((longest('n') + ext).c_str(), nullptr, nullptr, name, gotExt);
    EXPECT_EQ(name, longest('n'));
    EXPECT_EQ(gotExt, ext);
    for (const std::string& path : {longest('n') + "n" + ext, "n" + ext + "e", longest('d') + "\\n.e"}) {
        char drive[_MAX_DRIVE];
        char dir[_MAX_DIR];
        _splitpath(path.c_str(), drive, dir, name, gotExt);
        EXPECT_STREQ(name, "");
        EXPECT_STREQ(gotExt, "");
    }
}

TEST(TextWithoutCase, ComparesAsSmallLetters) {
    const auto sign = [](int value) { return (value > 0) - (value < 0); };
    const struct {
        const char* a;
        const char* b;
        int order;
    } cases[] = {
        {"AbC", "aBc", 0}, {"ab", "abc", -1}, {"b", "AB", 1},      {"a_", "AB", -1},
        {"Z", "[", 1},     {"", "", 0},       {"\xe4", "\xc4", 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(sign(_stricmp(c.a, c.b)), c.order) << c.a << " " << c.b;
        EXPECT_EQ(sign(_stricmp(c.b, c.a)), -c.order) << c.a << " " << c.b;
    }
    EXPECT_EQ(_strnicmp("ABx", "abY", 2), 0);
    EXPECT_LT(_strnicmp("ABx", "abY", 3), 0);
    EXPECT_EQ(_strnicmp("ab", "AB", 100), 0);
    EXPECT_EQ(_strnicmp("a", "b", 0), 0);
    char text[] = "AZ[@a\xc4";
    EXPECT_STREQ(_strlwr(text), "az[@a\xc4");
}

TEST(Directories, AreMadeAndEntered) {
    const TempFolder folder;
    folder.Write("file", "");
    EXPECT_EQ(_mkdir(folder.Name("One").c_str()), 0);
    EXPECT_EQ(_mkdir(folder.Name("one\\Two\\").c_str()), 0);
    EXPECT_TRUE(folder.Has("One/Two"));
    const struct {
        const char* name;
        int code;
    } refused[] = {{"ONE", EEXIST}, {"file", EEXIST}, {"nosuch\\x", ENOENT}, {"a?b", EINVAL}};
    for (const auto& c : refused) {
        errno = 0;
        EXPECT_EQ(_mkdir(folder.Name(c.name).c_str()), -1) << c.name;
        EXPECT_EQ(errno, c.code) << c.name;
    }
    const CurrentFolder current(folder.Name("One\\Two"));
    EXPECT_EQ(CurrentFolder::Name(), folder.Name("One\\Two"));
    EXPECT_EQ(_chdir(".."), 0);
    EXPECT_EQ(CurrentFolder::Name(), folder.Name("One"));
    for (const std::string& name : {std::string("nosuch"), folder.Name("file"), std::string()})
        EXPECT_EQ(_chdir(name.c_str()), -1) << name;
    EXPECT_EQ(CurrentFolder::Name(), folder.Name("One"));
}

TEST(Directories, TellTheCurrentOneWhereItFits) {
    const TempFolder folder;
    const CurrentFolder current(folder.Name());
    char buffer[260];
    const int length = static_cast<int>(folder.Name().size());
    EXPECT_STREQ(_getcwd(buffer, length + 1), folder.Name().c_str());
    EXPECT_EQ(_getcwd(buffer, length), nullptr);
    EXPECT_EQ(errno, ERANGE);
    ASSERT_EQ(_chdir("\\"), 0);
    EXPECT_EQ(CurrentFolder::Name(), folder.Name().substr(0, 2) + "\\");
}

TEST(Streams, OpenByNameInAnyCase) {
    const TempFolder folder;
    folder.Write("Old.txt", "0123");
    std::filesystem::create_directory(folder.Path("Sub"));
    const struct {
        const char* name;
        const char* mode;
        int code;
    } cases[] = {
        {"OLD.TXT", "r+b", 0},     {"sub\\New.txt", "wb", 0}, {"SUB/new.TXT", "rb", 0},
        {"nosuch", "rb", ENOENT},  {"nosuch", "r+b", ENOENT}, {"nosuch\\x", "wb", ENOENT},
        {"sub", "rb", EACCES},     {"sub", "wb", EACCES},     {"a?b", "wb", EINVAL},
        {"old.txt", "qb", EINVAL},
    };
    for (const auto& c : cases) {
        errno = 0;
        FILE* stream = _fsopen(folder.Name(c.name).c_str(), c.mode, _SH_DENYNO);
        EXPECT_EQ(stream != nullptr, c.code == 0) << c.name;
        EXPECT_EQ(stream ? 0 : errno, c.code) << c.name;
        if (stream) std::fclose(stream);
    }
    EXPECT_EQ(folder.Read("Old.txt"), "0123");
    EXPECT_TRUE(folder.Has("Sub/New.txt"));
}

}  // namespace
