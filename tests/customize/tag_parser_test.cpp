#include "customize/tag_parser.h"

#include <gtest/gtest.h>

#include <climits>
#include <regex>
#include <string>
#include <tuple>
#include <utility>

#include "parsed_script.h"

namespace {

using namespace std::string_literals;

TEST(TagParser, AWholeScript) {
    const ParsedScript script(
        "// ver: 104\n"
        "// title: Player\n"
        "// entry: Walk speed\n"
        "// help: Quants per tick.\n"
        "// help: Whole numbers.\n"
        "// id: 12\n"
        "// cntl: spin 0 x 5\n"
        "var speed = 10;\n"
        "// enable: Shadows\n"
        "  // use_shadows();\n"
        "// enable: Sound\n"
        "  use_sound();\n"
        "// entry_drop: Mode\n"
        "// cntl: drop fast slow\n"
        "string mode = \"fast\";\n"
        "//DATE 20260101\n");
    EXPECT_EQ(script.header.scriptVersion, 104);
    EXPECT_EQ(script.header.scriptDate, 20260101);
    EXPECT_EQ(script.TellAll(),
              "0:Player=\n"
              "11:Walk speed=10@142+2 #12 spin 0 999999 5 ?Quants per tick.\r\nWhole numbers.\n"
              "8:Shadows=0@167+0\n"
              "8:Sound=1@202+0\n"
              "17:Mode=fast@276+4 [fast] [slow]\n");
}

// Each line of the answer is one record; the offset is where the value stands.
TEST(TagParser, Records) {
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"tag spelling", "//entry : A\nx=1;\n  // ENTRY B\nx=2;", "11:A=1@14+1\n11:B=2@32+1\n"},
        {"no argument", "// title:\n// section", "0:=\n3:=\n"},
        {"blank line cancels", "// entry: A\n\nx=1;", ""},
        {"plain comment between", "// entry: A\n// hm\n//\nx=1;", "11:A=1@23+1\n"},
        {"the next tag cancels", "// entry: A\n// title: B\nx=1;", "0:B=\n"},
        {"tags above count", "// id: 3\n// entry: A\nx=1;", "11:A=1@23+1 #3\n"},
        {"tags below the value go on", "// entry: A\nx=1;\n// id: 3\n// entry: B\ny=2;",
         "11:A=1@14+1\n11:B=2@40+1 #3\n"},
        {"tags above code are lost", "// id: 3\nx=1;\n// entry: B\ny=2;", "11:B=2@28+1\n"},
        {"a title takes tags above it", "// id: 3\n// title: T", "0:T= #3\n"},
        {"ignored keywords", "// entry: A\n// entry_numEdit: B\n// skill3: C\n// desc: D\nx=1;",
         "11:A=1@58+1\n"},
        {"numbers", "// entry: A\nx = -5;\n// entry: B\nx = .5;\n// entry: C\nx = +;\n// entry: D\nx = 1e3;",
         "11:A=-5@16+2\n12:B=.5@36+2\n11:C=+@56+1\n"},
        {"no value", "// entry: A\nvar x;\n// entry_drop: B\nvar x;", "17:B=\n"},
        {"a word", "// entry: A\nvar a = b;\n// entry_drop: B\nvar a = b;", "17:B=b@48+1\n"},
        {"odd brackets", "// entry: A\nx = <<a>;", "13:A=a@17+2\n"},
        {"kept kinds keep brackets", "// entry_path: A\nx = <a>;\n// entry_entity: B\nm = ;",
         "16:A=<a>@21+3\n15:B=;@49+1\n"},
        {"text with a size", "// entry_text: 200, 60, Notes\nx = \"a\";", "18:Notes=a@35+1 200x60\n"},
        {"enable over a keyword", "// enable: A\n// text = 5;\nx();", "2:= 5;=\n"},
        {"value on a later line", "// entry: A\nvar x\n= 7;\n// title: T", "11:A=7@20+1\n0:T=\n"},
        {"a failed search keeps its lines", "// entry: A\nvar x\n// title: T\n// title: U", "0:U=\n"},
        {"an open quote takes the rest", "// entry: A\nx = \"a\n// title: T\n", ""},
        {"the first value behind =", "// entry_drop: A\nx; = 5\n// entry_drop: B\na == 5",
         "17:A=\n17:B==@44+1\n"},
        {"words hold quotes", "// entry_drop: A\nf(\"a\");\n// entry: B\n\"a\" \"b\"",
         "17:A=\n14:B=b@42+1\n"},
        {"slash before the value", "// entry: A\nx /* c */ = 5;\n// title: T", "0:T=\n"},
        {"action skips to a blank line", "// action: a\n// title: T\nx\n\n// title: U", "0:U=\n"},
        {"action skips to an action", "// action\n// title: T\nAction b()\n// title: U", "0:U=\n"},
        {"help lines", "// help:\n// help: a\n// help:\n// title: T", "0:T= ?a\r\n\n"},
        {"carriage return inside", "// title: a\rb\n//entry\rx: C\nx=1;", "0:a\rb=\n11:=1@29+1\n"},
        {"NUL at a line's start", "// entry: A\n\0x\nx=1;"s, ""},
    };
    for (const auto& [what, text, records] : cases)
        EXPECT_EQ(ParsedScript(text).TellAll(), records) << what;
}

TEST(TagParser, Numbers) {
    const std::pair<const char*, int> versions[] = {
        {"// ver: 1.5", 1},
        {"// ver: x", 0},
        {"// ver: 3\n// ver:", -1},
        {"", -1},
        {"// ver: 99999999999", INT_MAX},
    };
    for (const auto& [text, version] : versions)
        EXPECT_EQ(ParsedScript(text).header.scriptVersion, version) << text;
    const std::tuple<const char*, const char*, const char*> skills[] = {
        {": Speed 5", "Speed", "5"},
        {": Very fast car", "Very", "fast"},
        {"", "", "0"},
        {": One", "One", "0"},
    };
    for (const auto& [argument, label, value] : skills) {
        CScriptEntry entry;
        BeginEntry(entry, KindSkill, argument, static_cast<int>(strlen(argument)));
        EXPECT_EQ(entry.label, label) << argument;
        EXPECT_EQ(entry.value, value) << argument;
    }
}

// Cut off at every byte, and with the other line ends: never a read beyond the text, never a place outside
// it.
TEST(TagParser, SurvivesEveryCut) {
    const std::string whole =
        "// ver: 1\n// entry: A\n// cntl: spin 0 10\nvar a = 5;\n// enable: B\n// b();\n"
        "// entry_text: 20, 2, C\nc = \"x\ny\";\n// entry: D\nd = <e.wav>;\n// action\n// title: T\n";
    const std::string crlf = std::regex_replace(whole, std::regex("\n"), "\r\n");
    for (const std::string& text : {whole, crlf}) {
        for (size_t size = 0; size <= text.size(); ++size) {
            const ParsedScript script(text.substr(0, size));
            for (size_t i = 0; i < script.list.entries.size(); ++i) {
                const CScriptEntry& entry = script.list.entries[i];
                if (entry.textPos == nullptr) continue;
                EXPECT_LE(script.Offset(i) + entry.textLen, static_cast<long>(size)) << text.substr(0, size);
            }
        }
    }
    EXPECT_EQ(ParsedScript(whole).list.entries.size(), ParsedScript(crlf).list.entries.size());
}

}  // namespace
