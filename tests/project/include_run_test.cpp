#include "catalogue/include_run.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <tuple>
#include <vector>

#include "string_arrays.h"

namespace {

using namespace std::string_literals;

// A copy of exactly that size, so that a read beyond it is found out.
struct Bytes {
    explicit Bytes(const std::string& text) : bytes(text.begin(), text.end()) {}
    std::string_view View() const { return {bytes.data(), bytes.size()}; }
    CLex Lex() const { return CLex(bytes.data(), static_cast<long>(bytes.size())); }

    std::vector<char> bytes;
};

std::string IncludesOf(const std::string& text) {
    const Bytes bytes(text);
    CLex lex = bytes.Lex();
    CStringArray names;
    ReadIncludes(lex, names);
    return Joined(names);
}

// Where new lines go, or -1.
long PlaceIn(const std::string& text, CStringArray& names) {
    const Bytes bytes(text);
    CLex lex = bytes.Lex();
    const char* const place = FindInsertPoint(lex, names);
    return place ? static_cast<long>(place - bytes.View().data()) : -1;
}

// The place is that in the text with LF; with CR LF it lies as many bytes further as lines stand before it.
TEST(IncludeRun, NamesAndPlace) {
    const std::tuple<std::string, const char*, long> cases[] = {
        {"include <a.brl>;\ninclude <b.brl>;\nvar x;\n", "a.brl|b.brl", 34},
        {"var x;\n// hm\n\ninclude <a>;\nvar y;\n", "a", 27},
        {" \tINCLUDE <a>;\nInclude\t<b>\nx", "a|b", 27},
        {"includes <a>\ninclude_x <b>\nincluded\n<c>;\nx\n", "a|b|c", 41},
        {"include<a>;\nx\n", "", 12},
        {"include <\nx\n", "", 10},
        {"include < \t<a b> >;\ninclude <<c>>;\nx\n", "a b|c", 35},
        {"include <>;\ninclude <a>;\nx\n", "|a", 25},
        {"include \"a\ninclude <b>;\nx\n", "", 0},
        {"// a\n// b", "", -1},
        {"// a\n\nvar x;\n", "", 5},
        {"include <a>;\n\0"s, "a", 13},
        {"\0include <a>;\n"s, "", 0},
    };
    for (const auto& [text, names, place] : cases) {
        EXPECT_EQ(names, IncludesOf(text)) << text;
        CStringArray none;
        EXPECT_EQ(place, PlaceIn(text, none)) << text;

        const std::string crLf = std::regex_replace(text, std::regex("\n"), "\r\n");
        EXPECT_EQ(names, IncludesOf(crLf)) << crLf;
        const long lines = place < 0 ? 0 : std::count(text.begin(), text.begin() + place, '\n');
        EXPECT_EQ(place < 0 ? -1 : place + lines, PlaceIn(crLf, none)) << crLf;
    }
}

TEST(IncludeRun, LoneCrAndALongLastLine) {
    EXPECT_EQ("a", IncludesOf("include <a>;\rinclude <b>;\r"));
    EXPECT_EQ("", IncludesOf(std::string(1024, ' ') + "include <a>"));
}

TEST(IncludeRun, TakesOutWhatIsIncluded) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"include <a>;\ninclude <b>;\n", "b|c|a|d", "c|d"},
        {"include <Tools.BRL>;\n", "tools.brl|TOOLS.brl|tool.brl", "tool.brl"},
        {"include <\xc4.brl>;\n", "\xe4.brl", "\xe4.brl"},
    };
    for (const auto& [text, given, left] : cases) {
        CStringArray names;
        Split(given, names);
        PlaceIn(text, names);
        EXPECT_EQ(left, Joined(names)) << text;
    }
}

TEST(IncludeRun, LosesOneInclude) {
    const std::string longLine(3000, 'y');
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"include <a>;\nx\n\ninclude <b>;\ny\n", "b", "include <a>;\nx\n\ny\n"},
        {"x\r\ninclude <Tools.brl>; // hm\r\ny\r\n", "TOOLS.BRL", "x\r\ny\r\n"},
        {"include <a>;\nx\r\r\r", "a", "x\r"},
        {"include <a>;\n" + longLine, "a", longLine},
        {"x\ninclude\n\n <a>;\ny\n", "a", "x\ny\n"},
        {"include\n<b>;\ninclude <a>;\nx\n", "a", "include\n<b>;\nx\n"},
        {"include <a>;\rx\r", "a", ""},
    };
    for (const auto& [text, name, left] : cases) {
        const Bytes bytes(text);
        EXPECT_EQ(left, WithoutInclude(bytes.View(), name).value_or("nothing found")) << text;
    }
    for (const char* text :
         {"", "x\n", "include \"a\";\n", "// include <a>;\n", "include<a>;\n", "include <b>;"})
        EXPECT_FALSE(WithoutInclude(text, "a")) << text;
}

// What was added goes away again without a trace, wherever the run stands.
TEST(IncludeRun, AddingAndRemovingGivesTheSameText) {
    for (const std::string& text :
         {"include <x>;\r\nvar y;\r\n"s, "// c\r\n\r\nvar y;"s, "var y;\n"s, "// c\ninclude <x>;"s}) {
        CStringArray names;
        Split("new.brl", names);
        const long place = PlaceIn(text, names);
        const std::string added = WithIncludes(text, static_cast<size_t>(std::max(place, 0L)), names);
        EXPECT_EQ(text, WithoutInclude(added, "NEW.brl")) << text;
    }
}

}  // namespace
