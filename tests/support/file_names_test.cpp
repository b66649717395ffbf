#include "support/file_names.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class Name : public CFName {
public:
    using CFName::CFName;
    int PathLength() const { return pathlen; }
};

class Finder : public CFileFinder {
public:
    int Flags() const { return flags; }
};

// Null shows as "-".
std::string Shown(const char* text) {
    return text ? text : "-";
}

TEST(FName, SplitsAPath) {
    const struct {
        const char *name, *full, *shortName, *ext, *noExt;
        int pathLength;
        const char* dir;
        char drive;
    } cases[] = {
        {"C:\\dir\\a.b.txt", "C:\\dir\\a.b.txt", "a.b.txt", "txt", "a.b", 6, "C:\\dir", 'C'},
        {"C:\\\\dir\\\\\\a.txt", "C:\\dir\\a.txt", "a.txt", "txt", "a", 6, "C:\\dir", 'C'},
        {"a.txt", "a.txt", "a.txt", "txt", "a", 0, "-", 0},
        {"\\a.txt", "\\a.txt", "a.txt", "txt", "a", 0, "-", 0},
        {"C:\\a.txt", "C:\\a.txt", "a.txt", "txt", "a", 2, "C:", 'C'},
        {"C:a.txt", "C:a.txt", "C:a.txt", "txt", "C:a", 0, "-", 0},
        {"dir.d\\name", "dir.d\\name", "name", "-", "name", 5, "dir.d", 0},
        {"a.", "a.", "a.", "", "a", 0, "-", 0},
        {".ext", ".ext", ".ext", "ext", "", 0, "-", 0},
        {"dir\\", "dir\\", "", "-", "", 3, "dir", 0},
        {"x/y.z", "x/y.z", "x/y.z", "z", "x/y", 0, "-", 0},
        {"", "", "", "-", "", 0, "-", 0},
        {nullptr, "", "", "-", "", 0, "-", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(Shown(c.name));
        Name name(c.name);
        EXPECT_EQ(c.full, Shown(name));
        EXPECT_EQ(c.shortName, Shown(name.GetShortName()));
        EXPECT_EQ(c.ext, Shown(name.GetExt()));
        EXPECT_EQ(c.noExt, Shown(name.GetNameNoExt()));
        EXPECT_EQ(c.pathLength, name.PathLength());
        EXPECT_EQ(c.dir, Shown(name.GetDir()));
        EXPECT_EQ(c.drive, name.GetDrive());
    }
}

TEST(FName, WithoutANameGivesNull) {
    CFName name;
    EXPECT_EQ(nullptr, name.GetFullName());
    EXPECT_EQ(nullptr, name.GetNameNoExt());
    EXPECT_EQ(nullptr, name.GetDir());
    EXPECT_EQ(0, name.GetDrive());
    EXPECT_EQ(0, name.TestExt(".txt"));
    EXPECT_STREQ("x", name.SetExt("x"));
    EXPECT_STREQ(".x", name);
}

TEST(FName, ReplacesTheExtension) {
    const struct {
        const char *name, *ext, *result, *full;
    } cases[] = {
        {"dir\\a.bmp", ".txt", "txt", "dir\\a.txt"},
        {"dir\\a.bmp", "txt", "txt", "dir\\a.txt"},
        {"a", "txt", "txt", "a.txt"},
        {"a.b.c", nullptr, "-", "a.b"},
        {"a.b.c", ".", "-", "a.b"},
        {"a.b.c", "", "-", "a.b"},
        {"a.b", "..x", "x", "a..x"},
        {"a.b", "x\\y", "-", "a.x\\y"},
        {"dir.d\\a", nullptr, "-", "dir.d\\a"},
    };
    for (const auto& c : cases) {
        fname_t name(c.name);
        EXPECT_EQ(c.result, Shown(name.SetExt(c.ext))) << c.name << " " << Shown(c.ext);
        EXPECT_STREQ(c.full, name.GetFullName());
    }
    fname_t name("a.b.c");
    name.SetExt(nullptr);
    name.SetExt("x");
    EXPECT_STREQ("a.b.x", name.GetFullName());
    name.SetExt(name.GetExt());
    EXPECT_STREQ("a.b.x", name.GetFullName());
    name.SetName(name.GetShortName() + 2);
    EXPECT_STREQ("b.x", name.GetFullName());
}

TEST(FName, KeepsItsCachesUntilTold) {
    CFName name("C:\\old\\a.b");
    EXPECT_STREQ("a", name.GetNameNoExt());
    EXPECT_STREQ("C:\\old", name.GetDir());
    name.SetExt(nullptr);
    EXPECT_STREQ("a", name.GetNameNoExt());
    name.SetName("D:\\new\\c.d");
    EXPECT_STREQ("c", name.GetNameNoExt());
    EXPECT_STREQ("C:\\old", name.GetDir());
    name.FreeTmpMemory();
    EXPECT_STREQ("c", name.GetNameNoExt());
    EXPECT_STREQ("D:\\new", name.GetDir());
}

TEST(FName, ComparesNames) {
    const struct {
        const char* name;
        bool equal;
    } cases[] = {
        {"A.TXT", true},    {"c:\\DIR\\a.txt", true},    {"dir\\a.txt", false},
        {"\\a.txt", false}, {"C:\\dir\\\\a.txt", false}, {"a.tx", false},
        {nullptr, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.equal, fname_t("C:\\dir\\a.txt").CmpName(c.name) == 0) << Shown(c.name);
    EXPECT_EQ(0, fname_t("dir\\").CmpName(nullptr));
}

TEST(FName, FindsItsExtensionInAList) {
    const struct {
        const char *name, *exts;
        int found;
    } cases[] = {
        {"a.tga", ".bmp.tga", 1}, {"a.TGA", ".bmp.tga", 1}, {"a.jpeg", ".jpe", 1},   {"a.jpeg", ".jpg", 0},
        {"a.c", ".c.h", 0},       {"a.c", ".h.c", 1},       {"a.tga", "tga", 0},     {"a.tga", "x.tga", 1},
        {"a", ".tga", 0},         {"a.", ".tga", 0},        {"a.", ".tga.", 1},      {"a.tga", "", 0},
        {"a.tga", nullptr, 0},    {nullptr, ".tga", 0},     {"d.tga\\a", ".tga", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.found, fname_t::TestExt(c.name, c.exts)) << Shown(c.name) << " " << Shown(c.exts);
    }
}

TEST(FName, DropsDoubledBackslashes) {
    const char* const cases[][2] = {
        {"a\\\\b", "a\\b"}, {"\\\\\\a\\\\\\b\\\\", "\\a\\b\\"}, {"\\", "\\"}, {"a", "a"}, {"", ""},
    };
    for (const auto& c : cases) {
        std::string path = c[0];
        fname_t::DeleteDplSlash(path.data());
        EXPECT_STREQ(c[1], path.c_str());
    }
    fname_t::DeleteDplSlash(nullptr);
}

TEST(FName, JoinsDirectoryAndName) {
    const char* const cases[][3] = {
        {"C:\\dir", "a", "C:\\dir\\a"}, {"C:\\dir\\", "a", "C:\\dir\\a"}, {"", "a", "a"}, {nullptr, "a", "a"},
        {"dir", nullptr, "dir\\"},      {"dir\\\\", "\\a", "dir\\\\\\a"}, {"", "", ""},
    };
    for (const auto& c : cases) {
        CString path("old");
        fname_t::SplitPath(c[0], c[1], path);
        EXPECT_STREQ(c[2], path);
        char buffer[32] = "old";
        fname_t::SplitPath(c[0], c[1], buffer);
        EXPECT_STREQ(c[2], buffer);
    }
    fname_t::SplitPath("a", "b", static_cast<char*>(nullptr));
    char buffer[32] = "dir";
    fname_t::SplitPath(buffer, "name", buffer);
    EXPECT_STREQ("dir\\name", buffer);
    fname_t::SplitPath("top", buffer, buffer);
    EXPECT_STREQ("top\\dir\\name", buffer);
}

TEST(DName, HoldsADirectory) {
    const char* const cases[][3] = {
        // given, as a directory, as a file's name
        {"C:\\dir\\", "C:\\dir", "C:\\dir"},
        {"C:\\dir\\a.txt", "C:\\dir\\a.txt", "C:\\dir"},
        {"C:\\", "C:", "C:"},
        {"\\", "\\", ""},
        {"\\\\\\", "\\", ""},
        {"a\\\\b\\\\", "a\\b", "a\\b"},
        {"a.txt", "a.txt", ""},
        {nullptr, "", ""},
    };
    for (const auto& c : cases) {
        dname_t dir(c[0]);
        EXPECT_STREQ(c[1], dir) << Shown(c[0]);
        dir.SetPathFromName(c[0]);
        EXPECT_STREQ(c[2], dir.GetPath()) << Shown(c[0]);
    }
    dname_t dir("a\\b");
    dir.SetPath(dir.GetPath() + 2);
    EXPECT_STREQ("b", dir);
    EXPECT_EQ(nullptr, dname_t().GetPath());
}

TEST(FileFinder, TellsWhatAPatternIsMadeOf) {
    const struct {
        const char* pattern;
        int flags;
    } cases[] = {
        {"a", FF_EXT_EXACT | FF_NAME_EXACT},
        {"*.*", FF_ALL},
        {"*", FF_NAME_ANY | FF_EXT_NONE},
        {"*.txt", FF_NAME_ANY | FF_EXT_EXACT},
        {"*.t*", FF_NAME_ANY | FF_EXT_STAR},
        {"a.*", FF_NAME_EXACT | FF_EXT_ANY},
        {"a?", FF_NAME_QUESTION | FF_EXT_NONE},
        {"?*.*?", FF_NAME_STAR | FF_NAME_QUESTION | FF_EXT_STAR | FF_EXT_QUESTION},
    };
    for (const auto& c : cases) {
        Finder finder;
        EXPECT_EQ(1, finder.OpenFinder(c.pattern)) << c.pattern;
        EXPECT_EQ(c.flags, finder.Flags()) << c.pattern;
    }
}

TEST(FileFinder, TestsNames) {
    const struct {
        const char *pattern, *matching, *others;  // names with blanks between
    } cases[] = {
        {"*.*", "a a.b .b", ""},
        {"*", "a dir\\a d.d\\a", "a.b a."},
        {"a*", "a abc bac", "a.b bcd"},
        {"*.txt", "abc.TXT dir\\a.txt d/a.txt C:a.txt .txt", "abc.txt2 abc a.tx"},
        {"*.TXT", "abc.txt", ""},
        {"a.*", "a a.b A.B", "b ab.c"},
        {"a?.txt", "ab.txt", "a.txt abc.txt"},
        {"a*.txt", "abc.txt a.txt", "b.txt"},
        {"b*.txt", "abc.txt", "acd.txt"},  // the first part is not tied to the start
        {"*.t?t", "x.txt", "x.tx x.txtt"},
        {"a*b*c.x", "a1b2c3.x abc.x", "acb.x ab.x"},
        {"a*c.*", "abcd", "acb\\bcd"},
        {"aa*aa.*", "aaaa aaxaa", "aaa"},  // parts do not overlap
        {"a?c*e?.*", "abcdef.x", "abcde.x"},
        {"**.*", "a.b", ".b"},  // an empty name matches "*" alone
        {"*.", "a.", "a a.b"},
        {"*.**", "a.b a.", "a"},
        {"a.txt", "A.TXT", "dir\\a.txt a.txt2 a"},
        {"d*\\a.txt", "a.txt", "a d\\a.txt"},
        {"dir\\a.txt", "a.txt", "dir\\a.txt"},
    };
    for (const auto& c : cases) {
        CFileFinder finder;
        ASSERT_EQ(1, finder.OpenFinder(c.pattern)) << c.pattern;
        for (const bool wanted : {true, false}) {
            std::string names = wanted ? c.matching : c.others;
            for (size_t end; !names.empty(); names.erase(0, end == std::string::npos ? end : end + 1)) {
                end = names.find(' ');
                const std::string name = names.substr(0, end);
                EXPECT_EQ(wanted, finder.TestName(name.c_str()) != 0) << c.pattern << " " << name;
            }
        }
    }
}

TEST(FileFinder, RefusesWhatDoesNotFitOrIsNoPattern) {
    const std::string longest(255, 'n');
    CFileFinder finder;
    EXPECT_EQ(0, finder.TestName("a"));
    for (const std::string& pattern :
         {std::string(), longest + "n*.x", "*." + longest, longest + ".x", std::string(256, 'n')}) {
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
