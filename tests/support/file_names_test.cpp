#include "support/file_names.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>

namespace {

class Name : public CFName {
public:
    using CFName::CFName;
    int PathLength() const { return pathlen; }
};

// Null shows as "-".
std::string Shown(const char* text) {
    return text ? text : "-";
}

TEST(FName, SplitsAPath) {
    const char* const cases[][2] = {
        // name; without its folders, extension, name without it, folder, length of the folder
        {"C:\\dir\\a.b.txt", "a.b.txt|txt|a.b|C:\\dir|6"},
        {"\\a.txt", "a.txt|txt|a|-|0"},
        {"C:\\a.txt", "a.txt|txt|a|C:|2"},
        {"C:a.txt", "C:a.txt|txt|C:a|-|0"},
        {"dir.d\\name", "name|-|name|dir.d|5"},
        {"a.", "a.||a|-|0"},
        {".ext", ".ext|ext||-|0"},
        {"dir\\", "|-||dir|3"},
        {"", "|-||-|0"},
    };
    for (const auto& [full, parts] : cases) {
        Name name(full);
        EXPECT_STREQ(full, name);
        EXPECT_EQ(parts, Shown(name.GetShortName()) + "|" + Shown(name.GetExt()) + "|" +
                             Shown(name.GetNameNoExt()) + "|" + Shown(name.GetDir()) + "|" +
                             std::to_string(name.PathLength()));
    }
    EXPECT_STREQ("C:\\dir\\a.txt", Name("C:\\\\dir\\\\\\a.txt"));
    EXPECT_STREQ("", Name(nullptr));
    EXPECT_EQ('C', Name("C:\\a").GetDrive());
    EXPECT_EQ(0, Name("C:a").GetDrive());
}

TEST(FName, ReplacesTheExtension) {
    const char* const cases[][4] = {
        // name, extension, result, name after it
        {"dir\\a.bmp", ".txt", "txt", "dir\\a.txt"},
        {"a.b.c", nullptr, "-", "a.b"},
        {"a.b.c", ".", "-", "a.b"},
        {"a.b", "..x", "x", "a..x"},
        {"a.b", "x\\y", "-", "a.x\\y"},
        {"dir.d\\a", nullptr, "-", "dir.d\\a"},
    };
    for (const auto& [given, ext, result, full] : cases) {
        fname_t name(given);
        EXPECT_EQ(result, Shown(name.SetExt(ext))) << given << " " << Shown(ext);
        EXPECT_STREQ(full, name.GetFullName());
    }
    // The argument may lie in the name itself.
    fname_t name("a.b.x");
    name.SetExt(name.GetExt());
    EXPECT_STREQ("a.b.x", name.GetFullName());
    name.SetName(name.GetShortName() + 2);
    EXPECT_STREQ("b.x", name.GetFullName());
}

TEST(FName, KeepsItsCachesUntilTold) {
    CFName name;
    EXPECT_EQ(nullptr, name.GetNameNoExt());
    EXPECT_EQ(nullptr, name.GetDir());
    name.SetName("C:\\old\\a.b");
    EXPECT_STREQ("C:\\old", name.GetDir());
    name.SetName("D:\\new\\c.d");
    EXPECT_STREQ("C:\\old", name.GetDir());
    name.FreeTmpMemory();
    EXPECT_STREQ("D:\\new", name.GetDir());
}

TEST(FName, ComparesNames) {
    const CFName name("C:\\dir\\a.txt");
    for (const char* equal : {"A.TXT", "c:\\DIR\\a.txt"})
        EXPECT_EQ(0, name.CmpName(equal)) << equal;
    for (const char* other : {"dir\\a.txt", "\\a.txt", "a.tx", static_cast<const char*>(nullptr)})
        EXPECT_NE(0, name.CmpName(other)) << Shown(other);
    EXPECT_EQ(0, fname_t("dir\\").CmpName(nullptr));
}

TEST(FName, FindsItsExtensionInAList) {
    const std::tuple<const char*, const char*, int> cases[] = {
        {"a.TGA", ".bmp.tga", 1}, {"a.jpeg", ".jpe", 1}, {"a.jpeg", ".jpg", 0}, {"a.c", ".c.h", 0},
        {"a.c", ".h.c", 1},       {"a.tga", "tga", 0},   {"a.tga", "x.tga", 1}, {"a", ".tga", 0},
        {"a.", ".tga.", 1},       {"a.tga", nullptr, 0}, {nullptr, ".tga", 0},  {"d.tga\\a", ".tga", 0},
    };
    for (const auto& [name, exts, found] : cases)
        EXPECT_EQ(found, fname_t::TestExt(name, exts)) << Shown(name) << " " << Shown(exts);
}

TEST(FName, JoinsDirectoryAndName) {
    const char* const cases[][3] = {
        {"C:\\dir", "a", "C:\\dir\\a"}, {"C:\\dir\\", "a", "C:\\dir\\a"}, {nullptr, "a", "a"},
        {"dir", nullptr, "dir\\"},      {"dir\\\\", "\\a", "dir\\\\\\a"}, {"", "", ""},
    };
    for (const auto& [dir, name, joined] : cases) {
        CString path("old");
        fname_t::SplitPath(dir, name, path);
        EXPECT_STREQ(joined, path);
        char buffer[32] = "old";
        fname_t::SplitPath(dir, name, buffer);
        EXPECT_STREQ(joined, buffer);
    }
    fname_t::SplitPath("a", "b", static_cast<char*>(nullptr));
    char buffer[32] = "dir";
    fname_t::SplitPath(buffer, "name", buffer);
    fname_t::SplitPath("top", buffer, buffer);
    EXPECT_STREQ("top\\dir\\name", buffer);
}

TEST(DName, HoldsADirectory) {
    const char* const cases[][3] = {
        // given, as a directory, as a file's name
        {"C:\\dir\\a.txt", "C:\\dir\\a.txt", "C:\\dir"},
        {"C:\\", "C:", "C:"},
        {"\\\\\\", "\\", ""},
        {"a\\\\b\\\\", "a\\b", "a\\b"},
        {"a.txt", "a.txt", ""},
        {nullptr, "", ""},
    };
    for (const auto& [given, asDir, asFile] : cases) {
        dname_t dir(given);
        EXPECT_STREQ(asDir, dir) << Shown(given);
        dir.SetPathFromName(given);
        EXPECT_STREQ(asFile, dir.GetPath()) << Shown(given);
    }
    dname_t dir("a\\b");
    dir.SetPath(dir.GetPath() + 2);
    EXPECT_STREQ("b", dir);
    EXPECT_EQ(nullptr, dname_t().GetPath());
}

TEST(FileFinder, TestsNames) {
    const char* const cases[][3] = {
        // pattern, names that match, others
        {"*.*", "a a.b .b", ""},
        {"*", "a dir\\a d.d\\a", "a.b a."},
        {"a*", "a abc bac", "a.b bcd"},
        {"*.txt", "abc.TXT dir\\a.txt d/a.txt C:a.txt .txt", "abc.txt2 abc a.tx"},
        {"a.*", "a a.b A.B", "b ab.c"},
        {"b*.txt", "abc.txt", "acd.txt"},  // the first part is not tied to the start
        {"aa*aa.*", "aaaa aaxaa", "aaa"},  // parts do not overlap
        {"a?c*e?.*", "abcdef.x", "abcde.x"},
        {"**.*", "a.b", ".b"},  // an empty name matches "*" alone
        {"*.", "a.", "a a.b"},
        {"dir\\a.txt", "a.txt", "dir\\a.txt"},
    };
    for (const auto& [pattern, matching, others] : cases) {
        CFileFinder finder;
        ASSERT_EQ(1, finder.OpenFinder(pattern)) << pattern;
        for (const char* names : {matching, others}) {
            std::istringstream stream(names);
            for (std::string name; stream >> name;)
                EXPECT_EQ(names == matching, finder.TestName(name.c_str()) != 0) << pattern << " " << name;
        }
    }
}

TEST(FileFinder, RefusesWhatDoesNotFitOrIsNoPattern) {
    const std::string longest(255, 'n');
    CFileFinder finder;
    EXPECT_EQ(0, finder.TestName("a"));
    for (const std::string& pattern : {std::string(), longest + "n*.x", "*." + longest, longest + "n"}) {
        ASSERT_EQ(1, finder.OpenFinder("*.*"));
        EXPECT_EQ(0, finder.OpenFinder(pattern.c_str())) << pattern;
        EXPECT_EQ(0, finder.TestName("a"));
    }
    EXPECT_EQ(0, finder.OpenFinder(nullptr));
    ASSERT_EQ(1, finder.OpenFinder((longest + longest + "\\" + longest + ".*").c_str()));
    EXPECT_EQ(1, finder.TestName((longest + ".x").c_str()));
    EXPECT_EQ(0, finder.TestName((longest + "n.x").c_str()));
    EXPECT_EQ(0, finder.TestName((longest + "." + longest).c_str()));
    ASSERT_EQ(1, finder.OpenFinder("*"));
    EXPECT_NE(0, finder.TestName(nullptr));  // no name counts as the empty one
}

}  // namespace
