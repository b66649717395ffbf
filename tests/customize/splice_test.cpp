#include "customize/splice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parsed_script.h"

namespace {

std::string Bytes(const ScriptText& text) {
    return {text.Data(), static_cast<size_t>(text.Size())};
}

std::string Closed(const std::string& text) {
    return text + std::string("\r\n\0", 3);
}

TEST(Splice, PutsValuesInTheirPlaces) {
    const struct {
        const char* what;
        const char* script;
        std::vector<NewValue> changes;
        const char* result;
    } cases[] = {
        {"longer", "// entry: A\nvar a = 5 ; // x", {{0, "1000"}}, "// entry: A\nvar a = 1000 ; // x"},
        {"shorter",
         "//entry A\na=\"long\";\n//entry B\nb=2;",
         {{0, ""}, {1, "3"}},
         "//entry A\na=\"\";\n//entry B\nb=3;"},
        {"brackets stay", "//entry A\nx=< a >;", {{0, "b"}}, "//entry A\nx=<b>;"},
        {"off", "//enable A\n  f();\nx", {{0, "0"}}, "//enable A\n//  f();\nx"},
        {"on", "//enable A\n  // f();\nx", {{0, "1"}}, "//enable A\n   f();\nx"},
        {"switch as it is", "//enable A\n//f();", {{0, "0"}}, "//enable A\n//f();"},
        {"no place", "//entry_drop A\nx;", {{0, "5"}}, "//entry_drop A\nx;"},
        {"nothing", "//entry A\na=5;", {}, "//entry A\na=5;"},
    };
    for (const auto& c : cases) {
        const ParsedScript script(c.script);
        const SplicedScript spliced = SpliceValues(script.text, script.list, c.changes);
        EXPECT_EQ(Bytes(spliced.text), Closed(c.result)) << c.what;
    }
}

// After a save the document goes on from what was written: saving in steps ends where one save would.
TEST(Splice, PlacesFollowTheText) {
    const char* const bytes =
        "//entry A\na=5;\n//enable B\n\tb();\n//enable C\n //c();\n//entry D\nd=\"x\";\n//entry_text "
        "E\ne=\"y\nz\";\n";
    const std::vector<std::vector<NewValue>> saves = {
        {{0, "12345"}, {1, "0"}, {2, "1"}},
        {{1, "1"}, {3, "a longer string"}, {4, "one\ntwo\nthree"}},
        {{0, "7"}, {1, "0"}, {2, "0"}, {3, ""}},
    };
    ParsedScript script(bytes);
    for (const std::vector<NewValue>& changes : saves) {
        TakeSplice(SpliceValues(script.text, script.list, changes), changes, script.text, script.list);
        const ParsedScript again(Bytes(script.text));
        EXPECT_EQ(script.TellAll(), again.TellAll());
    }
    EXPECT_EQ(script.TellAll().substr(0, 12), "11:A=7@12+1\n");
}

}  // namespace
