#include "cli/commands.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "temp_folder.h"

namespace {

const std::string kClosing("\r\n\0", 3);

const std::string kScript =
    "// ver: 2\r\n"
    "// title: T\xFCr\r\n"
    "// entry: Speed\r\n"
    "// id: 1\r\n"
    "// cntl: spin 0 10\r\n"
    "var speed = 5;\r\n"
    "// entry: a=b\r\n"
    "var ab = \"x\";\r\n"
    "// enable: Same\r\n"
    "f();\r\n"
    "// enable: Same\r\n"
    "// g();\r\n"
    "// entry_drop: Mode\r\n"
    "// cntl: drop fast slow\r\n"
    "var mode = fast;\r\n"
    "// entry_drop: Nowhere\r\n"
    "var none;\r\n";

class CommandsTest : public testing::Test {
protected:
    void SetUp() override { folder_.Write("a.brl", kScript); }

    int Set(const std::vector<std::string>& assignments, bool dry_run = false) {
        return RunSet(File("a.brl"), assignments, dry_run, Fresh());
    }
    Streams Fresh() {
        out_.str("");
        err_.str("");
        return {out_, err_};
    }
    std::string File(const char* name) const { return folder_.Name(name); }
    std::string Replaced(std::string text, const std::string& from, const std::string& to) const {
        return text.replace(text.find(from), from.size(), to);
    }

    TempFolder folder_;
    std::ostringstream out_;
    std::ostringstream err_;
};

TEST_F(CommandsTest, KeysOfEveryForm) {
    const struct {
        const char* assignment;
        const char* from;
        const char* to;
    } cases[] = {
        {"#1=7", "speed = 5", "speed = 7"},
        {"@2=7", "speed = 5", "speed = 7"},
        {"speed=7", "speed = 5", "speed = 7"},
        {"a=b=y z", "\"x\"", "\"y z\""},
        {"@4=off", "\nf();", "\n//f();"},
        {"@5=on", "// g();", " g();"},
        {"Mode=SLOW", "mode = fast", "mode = slow"},
        {"Speed=99", "speed = 5", "speed = 10"},
    };
    for (const auto& c : cases) {
        folder_.Write("a.brl", kScript);
        EXPECT_EQ(Set({c.assignment}), ExitOk) << err_.str();
        EXPECT_EQ(folder_.Read("a.brl"), Replaced(kScript, c.from, c.to) + kClosing) << c.assignment;
    }
    EXPECT_NE(err_.str().find("forced into its limits 0 to 10"), std::string::npos);
    EXPECT_EQ(folder_.Read("a.brl.brlv"), "1\n2\n-1\n\n1\n11\n10\n\n");
}

TEST_F(CommandsTest, RefusalsWriteNothing) {
    const struct {
        std::vector<std::string> assignments;
        const char* why;
    } cases[] = {
        {{"#1"}, "expected KEY=VALUE"},
        {{"#2=1"}, "no value of this name"},
        {{"@99=1"}, "no value of this name"},
        {{"@1=x"}, "no value of this name"},
        {{"Same=on"}, "several records have this name: @4 @5"},
        {{"Nowhere=1"}, "no place in the script"},
        {{"#1=fast"}, "expected a whole number"},
        {{"a=b=\""}, "double quote"},
        {{"a=b=x\ny"}, "line end"},
        {{"Mode=other"}, "expected one of: fast, slow"},
        {{"#1=6", "@4=perhaps"}, "nothing was written"},
        {{"a=b=" + std::string(1100, 'x')}, "no longer read as before"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Set(c.assignments), ExitUser) << c.why;
        EXPECT_NE(err_.str().find(c.why), std::string::npos) << err_.str();
        EXPECT_EQ(folder_.Read("a.brl"), kScript);
        EXPECT_FALSE(folder_.Has("a.brl.brlv"));
    }
}

TEST_F(CommandsTest, WhatIsSetAlreadyTouchesNoFile) {
    EXPECT_EQ(Set({"#1=5", "@4=on"}), ExitOk);
    EXPECT_EQ(folder_.Read("a.brl"), kScript);
    EXPECT_FALSE(folder_.Has("a.brl.brlv"));
    EXPECT_NE(out_.str().find("nothing to change"), std::string::npos);
}

TEST_F(CommandsTest, ShowsTheChangedLines) {
    EXPECT_EQ(Set({"#1=7", "@5=on"}), ExitOk);
    EXPECT_EQ(out_.str(), File("a.brl") +
                              ": 2 values changed\n6 - var speed = 5;\n6 + var speed = 7;\n"
                              "12 - // g();\n12 +  g();\n");
}

TEST_F(CommandsTest, DryRunShowsADiffOnly) {
    EXPECT_EQ(Set({"#1=7"}, true), ExitOk);
    EXPECT_EQ(folder_.Read("a.brl"), kScript);
    const std::string name = File("a.brl");
    EXPECT_EQ(out_.str(),
              "--- " + name + "\n+++ " + name +
                  "\n@@ -3,7 +3,7 @@\n // entry: Speed\r\n // id: 1\r\n // cntl: spin 0 10\r\n"
                  "-var speed = 5;\r\n+var speed = 7;\r\n // entry: a=b\r\n var ab = \"x\";\r\n"
                  " // enable: Same\r\n@@ -15,3 +15,5 @@\n var mode = fast;\r\n // entry_drop: Nowhere\r\n"
                  " var none;\r\n+\r\n+" +
                  std::string(1, '\0') + "\n\\ No newline at end of file\n");

    folder_.Write("a.brl", "//entry A\na=5;");  // the changed line is also the one that is closed
    EXPECT_EQ(Set({"A=6"}, true), ExitOk);
    EXPECT_EQ(out_.str(),
              "--- " + name + "\n+++ " + name +
                  "\n@@ -1,2 +1,3 @@\n //entry A\n-a=5;\n\\ No newline at end of file\n+a=6;\r\n+" +
                  std::string(1, '\0') + "\n\\ No newline at end of file\n");
}

TEST_F(CommandsTest, TagsAsJson) {
    EXPECT_EQ(RunTags(File("a.brl"), true, Fresh()), ExitOk);
    const auto document = nlohmann::json::parse(out_.str());
    EXPECT_EQ(document["version"], 2);
    EXPECT_EQ(document["date"], -1);
    ASSERT_EQ(document["records"].size(), 7u);
    const auto& title = document["records"][0];
    EXPECT_EQ(title["label"], "T\xC3\xBCr");
    EXPECT_TRUE(title["value"].is_null() && title["at"].is_null() && title["id"].is_null());
    const auto& speed = document["records"][1];
    EXPECT_EQ(speed["kind"], "entry_numEdit");
    EXPECT_EQ(speed["limits"]["max"], 10.0);
    EXPECT_EQ(speed["at"], (nlohmann::json{{"line", 6}, {"column", 13}, {"offset", 85}, {"length", 1}}));
    EXPECT_EQ(document["records"][5]["items"], (nlohmann::json{"fast", "slow"}));
}

TEST_F(CommandsTest, Carry) {
    folder_.Write(
        "old.brl",
        "//entry Speed\n//id 1\nx=50;\n//entry Text\n//id 2\nt=\"old\";\n//entry Gone\n//id 3\ng=1;\n"
        "//entry_drop Mode\n//id 4\nm=\"slow\";\n//entry Same\n//id 5\ns=1;\n"
        "//entry_text 20,3,Notes\n//id 6\nn=\"one\ntwo\";\n");
    folder_.Write(
        "new.brl",
        "//entry Pace\n//id 1\n//cntl spin 0 10\nx=5;\n//entry Text\n//id 2\nt=\"new\";\n"
        "//entry_drop Mode\n//id 4\n//cntl drop fast slow\nm=\"fast\";\n//entry Same\n//id 5\ns=1;\n"
        "//entry_text 20,3,Notes\n//id 6\nn=\"\";\n");
    EXPECT_EQ(RunCarry(File("old.brl"), File("new.brl"), false, Fresh()), ExitOk) << err_.str();
    EXPECT_EQ(folder_.Read("new.brl"),
              "//entry Pace\n//id 1\n//cntl spin 0 10\nx=50;\n//entry Text\n//id 2\nt=\"old\";\n"
              "//entry_drop Mode\n//id 4\n//cntl drop fast slow\nm=\"fast\";\n//entry Same\n//id 5\ns=1;\n"
              "//entry_text 20,3,Notes\n//id 6\nn=\"one\ntwo\";\n" +
                  kClosing);
    EXPECT_NE(out_.str().find("#1 Pace = 50: carried, outside the new limits 0 to 10\n"
                              "#2 Text = old: carried\n"
                              "#3 = 1: no record has this id\n"
                              "#4 Mode = slow: not carried: a list keeps the new script's fast\n"
                              "#5 Same = 1: the same in both\n"
                              "#6 Notes = one\\ntwo: carried\n"),
              std::string::npos)
        << out_.str();

    // the side file that was written beside it serves as well, the long value included
    folder_.Write("third.brl", "//entry_text 20,3,Notes\n//id 6\nn=\"\";\n");
    EXPECT_EQ(RunCarry(File("new.brl.brlv"), File("third.brl"), false, Fresh()), ExitOk) << err_.str();
    EXPECT_EQ(folder_.Read("third.brl"), "//entry_text 20,3,Notes\n//id 6\nn=\"one\ntwo\";\n" + kClosing);
}

// A value that would end the string in the new script leaves that script as it is.
TEST_F(CommandsTest, CarryRefusesWhatWouldBreakTheScript) {
    folder_.Write("old.brl", "//entry_drop A\n//id 1\na=x\"y;\n");
    const std::string bytes = "//entry A\n//id 1\na=\"z\";\n";
    folder_.Write("new.brl", bytes);
    EXPECT_EQ(RunCarry(File("old.brl"), File("new.brl"), false, Fresh()), ExitUser);
    EXPECT_EQ(folder_.Read("new.brl"), bytes);
}

TEST_F(CommandsTest, FilesThatCannotBeRead) {
    EXPECT_EQ(RunTags(File("none.brl"), false, Fresh()), ExitFiles);
    EXPECT_EQ(RunSet(File("none.brl"), {"a=1"}, false, Fresh()), ExitFiles);
    EXPECT_EQ(RunCarry(File("none.brl"), File("a.brl"), false, Fresh()), ExitFiles);
    EXPECT_EQ(RunCarry(File("none.brl.brlv"), File("a.brl"), false, Fresh()), ExitFiles);
    EXPECT_EQ(RunCheck({File("none.brl"), File("a.brl")}, Fresh()), ExitFiles);
    EXPECT_NE(err_.str().find("can't be read"), std::string::npos);
    EXPECT_EQ(RunTags(File(std::string(300, 'x').c_str()), false, Fresh()), ExitFiles);
}

}  // namespace
