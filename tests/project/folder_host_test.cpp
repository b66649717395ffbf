#include "host/folder_host.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "temp_folder.h"

namespace {

constexpr const char* kProjectFile =
    "; a project\r\n"
    "[project]\r\n"
    "folder    = game\r\n"
    "main      = game\\main.brl\r\n"
    "base      = ./base\r\n"
    "templates = set 6\r\n"
    "search    = pictures\r\n"
    "search    = C:\\sounds\r\n"
    "\r\n"
    "[paths a]\r\n"
    "gate\r\n"
    "wall\r\n"
    "[paths b]\r\n"
    "moat\r\n"
    "\r\n"
    "[action guard_act]\r\n"
    "file    = guard.brl\r\n"
    "flag 1  = Stands\r\n"
    "flag 3  = Deaf\r\n"
    "skill 2 = Speed\r\n"
    "\r\n"
    "[entity gate_guard]\r\n"
    "action  = guard_act\r\n"
    "flags   = 1 8\r\n"
    "skill 2 = 7.5 \r\n"
    "[entity stone]\r\n";

class FolderHostTest : public testing::Test {
protected:
    FolderHostTest() {
        std::filesystem::create_directories(folder.Path("game"));
        std::filesystem::create_directories(folder.Path("base/set 6"));
        folder.Write("project.tarn", kProjectFile);
        folder.Write("game/main.brl", "var x;\n");
        host = FolderHost::Open(folder.Name(), error);
    }

    // The texts that a list of the host holds.
    using List = std::vector<std::string>;
    List Read(HostWord (FolderHost::*begin)(), HostWord (FolderHost::*get)(HostWord, char*, HostWord)) {
        List names;
        const HostWord count = (*host.*begin)();
        for (HostWord i = 0; i < count + 1; ++i) {
            char name[64];
            if ((*host.*get)(i, name, sizeof name) > 0) names.push_back(name);
        }
        return names;
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
    EXPECT_EQ(kHostClassId, host->GetClassId());
    EXPECT_EQ(static_cast<TarnInterface*>(host.get()), host->App()->tarn);
    char buffer[260];
    EXPECT_TRUE(host->GetMainScript(buffer, sizeof buffer));
    EXPECT_EQ(folder.Name("game\\main.brl"), buffer);
    host->GetProjectFolder(buffer, sizeof buffer);
    EXPECT_EQ(folder.Name("game"), buffer);
    EXPECT_EQ(folder.Name("base"), Folder(QueryBaseFolder));
    EXPECT_EQ("set 6", Folder(QueryTemplateFolder));
    EXPECT_EQ(folder.Name("pictures"), Folder(QuerySearchFolder, 0));
    EXPECT_EQ("C:\\sounds", Folder(QuerySearchFolder, 1));
    EXPECT_EQ("refused", Folder(QuerySearchFolder, 2));
    EXPECT_EQ("refused", Folder(QuerySearchFolder, -1));
    EXPECT_EQ("refused", Folder(2));

    EXPECT_EQ((List{"gate_guard", "stone"}), Read(&FolderHost::BeginEntities, &FolderHost::GetEntity));
    EXPECT_EQ((List{"gate", "wall"}), Read(&FolderHost::BeginPathsA, &FolderHost::GetPathA));
    EXPECT_EQ((List{"moat"}), Read(&FolderHost::BeginPathsB, &FolderHost::GetPathB));
    char small[4] = "...";
    EXPECT_FALSE(host->GetPathA(0, small, sizeof small));
    EXPECT_STREQ("...", small);

    EXPECT_FALSE(host->BrowseFile(buffer, sizeof buffer, 2, "template_6"));
    host->ChooseFile("C:\\a.brl");
    EXPECT_TRUE(host->BrowseFile(buffer, sizeof buffer, 2, "template_6"));
    EXPECT_STREQ("C:\\a.brl", buffer);
    EXPECT_FALSE(host->BrowseFile(buffer, sizeof buffer, 2, "template_6"));
}

TEST_F(FolderHostTest, TellsAnActionInTwoSteps) {
    ASSERT_TRUE(host) << error;
    folder.Write("base/set 6/guard.brl", "var x;\n// flag1: Stands\naction guard_act()\n{\n}\nvar y;\n");
    HostEntityActionBlock action{1, nullptr, 0};
    ASSERT_TRUE(Ask(MessageGetEntityAction, action));
    std::string name(static_cast<size_t>(action.size), '?');
    action.buffer = name.data();
    ASSERT_TRUE(Ask(MessageGetEntityAction, action));
    EXPECT_STREQ("guard_act", name.c_str());
    action = {2, nullptr, 0};
    EXPECT_FALSE(Ask(MessageGetEntityAction, action));
    action = {3, nullptr, 0};
    EXPECT_FALSE(Ask(MessageGetEntityAction, action));

    HostActionFileBlock file{"guard_act", QueryActionFile, nullptr, 0, 0, 0};
    ASSERT_TRUE(Ask(MessageGetAction, file));
    std::string path(static_cast<size_t>(file.size), '?');
    file.buffer = path.data();
    ASSERT_TRUE(Ask(MessageGetAction, file));
    EXPECT_EQ(folder.Name("base\\set 6\\guard.brl"), path.c_str());
    EXPECT_EQ(7, file.offset);
    EXPECT_EQ(39, file.length);
    folder.Write("game/guard.brl", "action guard_act()\n{\n}");
    file.buffer = nullptr;
    ASSERT_TRUE(Ask(MessageGetAction, file));
    EXPECT_EQ(folder.Name("game\\guard.brl").size() + 1, static_cast<size_t>(file.size));
    file.action = "other_act";
    EXPECT_FALSE(Ask(MessageGetAction, file));
    EXPECT_EQ(0, file.size);

    const struct {
        HostWord query, index, count, size;
        const char* name;
    } names[] = {
        {QueryFlagName, 0, 3, 7, "Stands"}, {QueryFlagName, 1, 3, 0, nullptr},
        {QueryFlagName, 2, 3, 5, "Deaf"},   {QueryFlagName, 3, 0, -1, nullptr},
        {QuerySkillName, 1, 2, 6, "Speed"}, {6, 0, 0, 0, nullptr},
    };
    for (const auto& n : names) {
        HostActionNameBlock block{"guard_act", n.query, n.index, nullptr, -1};
        EXPECT_EQ(n.count, Ask(MessageGetAction, block));
        EXPECT_EQ(n.size, block.size);
        if (!n.name) continue;
        char text[16];
        block.buffer = text;
        EXPECT_EQ(n.count, Ask(MessageGetAction, block));
        EXPECT_STREQ(n.name, text);
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
    flags = {1, 0};
    skills = {1, {}};
    Ask(MessageGetFlags, flags);
    Ask(MessageGetSkills, skills);
    EXPECT_EQ(0x5, flags.flags);
    EXPECT_EQ(0.1f, skills.skills[1]);
    HostFlagsBlock wrong{3, 1};
    EXPECT_FALSE(Ask(MessageSetFlags, wrong));
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
    HostEntityActionBlock action{1, nullptr, 0};
    EXPECT_FALSE(Ask(MessageGetEntityAction, action));
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
    EXPECT_TRUE(HostAgrees(host->CopyToProject(path, path, sizeof path)));
    EXPECT_EQ(folder.Name("game\\a.brl"), path);
    EXPECT_EQ("new %_%", folder.Read("game/A.brl"));
    EXPECT_TRUE(HostAgrees(host->CopyToProject(path, path, sizeof path)));
    EXPECT_EQ("new %_%", folder.Read("game/A.brl"));

    EXPECT_FALSE(HostAgrees(host->CopyToProject(folder.Name("gone.brl").c_str(), path, sizeof path)));
    EXPECT_FALSE(HostAgrees(host->CopyToProject(folder.Name("base\\a.brl").c_str(), path, 10)));
    const char* const table[] = {"%_%", "_7", nullptr};
    const std::string target = folder.Name("game\\a_7.brl");
    EXPECT_TRUE(HostAgrees(host->CopyWithSubstitution(path, target.c_str(), table)));
    EXPECT_EQ("new _7", folder.Read("game/a_7.brl"));
    EXPECT_FALSE(HostAgrees(host->CopyWithSubstitution(path, folder.Name("no\\a").c_str(), nullptr)));
}

TEST_F(FolderHostTest, MakesAMainScriptAndRemembersItsCopy) {
    folder.Write("project.tarn", "[project]\nfolder=game\nbase=base\ntemplates=t\n");
    host = FolderHost::Open(folder.Name("project.tarn"), error);
    ASSERT_TRUE(host) << error;
    char path[260];
    EXPECT_FALSE(host->GetMainScript(path, sizeof path));
    host->CreateMainScript();
    EXPECT_TRUE(host->GetMainScript(path, sizeof path));
    EXPECT_EQ("var x;\n", folder.Read("game/main.brl"));

    folder.Write("project.tarn", "[project]\nfolder=game\nmain=base/start.brl\nbase=base\ntemplates=t\n");
    host = FolderHost::Open(folder.Name("project.tarn"), error);
    ASSERT_TRUE(host) << error;
    EXPECT_FALSE(host->GetMainScript(path, sizeof path));
    host->CreateMainScript();
    EXPECT_TRUE(host->GetMainScript(path, sizeof path));
    EXPECT_TRUE(folder.Has("base/start.brl"));
    EXPECT_TRUE(HostAgrees(host->CopyToProject(path, path, sizeof path)));
    EXPECT_TRUE(host->Save());
    host = FolderHost::Open(folder.Name(), error);
    ASSERT_TRUE(host) << error;
    EXPECT_EQ(folder.Name("game\\start.brl"), host->Project().mainScript);
}

TEST_F(FolderHostTest, KeepsARecordOfCalls) {
    ASSERT_TRUE(host) << error;
    host->GetClassId();
    host->RecordCalls();
    char name[64];
    host->BeginEntities();
    host->GetEntity(1, name, sizeof name);
    host->EndEntities();
    HostFlagsBlock flags{2, 6};
    Ask(MessageSetFlags, flags);
    host->Message(0, 99, nullptr, 0);
    const char* const table[] = {"%_%", "_7", nullptr};
    host->CopyWithSubstitution("a", "b", table);
    EXPECT_EQ((List{"BeginEntities", "GetEntity 1", "EndEntities", "Message 165 2 6", "Message 99 refused",
                    "CopyWithSubstitution a b %_%=_7"}),
              host->TakeCalls());
    EXPECT_TRUE(host->TakeCalls().empty());
}

TEST_F(FolderHostTest, ErrorsNameTheLine) {
    const std::string head = "[project]\nfolder=game\nbase=base\ntemplates=t\n";
    const struct {
        std::string text;
        const char* error;
    } cases[] = {
        {"[project]\nfolder=game\nbase=base\n", ": [project] tells no template folder"},
        {"", ": [project] tells no folder"},
        {"folder=game\n", ":1: a line in front of the first section"},
        {head + "color=red\n", ":5: an unknown key \"color\""},
        {head + "[colors]\n", ":5: an unknown section [colors]"},
        {head + "\n; hm\n[project]\n", ":7: a second [project]"},
        {head + "base=other\n", ":5: a second \"base\""},
        {head + "main=\n", ":5: \"main\" has no value"},
        {head + "main\n", ":5: a key with \"=\" and its value is meant to stand here"},
        {head + "[paths a]\ngate=1\n", ":6: a name without \"=\" is meant to stand here"},
        {head + "[entity ]\n", ":5: an unknown section [entity]"},
        {head + "[entity a]\nskill 21 = 1\n", ":6: \"skill 21\" has no number from 1 to 20"},
        {head + "[entity a]\nskill 2 = 1x\n", ":6: \"1x\" is no number"},
        {head + "[entity a]\nflags = 1 0\n", ":6: \"0\" has no number from 1 to 8"},
        {head + "[action a]\nflag x = y\n", ":6: \"flag x\" has no number from 1 to 8"},
    };
    for (const auto& c : cases) {
        folder.Write("project.tarn", c.text);
        EXPECT_FALSE(FolderHost::Open(folder.Name(), error)) << c.text;
        EXPECT_EQ(folder.Name("project.tarn") + c.error, error);
    }
    folder.Write("project.tarn", head + "[paths b]\n" + std::string(64, 'n') + "\n");
    EXPECT_FALSE(FolderHost::Open(folder.Name(), error));
    EXPECT_NE(std::string::npos, error.find("has more than 63 bytes")) << error;
    EXPECT_FALSE(FolderHost::Open(folder.Name("missing"), error));
    EXPECT_EQ(folder.Name("missing") + ": can't be read", error);
}

}  // namespace
