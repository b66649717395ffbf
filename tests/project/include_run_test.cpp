#include "catalogue/include_run.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "string_arrays.h"

namespace {

using namespace std::string_literals;

// A copy of exactly that size, so that a read beyond it is found out.
class Bytes {
public:
    explicit Bytes(const std::string& text) : bytes_(new char[text.size()]), size_(text.size()) {
        std::copy(text.begin(), text.end(), bytes_.get());
    }
    std::string_view View() const { return {bytes_.get(), size_}; }
    long Size() const { return static_cast<long>(size_); }

private:
    std::unique_ptr<char[]> bytes_;
    size_t size_;
};

std::string IncludesOf(const std::string& text) {
    const Bytes bytes(text);
    CLex lex(bytes.View().data(), bytes.Size());
    CStringArray names;
    ReadIncludes(lex, names);
    return Joined(names);
}

// Where new lines go, or -1.
long PlaceIn(const std::string& text, CStringArray& names) {
    const Bytes bytes(text);
    CLex lex(bytes.View().data(), bytes.Size());
    const char* const place = FindInsertPoint(lex, names);
    return place ? static_cast<long>(place - bytes.View().data()) : -1;
}

std::string WithCrLf(const std::string& text) {
    std::string result;
    for (const char ch : text)
        result += ch == '\n' ? "\r\n"s : std::string(1, ch);
    return result;
}

// The place is that in the text with LF; with CR LF it lies as many bytes further as lines stand before it.
TEST(IncludeRun, NamesAndPlace) {
    const struct {
        const char* what;
        std::string text;
        const char* names;
        long place;
    } cases[] = {
        {"empty", "", "", 0},
        {"a run", "include <a.brl>;\ninclude <b.brl>;\nvar x;\n", "a.brl|b.brl", 34},
        {"wherever it begins", "var x;\n// hm\n\ninclude <a>;\nvar y;\n", "a", 27},
        {"blank line ends it", "include <a>;\n\ninclude <b>;\n", "a", 13},
        {"comment ends it", "include <a>;\n// hm\ninclude <b>;\n", "a", 13},
        {"only the first run", "include <a>;\nx\ninclude <b>;\ny\n", "a", 13},
        {"blanks in front, any case", " \tINCLUDE <a>;\nInclude\t<b>\nx", "a|b", 27},
        {"the rest is not looked at", "include <a> and so on // hm\n", "a", 28},
        {"quotes name nothing but go on", "include \"q\";\ninclude <a>;\nx\n", "a", 26},
        {"no name at all", "include ;\ninclude <a>;\nx\n", "a", 23},
        {"word goes on", "includes <a>\ninclude_x <b>\nincluded\n<c>;\nx\n", "a|b|c", 41},
        {"no blank behind the word", "include<a>;\nx\n", "", 12},
        {"too short a word", "includ <a>;\n", "", 0},
        {"bracket not closed on its line", "include <a\n>;\nx\n", "", 11},
        {"bracket is the last byte", "include <\nx\n", "", 10},
        {"trimmed", "include < \t<a b> >;\ninclude <<c>>;\nx\n", "a b|c", 35},
        {"an empty name", "include <>;\ninclude <a>;\nx\n", "|a", 25},
        {"name on a later line", "include\n\n  <a>;\ninclude <b>;\nx\n", "a|b", 29},
        {"lines used up are no includes", "include\ninclude <a>;\nx\n", "", 21},
        {"a comment in place of the name", "include // <a>\ninclude <b>;\nx\n", "b", 28},
        {"an open quote uses up all", "include \"a\ninclude <b>;\nx\n", "", 0},
        {"run up to the end without line end", "// c\ninclude <a>;\ninclude <b>;", "a|b", 18},
        {"run that used up the last line", "x\ninclude <a>;\ninclude\n", "a", 15},
        {"all comment, then a line end", "// a\n// b\n", "", 10},
        {"all comment", "// a\n// b", "", -1},
        {"in front of the first code", "// a\n  var x;\n", "", 5},
        {"a blank line counts as code", "// a\n\nvar x;\n", "", 5},
        {"closing bytes of a saved script", "include <a>;\n\0"s, "a", 13},
        {"a NUL ends the first token", "\0include <a>;\n"s, "", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.names, IncludesOf(c.text)) << c.what;
        CStringArray none;
        EXPECT_EQ(c.place, PlaceIn(c.text, none)) << c.what;

        const std::string crLf = WithCrLf(c.text);
        EXPECT_EQ(c.names, IncludesOf(crLf)) << c.what << ", CR LF";
        const long lines = c.place < 0 ? 0 : std::count(c.text.begin(), c.text.begin() + c.place, '\n');
        EXPECT_EQ(c.place < 0 ? -1 : c.place + lines, PlaceIn(crLf, none)) << c.what << ", CR LF";
    }
}

TEST(IncludeRun, LoneCrEndsNoLine) {
    EXPECT_EQ("a", IncludesOf("include <a>;\rinclude <b>;\r"));
    CStringArray none;
    EXPECT_EQ(0, PlaceIn("include <a>;\rinclude <b>;\r", none));
}

TEST(IncludeRun, ALongLastLineIsReadUpToItsLimit) {
    const std::string blanks(1024, ' ');
    EXPECT_EQ("", IncludesOf(blanks + "include <a>"));
    EXPECT_EQ("a", IncludesOf(blanks + "include <a>\n"));
}

TEST(IncludeRun, TakesOutWhatIsIncluded) {
    const struct {
        const char *text, *names, *left;
    } cases[] = {
        {"include <a>;\ninclude <b>;\n", "b|c|a|d", "c|d"},
        {"include <Tools.BRL>;\n", "tools.brl|TOOLS.brl|tool.brl", "tool.brl"},
        {"include <\xc4.brl>;\n", "\xe4.brl", "\xe4.brl"},
        {"include <a>;\n\ninclude <b>;\n", "a|b", "b"},
        {"include <>;\ninclude <a>;\n", "b", "b"},
        {"", "a|a", "a|a"},
    };
    for (const auto& c : cases) {
        CStringArray names;
        Split(c.names, names);
        PlaceIn(c.text, names);
        EXPECT_EQ(c.left, Joined(names)) << c.text;
    }
}

TEST(IncludeRun, NewLinesEndInCrLf) {
    CStringArray names;
    Split("a.brl|b.brl", names);
    EXPECT_EQ("// c\ninclude <a.brl>;\r\ninclude <b.brl>;\r\nvar x;", WithIncludes("// c\nvar x;", 5, names));
    EXPECT_EQ("include <a.brl>;\r\ninclude <b.brl>;\r\n", WithIncludes("", 0, names));
}

TEST(IncludeRun, LosesOneInclude) {
    const std::string longLine(3000, 'y');
    const struct {
        const char* what;
        std::string text, name, left;
    } cases[] = {
        {"in the run", "include <a>;\ninclude <b>;\nx\n", "a", "include <b>;\nx\n"},
        {"behind the run", "include <a>;\nx\n\ninclude <b>;\ny\n", "b", "include <a>;\nx\n\ny\n"},
        {"the first of two", "include <a>;\ninclude <a>;\nx\n", "a", "include <a>;\nx\n"},
        {"other case", "x\r\ninclude <Tools.brl>; // hm\r\ny\r\n", "TOOLS.BRL", "x\r\ny\r\n"},
        {"not the beginning of a name", "include <ab>;\ninclude <a>;\nx\n", "a", "include <ab>;\nx\n"},
        {"the last line", "x\ninclude <a>;", "a", "x\n"},
        {"the only line", "include <a>;", "a", ""},
        {"the last but one", "x\r\ninclude <a>;\r\n", "a", "x\r\n"},
        {"the last line loses CRs then", "include <a>;\nx\r\r\r", "a", "x\r"},
        {"but only then", "include <a>;\ny\nx\r\r\r", "a", "y\nx\r\r\r"},
        {"a saved script keeps its end", "include <a>;\r\n\0"s, "a", "\0"s},
        {"a long last line stays whole", "include <a>;\n" + longLine, "a", longLine},
        {"a long line further up too", longLine + "\ninclude <a>;\n", "a", longLine + "\n"},
        {"split over lines", "x\ninclude\n\n <a>;\ny\n", "a", "x\ny\n"},
        {"used-up lines of others stay", "include\n<b>;\ninclude <a>;\nx\n", "a", "include\n<b>;\nx\n"},
        {"all of a text with CR alone", "include <a>;\rx\r", "a", ""},
    };
    for (const auto& c : cases) {
        const Bytes bytes(c.text);
        EXPECT_EQ(c.left, WithoutInclude(bytes.View(), c.name).value_or("nothing found")) << c.what;
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
