#include "customize/splice.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
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
    const std::tuple<const char*, const char*, std::vector<NewValue>, const char*> cases[] = {
        {"shorter",
         "//entry A\na=\"long\";\n//entry B\nb=2;",
         {{0, ""}, {1, "3"}},
         "//entry A\na=\"\";\n//entry B\nb=3;"},
        {"brackets stay", "//entry A\nx=< a >;", {{0, "b"}}, "//entry A\nx=<b>;"},
        {"off", "//enable A\n  f();\nx", {{0, "0"}}, "//enable A\n//  f();\nx"},
        {"on", "//enable A\n  // f();\nx", {{0, "1"}}, "//enable A\n   f();\nx"},
        {"no place", "//entry_drop A\nx;", {{0, "5"}}, "//entry_drop A\nx;"},
        {"nothing", "//entry A\na=5;", {}, "//entry A\na=5;"},
    };
    for (const auto& [what, before, changes, result] : cases) {
        const ParsedScript script(before);
        const SplicedScript spliced = SpliceValues(script.text, script.list, changes);
        EXPECT_EQ(Bytes(spliced.text), Closed(result)) << what;
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
        EXPECT_EQ(script.TellAll(), ParsedScript(Bytes(script.text)).TellAll());
    }
    EXPECT_EQ(script.TellAll().substr(0, 12), "11:A=7@12+1\n");
}

}  // namespace
