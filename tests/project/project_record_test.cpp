#include "catalogue/project_record.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "project_fixture.h"
#include "string_arrays.h"

namespace {

class ProjectRecordTest : public ProjectTest {
protected:
    RecordChange Add(const std::string& scriptPath) {
        const std::string text = Main();
        CLex lex(text.data(), static_cast<long>(text.size()));
        return ChangeByAdding(lex, Copy("main.brl").c_str(), scriptPath.c_str());
    }
};

TEST_F(ProjectRecordTest, NamesAreAppended) {
    WriteMain("// needs: c\ninclude <b>;\n\ninclude <d>;\n");
    CStringArray names;
    names.Add("a");
    EXPECT_TRUE(GetIncludes(Copy("MAIN.brl").c_str(), names));
    EXPECT_EQ(1, GetScriptNeeds(Copy("main.brl").c_str(), names));
    EXPECT_EQ(0, GetScriptNeeds(Copy("missing.brl").c_str(), names));
    WriteMain("include <a.brl>;\n// " + std::string(1021, 'c') + "\n");  // a line too long to be read
    EXPECT_TRUE(GetIncludes(Copy("main.brl").c_str(), names));
    EXPECT_EQ("a|b|c", Joined(names));
}

TEST_F(ProjectRecordTest, Adding) {
    WriteTemplate("lamp.brl", "// needs: t, sound\n");
    WriteTemplate("own.brl", "// needs: own.brl, own.brl\n");
    const std::string longText = "var x;\n" + std::string(2000, 'y') + "\n" + std::string(2000, 'z');
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"var x;\n", "lamp.brl", "include <t>;\r\ninclude <sound>;\r\ninclude <lamp.brl>;\r\nvar x;\n"},
        {"include <T>;\n", "lamp.brl", "include <T>;\ninclude <sound>;\r\ninclude <lamp.brl>;\r\n"},
        {"include <lamp.brl>;\ninclude <sound>;\ninclude <t>;\n", "lamp.brl", ""},
        {"include <a>;\n\ninclude <b>;\n", "b", "include <a>;\ninclude <b>;\r\n\ninclude <b>;\n"},
        {"x", "own.brl", "include <own.brl>;\r\ninclude <own.brl>;\r\ninclude <own.brl>;\r\nx"},
        {"var x;\n", "MAIN.brl", ""},
        {"include <a>;\n" + longText, "b", "include <a>;\ninclude <b>;\r\n" + longText},
    };
    for (const auto& [before, script, after] : cases) {
        WriteMain(before);
        EXPECT_EQ(after.empty() ? RecordChange::Unchanged : RecordChange::Written, Add(Template(script)));
        EXPECT_EQ(after.empty() ? before : after, Main());
    }
}

TEST_F(ProjectRecordTest, Removing) {
    WriteMain("include <a>;\r\nvar x;\r\ninclude <B.brl>;\r\nvar y;\r\n");
    EXPECT_TRUE(RemoveInclude("b.brl"));
    EXPECT_EQ("include <a>;\r\nvar x;\r\nvar y;\r\n", Main());
    EXPECT_EQ(1, CountCalls("ScriptsChanged"));
    EXPECT_FALSE(RemoveInclude("b.brl"));
    EXPECT_EQ(0, CountCalls("ScriptsChanged"));
    std::filesystem::remove(folder.Path("project/main.brl"));
    EXPECT_FALSE(RemoveInclude("a"));
}

}  // namespace
