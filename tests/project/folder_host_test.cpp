#include "host/folder_host.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <tuple>
#include <utility>

#include "temp_folder.h"

namespace {

constexpr const char* kProjectFile =
    "; a project\r\n[project]\r\nfolder    = game\r\nmain      = game\\main.brl\r\nbase      = ./base\r\n"
    "templates = set 6\r\nsearch    = pictures\r\nsearch    = C:\\sounds\r\n\r\n"
    "[paths a]\r\ngate\r\nwall\r\n[paths b]\r\nmoat\r\n\r\n"
    "[action guard_act]\r\nfile    = guard.brl\r\nflag 1  = Stands\r\nflag 3  = Deaf\r\nskill 2 = "
    "Speed\r\n\r\n"
    "[entity gate_guard]\r\naction  = guard_act\r\nflags   = 1 8\r\nskill 2 = 7.5 \r\n[entity stone]\r\n";

class FolderHostTest : public testing::Test {
protected:
    FolderHostTest() {
        std::filesystem::create_directories(folder.Path("game"));
        std::filesystem::create_directories(folder.Path("base/set 6"));
        folder.Write("project.tarn", kProjectFile);
        folder.Write("game/main.brl", "var x;\n");
        host = FolderHost::Open(folder.Name(), error);
    }

    template <typename Block>
    HostWord Ask(HostWord code, Block& block) {
        return host->Message(0, code, &block, sizeof block);
    }

    std::string Folder(HostWord query, HostWord index = 0) {
        char buffer[260] = "untouched";
        HostFolderBlock block{query, index, buffer, sizeof buffer};
        if (!Ask(MessageGetFolder, block)) return block.length == 0 ? "refused" : "wrong length";
        return {buffer, static_cast<size_t>(block.length)};
    }

    TempFolder folder;
    std::string error;
    std::unique_ptr<FolderHost> host;
};

TEST_F(FolderHostTest, AnswersFromItsProjectFile) {
    ASSERT_TRUE(host) << error;
    char buffer[260];
    EXPECT_TRUE(host->GetMainScript(buffer, sizeof buffer));
    EXPECT_EQ(folder.Name("game\\main.brl"), buffer);
    EXPECT_EQ(folder.Name("base"), Folder(QueryBaseFolder));
    EXPECT_EQ("set 6", Folder(QueryTemplateFolder));
    EXPECT_EQ("C:\\sounds", Folder(QuerySearchFolder, 1));
    EXPECT_EQ("refused", Folder(QuerySearchFolder, 2));
    EXPECT_EQ("refused", Folder(QuerySearchFolder, -1));
    EXPECT_EQ(2, host->BeginEntities());
    EXPECT_TRUE(host->GetEntity(1, buffer, sizeof buffer));
    EXPECT_STREQ("stone", buffer);
    EXPECT_FALSE(host->GetEntity(2, buffer, sizeof buffer));
    EXPECT_FALSE(host->GetPathA(0, buffer, 4));
    EXPECT_EQ(1, host->BeginPathsB());
}

TEST_F(FolderHostTest, TellsAnActionInTwoSteps) {
    ASSERT_TRUE(host) << error;
    folder.Write("base/set 6/guard.brl", "var x;\n// flag1: Stands\naction guard_act()\n{\n}\nvar y;\n");
    HostActionFileBlock file{"guard_act", QueryActionFile, nullptr, 0, 0, 0};
    ASSERT_TRUE(Ask(MessageGetAction, file));
    std::string path(static_cast<size_t>(file.size), '?');
    file.buffer = path.data();
    ASSERT_TRUE(Ask(MessageGetAction, file));
    EXPECT_EQ(folder.Name("base\\set 6\\guard.brl"), path.c_str());
    EXPECT_EQ(7, file.offset);
    EXPECT_EQ(39, file.length);

    const std::tuple<HostWord, HostWord, HostWord, std::string> names[] = {
        {QueryFlagName, 0, 3, "Stands"}, {QueryFlagName, 1, 3, ""},       {QueryFlagName, 2, 3, "Deaf"},
        {QueryFlagName, 3, 0, ""},       {QuerySkillName, 1, 2, "Speed"}, {6, 0, 0, ""},
    };
    for (const auto& [query, index, count, name] : names) {
        HostActionNameBlock block{"guard_act", query, index, nullptr, -1};
        EXPECT_EQ(count, Ask(MessageGetAction, block));
        if (name.empty()) {
            EXPECT_LE(block.size, 0);
            continue;
        }
        EXPECT_EQ(static_cast<HostWord>(name.size() + 1), block.size);
        char text[16];
        block.buffer = text;
        EXPECT_EQ(count, Ask(MessageGetAction, block));
        EXPECT_EQ(name, text);
    }
}

TEST_F(FolderHostTest, KeepsWhatTheEntityIsGiven) {
    ASSERT_TRUE(host) << error;
    HostFlagsBlock flags{1, 0};
    EXPECT_GT(Ask(MessageGetFlags, flags), 0);
    EXPECT_EQ(0x81, flags.flags);
    HostSkillsBlock skills{1, {}};
    EXPECT_TRUE(Ask(MessageGetSkills, skills));
    EXPECT_EQ(0, skills.skills[0]);
    EXPECT_EQ(7.5f, skills.skills[1]);

    flags.flags = 0x5;
    skills.skills[1] = 0.1f;
    skills.skills[19] = -2e10f;
    EXPECT_TRUE(Ask(MessageSetFlags, flags));
    EXPECT_TRUE(Ask(MessageSetSkills, skills));
    EXPECT_FALSE(host->Message(0, MessageGetFlags, &flags, sizeof flags - 1));
    EXPECT_FALSE(host->Message(0, MessageGetFlags, nullptr, sizeof flags));

    ASSERT_TRUE(host->Save());
    std::string expected = kProjectFile;
    const auto replace = [&expected](const std::string& before, const std::string& after) {
        expected.replace(expected.find(before), before.size(), after);
    };
    replace("1 8", "1 3");
    replace("skill 2 = 7.5 \r\n", "skill 2 = 0.1\r\nskill 20 = -2e+10\r\n");
    EXPECT_EQ(expected, folder.Read("project.tarn"));
    HostEntityBlock entity{1};
    EXPECT_TRUE(Ask(MessageRemoveAction, entity));
    ASSERT_TRUE(host->Save());
    replace("action  = guard_act\r\n", "");
    EXPECT_EQ(expected, folder.Read("project.tarn"));
    EXPECT_TRUE(FolderHost::Open(folder.Name("project.tarn"), error)) << error;
}

TEST_F(FolderHostTest, CopiesIntoTheProject) {
    ASSERT_TRUE(host) << error;
    folder.Write("base/a.brl", "new %_%");
    folder.Write("game/A.brl", "old");
    char path[260];
    std::strcpy(path, folder.Name("base\\a.brl").c_str());
    EXPECT_FALSE(HostAgrees(host->CopyToProject(path, path, 10)));
    std::strcpy(path, folder.Name("base\\a.brl").c_str());
    for (int onto = 0; onto < 2; ++onto) {
        EXPECT_TRUE(HostAgrees(host->CopyToProject(path, path, sizeof path)));
        EXPECT_EQ(folder.Name("game\\a.brl"), path);
        EXPECT_EQ("new %_%", folder.Read("game/A.brl"));
    }
}

TEST_F(FolderHostTest, MakesAMainScriptAndRemembersItsCopy) {
    folder.Write("project.tarn", "[project]\nfolder=game\nmain=base/start.brl\nbase=base\ntemplates=t\n");
    host = FolderHost::Open(folder.Name("project.tarn"), error);
    ASSERT_TRUE(host) << error;
    char path[260];
    EXPECT_FALSE(host->GetMainScript(path, sizeof path));
    host->CreateMainScript();
    EXPECT_TRUE(host->GetMainScript(path, sizeof path));
    EXPECT_TRUE(HostAgrees(host->CopyToProject(path, path, sizeof path)));
    EXPECT_TRUE(host->Save());
    host = FolderHost::Open(folder.Name(), error);
    EXPECT_EQ(folder.Name("game\\start.brl"), host ? host->Project().mainScript : error);
}

TEST_F(FolderHostTest, ErrorsNameTheLine) {
    const std::string head = "[project]\nfolder=game\nbase=base\ntemplates=t\n";
    const std::pair<std::string, const char*> cases[] = {
        {"[project]\nfolder=game\nbase=base\n", ": [project] tells no template folder"},
        {head + "[colors]\n", ":5: an unknown section [colors]"},
        {head + "\n; hm\n[project]\n", ":7: a second [project]"},
        {head + "[entity a]\nskill 21 = 1\n", ":6: \"skill 21\" has no number from 1 to 20"},
        {head + "[entity a]\nskill 2 = 1x\n", ":6: \"1x\" is no number"},
    };
    for (const auto& [text, message] : cases) {
        folder.Write("project.tarn", text);
        EXPECT_FALSE(FolderHost::Open(folder.Name(), error)) << text;
        EXPECT_EQ(folder.Name("project.tarn") + message, error);
    }
    EXPECT_FALSE(FolderHost::Open(folder.Name("missing"), error));
    EXPECT_EQ(folder.Name("missing") + ": can't be read", error);
}

}  // namespace
