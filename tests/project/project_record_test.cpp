#include "catalogue/project_record.h"

#include <gtest/gtest.h>

#include <string>

#include "project_fixture.h"
#include "string_arrays.h"

namespace {

class ProjectRecordTest : public ProjectTest {
protected:
    RecordChange Add(const std::string& scriptPath, const std::string& mainFile = "main.brl") {
        const std::string text = folder.Read("project/" + mainFile);
        CLex lex(text.data(), static_cast<long>(text.size()));
        return ChangeByAdding(lex, Copy(mainFile).c_str(), scriptPath.c_str());
    }
    std::string Includes(const std::string& path) {
        CStringArray names;
        EXPECT_TRUE(GetIncludes(path.c_str(), names));
        return Joined(names);
    }
};

TEST_F(ProjectRecordTest, ReadsWhatIsThere) {
    const std::string longLine = "// " + std::string(1021, 'c') + "\n";
    const struct {
        const char* file;
        std::string text;
        const char* names;
    } cases[] = {
        {"run.brl", "// c\r\ninclude <a.brl>;\r\ninclude <b.brl>;\r\n\r\ninclude <c.brl>;\r\n",
         "a.brl|b.brl"},
        {"none.brl", "var x;\n", ""},
        {"empty.brl", "", ""},
        {"long.brl", "include <a.brl>;\n" + longLine, ""},
    };
    for (const auto& c : cases) {
        folder.Write("project/" + std::string(c.file), c.text);
        EXPECT_EQ(c.names, Includes(Copy(c.file))) << c.file;
    }
    EXPECT_EQ("", Includes(Copy("missing.brl")));
    EXPECT_EQ("", Includes(folder.Name("project")));
    EXPECT_EQ("a.brl|b.brl", Includes(Copy("RUN.BRL")));
}

TEST_F(ProjectRecordTest, NamesAreAppended) {
    WriteMain("// needs: c\ninclude <b>;\n");
    CStringArray names;
    names.Add("a");
    GetIncludes(Copy("main.brl").c_str(), names);
    EXPECT_EQ(1, GetScriptNeeds(Copy("main.brl").c_str(), names));
    EXPECT_EQ(0, GetScriptNeeds(Copy("missing.brl").c_str(), names));
    EXPECT_EQ("a|b|c", Joined(names));
}

TEST_F(ProjectRecordTest, Adding) {
    WriteTemplate("lamp.brl", "// needs: tools.brl, sound.brl\n");
    WriteTemplate("own.brl", "// needs: own.brl, own.brl\n");
    WriteTemplate("main.brl", "// needs: tools.brl\n");
    const struct {
        const char *what, *before, *script, *after;
    } cases[] = {
        {"needs in front", "var x;\n", "lamp.brl",
         "include <tools.brl>;\r\ninclude <sound.brl>;\r\ninclude <lamp.brl>;\r\nvar x;\n"},
        {"only what is missing", "include <TOOLS.brl>;\nvar x;\n", "lamp.brl",
         "include <TOOLS.brl>;\ninclude <sound.brl>;\r\ninclude <lamp.brl>;\r\nvar x;\n"},
        {"only a need", "include <lamp.brl>;\ninclude <sound.brl>;\n", "lamp.brl",
         "include <lamp.brl>;\ninclude <sound.brl>;\ninclude <tools.brl>;\r\n"},
        {"nothing", "include <lamp.brl>;\ninclude <sound.brl>;\ninclude <tools.brl>;\n", "lamp.brl", nullptr},
        {"not found behind the run", "include <a>;\n\ninclude <gone.brl>;\n", "gone.brl",
         "include <a>;\ninclude <gone.brl>;\r\n\ninclude <gone.brl>;\n"},
        {"doubles stay", "var x;\n", "own.brl",
         "include <own.brl>;\r\ninclude <own.brl>;\r\ninclude <own.brl>;\r\nvar x;\n"},
        {"a script that is not there", "var x;\n", "gone.brl", "include <gone.brl>;\r\nvar x;\n"},
        {"comments without a line end", "// c", "gone.brl", "include <gone.brl>;\r\n// c"},
        {"comments with one", "// c\n", "gone.brl", "// c\ninclude <gone.brl>;\r\n"},
        {"the main script itself", "var x;\n", "MAIN.brl", nullptr},
    };
    for (const auto& c : cases) {
        WriteMain(c.before);
        const RecordChange change = Add(Template(c.script));
        EXPECT_EQ(c.after ? RecordChange::Written : RecordChange::Unchanged, change) << c.what;
        EXPECT_EQ(c.after ? c.after : c.before, Main()) << c.what;
    }
}

TEST_F(ProjectRecordTest, AddingReadsPastALineThatIsTooLong) {
    const std::string text =
        "include <a>;\nvar x;\n" + std::string(2000, 'y') + "\n" + std::string(2000, 'z');
    WriteMain(text);
    EXPECT_EQ(RecordChange::Written, Add(Template("b.brl")));
    EXPECT_TRUE(Main() == std::string(text).insert(13, "include <b.brl>;\r\n"));
}

TEST_F(ProjectRecordTest, Removing) {
    WriteMain("include <a>;\r\nvar x;\r\ninclude <B.brl>;\r\nvar y;\r\n");
    EXPECT_TRUE(RemoveInclude("b.brl"));
    EXPECT_EQ("include <a>;\r\nvar x;\r\nvar y;\r\n", Main());
    EXPECT_EQ(1, CountCalls("ScriptsChanged"));
    EXPECT_FALSE(RemoveInclude("b.brl"));
    EXPECT_EQ(0, CountCalls("ScriptsChanged"));

    WriteMain("");
    EXPECT_FALSE(RemoveInclude("a"));
    std::filesystem::remove(folder.Path("project/main.brl"));
    EXPECT_FALSE(RemoveInclude("a"));
    g_appInterface = nullptr;
    EXPECT_FALSE(RemoveInclude("a"));
}

}  // namespace
