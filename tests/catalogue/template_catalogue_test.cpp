#include "catalogue/template_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/current_folder.h"
#include "temp_folder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char kSmall[] =
    "<?xml version=\"1.0\"?>\n"
    "<Templates name=\"Small\" type=\"Game\" engineReq=\"6.2\" date=\"20240415\">\n"
    "<Directory type=\"base\" path=\"first\"/><Directory type=\"base\" path=\"..\\base\"/>\n"
    "<Directory type=\"scripts\" path=\"..\\one\"/><Directory type=\"scripts\" path=\"two\"/>\n"
    "<Directory path=\"none\"/>\n"
    "<Script id=\"1\" directory=\"scripts\" filename=\"hero.brl\" name=\"Hero\" type=\"USER\" vers=\"104\" "
    "date=\"20240411\"><class>Player</class><desc>Walks.</desc><need>tools.brl</need><need>sound.brl</need>"
    "<action name=\"hero_act\" filename=\"hero.brl\">Walks by the keys.</action>"
    "<action filename=\"spare.brl\"/></Script>\n"
    "<Script filename=\"tools.brl\" name=\"Tools\" type=\"SYSTEM\"><class>System</class></Script>\n"
    "<Script filename=\"door.brl\" name=\"Door\" type=\"USER\" "
    "directory=\"nowhere\"><class>World</class></Script>\n"
    "<Script filename=\"hero.brl\" name=\"Second\" type=\"USER\"><class>PLAYER</class></Script>\n"
    "<Script filename=\"..spare.brl\" name=\"Hero\" type=\"USER\" vers=\"9\"><class>player</class></Script>\n"
    "<Script filename=\"..x.brl\" name=\"Bare\" type=\"USER\"/>\n"
    "<Script filename=\"q.brl\" name=\"Quoted\" type='USER'/>\n"
    "</Templates>\n";

std::vector<std::string> ListOf(const CStringArray& names) {
    std::vector<std::string> list;
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        list.emplace_back(names[i].GetString());
    return list;
}

class Small : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(catalogue.LoadText(kSmall, nullptr)); }

    CTemplateManager catalogue;
    CStringArray list;
    CString text{"before"};
};

TEST_F(Small, Header) {
    EXPECT_STREQ(catalogue.name, "Small");
    EXPECT_STREQ(catalogue.version, "1.0");  // of the declaration, as no element has one
    EXPECT_STREQ(catalogue.engineReq, "6.2");
    EXPECT_STREQ(catalogue.base, "..\\base");
    EXPECT_EQ(catalogue.directories.size(), 5u);
    EXPECT_EQ(catalogue.records.size(), 7u);
}

TEST_F(Small, ClassesInTheirFirstSpelling) {
    list.Add("gone");
    EXPECT_TRUE(catalogue.GetClasses(list, "USER"));
    EXPECT_THAT(ListOf(list), ElementsAre("<ALL>", "Player", "World", ""));
    EXPECT_TRUE(catalogue.GetClasses(list, "SYSTEM"));
    EXPECT_THAT(ListOf(list), ElementsAre("<ALL>", "System"));
    EXPECT_TRUE(catalogue.GetClasses(list, "user"));
    EXPECT_THAT(ListOf(list), ElementsAre("<ALL>"));
}

TEST_F(Small, ScriptsOfATypeAndClass) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"<ALL>", {"Hero", "Door", "Second", "Hero", "Bare"}},
        {"Player", {"Hero"}},
        {"PLAYER", {"Second"}},
        {"player", {"Hero"}},
        {"", {"Bare"}},
        {nullptr, {"Bare"}},
        {"System", {}},
    };
    for (const auto& [scriptClass, names] : cases) {
        list.Add("gone");
        EXPECT_TRUE(catalogue.GetScriptsOfClass(list, "USER", scriptClass));
        EXPECT_EQ(ListOf(list), names) << scriptClass;
    }
    EXPECT_TRUE(catalogue.GetScripts(list, "'USER'"));
    EXPECT_THAT(ListOf(list), ElementsAre("Quoted"));
}

TEST_F(Small, FirstRecordOfANameAnswers) {
    EXPECT_TRUE(catalogue.GetDesc(text, "Hero"));
    EXPECT_STREQ(text, "Walks.");
    EXPECT_TRUE(catalogue.GetDate(text, "Hero"));
    EXPECT_STREQ(text, "20240411");
    EXPECT_TRUE(catalogue.GetVers(text, "Hero"));
    EXPECT_STREQ(text, "104");
    EXPECT_TRUE(catalogue.GetNameOfFile(text, "hero.brl"));
    EXPECT_STREQ(text, "Hero");
    // The answer may overwrite its question.
    EXPECT_TRUE(catalogue.GetFile(text, text, true));
    EXPECT_STREQ(text, "..\\base\\one\\hero.brl");
    list.Add("Hero");
    EXPECT_TRUE(catalogue.GetActions(list, list[0]));
    EXPECT_THAT(ListOf(list), ElementsAre("hero_act", "spare.brl"));

    CScriptRecord record;
    record.needs.Add("gone");
    EXPECT_TRUE(catalogue.GetRecord(record, "Hero"));
    EXPECT_STREQ(record.id, "1");
    EXPECT_THAT(ListOf(record.needs), ElementsAre("tools.brl", "sound.brl"));
    ASSERT_EQ(record.actions.size(), 2u);
    EXPECT_STREQ(record.actions[0].text, "Walks by the keys.");
}

TEST_F(Small, UnknownNames) {
    CScriptRecord record;
    record.id = "kept";
    for (const char* name : {"hero", "Hero ", "", static_cast<const char*>(nullptr)}) {
        list.Add("gone");
        EXPECT_FALSE(catalogue.GetActions(list, name));
        EXPECT_THAT(ListOf(list), IsEmpty());
        EXPECT_FALSE(catalogue.GetDesc(text, name) || catalogue.GetDate(text, name));
        EXPECT_FALSE(catalogue.GetVers(text, name) || catalogue.GetNameOfFile(text, name));
        EXPECT_FALSE(catalogue.GetFile(text, name, false) || catalogue.GetFile(text, name, true));
        EXPECT_FALSE(catalogue.GetRecord(record, name));
    }
    EXPECT_STREQ(text, "before");
    EXPECT_STREQ(record.id, "kept");
}

TEST_F(Small, Files) {
    EXPECT_TRUE(catalogue.GetFile(text, "Hero", false));
    EXPECT_STREQ(text, "hero.brl");
    EXPECT_TRUE(catalogue.GetFile(text, "Bare", true));  // finds the directory without a type
    EXPECT_STREQ(text, "..\\basenone\\x.brl");
    EXPECT_FALSE(catalogue.GetFile(text, "Door", true));
    EXPECT_STREQ(text, "..\\basenone\\x.brl");
}

TEST_F(Small, FurtherTextsAddToTheLists) {
    EXPECT_FALSE(catalogue.LoadText("<x name=\"Broken\"><Script name=\"New\"/></y>", nullptr));
    EXPECT_STREQ(catalogue.name, "Small");
    EXPECT_FALSE(catalogue.GetVers(text, "New"));

    EXPECT_TRUE(
        catalogue.LoadText("<Script name=\"New\" vers=\"1\"/><Script name=\"Hero\" vers=\"2\"/>", nullptr));
    EXPECT_TRUE(catalogue.GetVers(text, "New"));
    EXPECT_STREQ(text, "1");
    EXPECT_TRUE(catalogue.GetVers(text, "Hero"));
    EXPECT_STREQ(text, "104");
    EXPECT_EQ(catalogue.records.size(), 9u);
}

// What of an odd text ends where: header name, records as "name:class:desc:needs", directories as
// "type:path".
std::string Outline(const char* text) {
    CTemplateManager catalogue;
    EXPECT_TRUE(catalogue.LoadText(text, nullptr)) << text;
    std::string outline = catalogue.name.GetString();
    for (const CTemplateDir& directory : catalogue.directories) {
        outline.append(" /").append(directory.type).append(":").append(directory.path);
    }
    for (const CScriptRecord& record : catalogue.records) {
        outline.append(" ").append(record.name).append(":").append(record.scriptClass);
        outline.append(":").append(record.desc).append(":");
        for (const std::string& need : ListOf(record.needs))
            outline.append(need).append(",");
        for (const CScriptAction& action : record.actions)
            outline.append("+").append(action.text);
    }
    return outline;
}

TEST(TemplateCatalogue, OddTexts) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"<a name=\"1\"/><b name=\"2\"><action name=\"3\"/>", "3"},
        {"<Script name=\"s\"><action name=\"not\"/></Script>", " s:::+"},
        {"<script name=\"s\"/><directory path=\"p\"/><Script NAME=\"t\"/>", "s :::"},
        {"<Directory/><Directory type=a path='b'>", " /: /a:'b'"},
        {"<Directory path=\"open\"><Script name=\"lost\"/>", " /:open"},
        {"<Script name=\"a\" name='\"c\"'/>", " '\"c\"':::"},
        {"<Script name=s><class>1<!--x-->2</class><desc>3</desc><desc>4</desc></Script>", " s:2:4:"},
        {"<Script name=s><need>1<!--x-->2</need><need/><need>\"3\"</need></Script>", " s:::1,2,\"3\","},
        {"<Script name=s><desc>1</desc><desc><![CDATA[2]]></desc></Script>", " s::1:"},
        {"<Script name=s><desc>1<b>2</b></desc><x><need>3</need></x></Script>", " s::1:"},
    };
    for (const auto& [text, outline] : cases)
        EXPECT_EQ(Outline(text), outline) << text;
}

class Files : public testing::Test {
protected:
    // The outcome of loading these bytes: "loaded", "unread", or the error with its place.
    std::string Load(const std::string& bytes) {
        folder.Write("c.xml", bytes);
        XmlResult result{-1, -1, -1};
        const bool loaded = catalogue.LoadFile(folder.Name("c.xml").c_str(), &result);
        EXPECT_EQ(catalogue.LoadFile(folder.Name("c.xml").c_str(), nullptr), loaded);
        if (result.error == 0) return loaded ? "loaded" : "unread";
        EXPECT_FALSE(loaded);
        return "error " + std::to_string(result.error) + " at " + std::to_string(result.line) + ":" +
               std::to_string(result.column);
    }

    TempFolder folder;
    CTemplateManager catalogue;
};

TEST_F(Files, LinesAreJoinedWithoutTheirEnds) {
    for (const char* end : {"\n", "\r\n"}) {
        const std::string e = end;
        CTemplateManager fresh;
        folder.Write("c.xml", "<Script na" + e + "me=\"s\"><desc>one" + e + "\ttwo " + e + e + "three</desc" +
                                  e + "></Script>" + e + "<x name=\"a\rb\x1A\"/>");
        ASSERT_TRUE(fresh.LoadFile(folder.Name("c.xml").c_str(), nullptr));
        CString desc;
        EXPECT_TRUE(fresh.GetDesc(desc, "s"));
        EXPECT_STREQ(desc, "one\ttwo three");
        EXPECT_STREQ(fresh.name, "a\rb\x1A");
    }
    EXPECT_EQ(Load(std::string("<Script name=\"n\"/>\n\0></x>", 24)), "loaded");  // a NUL ends the text
}

TEST_F(Files, ErrorsTellTheirPlaceInTheFile) {
    const std::pair<const char*, const char*> cases[] = {
        {">", "error 7 at 1:2"},
        {"\n\n <a>\r\n  >\r\n\r\n</a>", "error 7 at 4:4"},
        {"<a>\n</\nb\n>", "error 6 at 4:2"},
        {"<a>\n\n'x\ny", "error 5 at 3:1"},
        {"<a>\r\n<!--\r\nx\r\n", "error 6 at 2:5"},
    };
    for (const auto& [bytes, outcome] : cases)
        EXPECT_EQ(Load(bytes), outcome) << bytes;
}

TEST_F(Files, WhatCannotBeRead) {
    for (const std::string& name : {folder.Name("missing.xml"), folder.Name()}) {
        XmlResult result{-1, -1, -1};
        EXPECT_FALSE(catalogue.LoadFile(name.c_str(), &result)) << name;
        EXPECT_EQ(result.error, 0);
    }
    EXPECT_TRUE(catalogue.records.empty());
}

// The one test of the process-wide catalogue: it can be loaded only once.
TEST_F(Files, SharedCatalogueIsTriedUntilItLoadsAndThenKept) {
    const CurrentFolder current(folder.Name());
    CString vers;
    EXPECT_FALSE(EnsureTemplatesLoaded());
    folder.Write("template_6.xml", "<Script name=\"s\" vers=\"1\"/>>");
    EXPECT_FALSE(EnsureTemplatesLoaded());
    folder.Write("template_6.xml", "<Script name=\"s\" vers=\"2\"/>");
    EXPECT_TRUE(EnsureTemplatesLoaded());
    folder.Write("template_6.xml", "<Script name=\"s\" vers=\"3\"/>");
    EXPECT_TRUE(EnsureTemplatesLoaded());
    EXPECT_TRUE(g_templateManager.GetVers(vers, "s"));
    EXPECT_STREQ(vers, "2");
    EXPECT_EQ(g_templateManager.records.size(), 1u);
}

}  // namespace
