#include <gtest/gtest.h>

#include <string>

#include "manager/notes_report.h"
#include "manager/update_list.h"
#include "manager_fixture.h"

namespace {

using PageContentsTest = ManagerTest;

const std::string kHeader = "Template: Set\r\n\tType: T\r\n\tDate: 7\r\n\tVers: 6\r\n\tReq: 5\r\n\r\n";

TEST_F(PageContentsTest, TheNotesTellEveryIncludeWithItsState) {
    WriteMain(
        "include <a.brl>;\ninclude <b.brl>;\ninclude <x.brl>;\ninclude <d_0.brl>;\n\ninclude <c.brl>;\n");
    WriteTemplate("a.brl", "// ver: 2\n// date: 20240101\n");
    WriteTemplate("b.brl", "// ver: 3\n");
    WriteCopy("b.brl", "// ver: 4\n");
    WriteCopy("d_0.brl", "");
    EXPECT_STREQ(NotesReport(catalogue, Copy("main.brl").c_str()).GetString(),
                 (kHeader + "Main Script: " + Copy("main.brl") +
                  "\r\n\r\na.brl  (2) (20240101)\r\n*b.brl  (4) (-1)\r\n!x.brl  (-1) (-1)\r\n"
                  "*d_0.brl  (-1) (-1)\r\n")
                     .c_str());
    EXPECT_STREQ(
        NotesReport(CTemplateManager(), "none").GetString(),
        "Template: \r\n\tType: \r\n\tDate: \r\n\tVers: \r\n\tReq: \r\n\r\nMain Script: none\r\n\r\n");
}

TEST_F(PageContentsTest, TheListGoesByTheMainScriptAndTheCatalogue) {
    WriteMain("include <d_0.brl>;\ninclude <b.brl>;\ninclude <A.brl>;\ninclude <a.brl>;\n");
    CString listed;
    for (const ProjectScript& script : ListProjectScripts(catalogue))
        listed += script.include + "=" + (script.inCatalogue ? script.catalogueName : CString("-")) + " ";
    EXPECT_STREQ(listed.GetString(), "d_0.brl=- b.brl=B A.brl=- a.brl=A ");
    EXPECT_EQ(LocationMark(ScriptInTemplates), ' ');
    EXPECT_EQ(LocationMark(ScriptInProject), '*');
    EXPECT_EQ(LocationMark(ScriptNotFound), '?');
    g_appInterface = nullptr;
    EXPECT_TRUE(ListProjectScripts(catalogue).empty());
}

TEST_F(PageContentsTest, TheUpdateListComparesVersionAndDateExactly) {
    const struct {
        const char* copy;
        const char* original;
        const char* text;  // null: not listed
    } cases[] = {
        {"// ver: 1\n// date: 2\n", "// ver: 1\n// date: 2\nmore", nullptr},
        {"// ver: 9\n", "// ver: 1\n", "A--[Local ver: 9 date: -1 --> Template ver: 1 date: -1]"},
        {"// ver: 1\n// date: May\n", "// ver: 1\n// date: may\n",
         "A--[Local ver: 1 date: May --> Template ver: 1 date: may]"},
        {"", "", nullptr},
        {"// ver: 1\n", nullptr, "A--[Local ver: 1 date: -1 --> Template ver: -1 date: -1]"},
        {nullptr, "// ver: 1\n", nullptr},
    };
    Include("a");
    for (const auto& c : cases) {
        std::filesystem::remove(folder.Path("project/a.brl"));
        std::filesystem::remove(folder.Path("base/templates/a.brl"));
        if (c.copy) WriteCopy("a.brl", c.copy);
        if (c.original) WriteTemplate("a.brl", c.original);
        const std::vector<UpdateEntry> listed = ListUpdates(catalogue, false);
        ASSERT_EQ(listed.size(), c.text ? 1u : 0u) << (c.copy ? c.copy : "no copy");
        if (c.text) {
            EXPECT_STREQ(UpdateText(listed[0]).GetString(), c.text);
        }
        EXPECT_EQ(ListUpdates(catalogue, true).size(), c.copy ? 1u : 0u);
    }
}

TEST_F(PageContentsTest, AForcedListHasNamesAlone) {
    WriteMain("include <d_0.brl>;\ninclude <c.brl>;\ninclude <a.brl>;\ninclude <b.brl>;\n");
    for (const char* name : {"d_0.brl", "c.brl", "a.brl"})
        WriteCopy(name, "");
    const std::vector<UpdateEntry> listed = ListUpdates(catalogue, true);
    ASSERT_EQ(listed.size(), 2u);
    EXPECT_STREQ(UpdateText(listed[0]).GetString(), "C");
    EXPECT_STREQ(UpdateText(listed[1]).GetString(), "A");

    answer = IDNO;
    EXPECT_FALSE(UserWantsAllUpdates(nullptr, listed));
    answer = IDYES;
    EXPECT_TRUE(UserWantsAllUpdates(nullptr, listed));
    EXPECT_FALSE(UserWantsAllUpdates(nullptr, {}));
    const std::string question = Titled("Update All Scripts Listed?", MB_YESNO);
    EXPECT_EQ(TakeBoxes(),
              (std::vector<std::string>{question, question, "Everything Up-to-Date.|Can't Update|16"}));
}

}  // namespace
