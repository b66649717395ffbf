// The sample project and its catalogue, on a copy of its own for each test.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "temp_folder.h"

namespace {

class ProjectCommandTest : public testing::Test {
protected:
    void SetUp() override {
        for (const char* folder : {"project", "templates/template_6"}) {
            std::filesystem::create_directories(folder_.Path(folder));
            for (const auto& file : std::filesystem::directory_iterator(Sample(folder)))
                Copy(folder + ("/" + file.path().filename().string()));
        }
        Copy("project.tarn");
        Copy("template_6.xml");
    }

    int Run(ProjectAction action, std::vector<std::string> names = {}) {
        ProjectRequest request;
        request.action = action;
        request.names = std::move(names);
        return Run(request);
    }
    int Run(ProjectRequest request, std::istream* terminal = nullptr) {
        request.folder = folder_.Name();
        out_.str("");
        err_.str("");
        return RunProject(request, terminal, {out_, err_});
    }
    int Catalogue(const std::string& scriptClass, bool json) {
        out_.str("");
        err_.str("");
        return RunCatalogue(folder_.Name(), scriptClass, json, {out_, err_});
    }
    bool Tells(const std::string& text) const { return out_.str().find(text) != std::string::npos; }
    bool Complains(const std::string& text) const { return err_.str().find(text) != std::string::npos; }
    std::string Main() const { return folder_.Read("project/main.brl"); }

    TempFolder folder_;
    std::ostringstream out_;
    std::ostringstream err_;

private:
    static std::filesystem::path Sample(const std::string& name) {
        return std::filesystem::path(BRLV_SAMPLES) / name;
    }
    void Copy(const std::string& name) const {
        std::ifstream stream(Sample(name), std::ios::binary);
        folder_.Write(name, {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()});
    }
};

TEST_F(ProjectCommandTest, CatalogueAsText) {
    EXPECT_EQ(Catalogue("world", false), ExitOk);
    const std::string text = out_.str();
    EXPECT_EQ(
        text.substr(text.find(": ")),
        ": Lamplight Templates, version 6.04, type Adventure, date 20240415, engine 6.2\n"
        "3 scripts in 1 class\n\n"
        "World\n"
        "  Weather   version 7     date 20231204  weather.brl\n"
        "      Sky, rain, snow and the hours of the day.\n"
        "      needs: tools.brl, sound.brl\n"
        "  Door      version 12    date 20240118  door_.brl\n"
        "      A door with a lock of its own. Each time it is added the project gets a further, numbered\n"
        "      door.\n"
        "      actions: door_.brl\n"
        "      needs: tools.brl, sound.brl, messages.brl\n"
        "  Lanterns  version 18    date 20240105  lantern.brl\n"
        "      Street lamps that the hero lights. They burn oil and mind the wind.\n"
        "      actions: lantern_act\n"
        "      needs: tools.brl, sound.brl\n");
    EXPECT_EQ(Catalogue("Worlds", false), ExitUser);
    EXPECT_TRUE(Complains("there are: Player, World, Actors, Text, Sound\n"));
}

TEST_F(ProjectCommandTest, CatalogueAsJson) {
    EXPECT_EQ(Catalogue("", true), ExitOk);
    const auto document = nlohmann::json::parse(out_.str());
    EXPECT_EQ(document["classes"], (nlohmann::json{"Player", "World", "Actors", "Text", "Sound"}));
    ASSERT_EQ(document["scripts"].size(), 9u);
    const auto& enemies = document["scripts"][4];
    EXPECT_EQ(enemies["name"], "Enemies");
    EXPECT_EQ(enemies["template"], "templates\\template_6\\enemy.brl");
    EXPECT_EQ(enemies["needs"], (nlohmann::json{"tools.brl", "sound.brl", "messages.brl"}));
    EXPECT_EQ(enemies["actions"][1]["name"], "bat_act");
    EXPECT_NE(document["scripts"][6]["description"].get<std::string>().find("Gr\xC3\xBC\xC3\x9F"
                                                                            "e"),
              std::string::npos);
}

TEST_F(ProjectCommandTest, CatalogueThatDoesNotParse) {
    folder_.Write("template_6.xml", "<Catalogue>\n  <Script name=\"a\n</Catalogue>\n");
    EXPECT_EQ(Catalogue("", false), ExitFiles);
    EXPECT_TRUE(Complains("template_6.xml:2:16: error: Unmatched quote\n")) << err_.str();
    EXPECT_EQ(Run(ProjectAction::Show), ExitFiles);
    EXPECT_TRUE(Complains("template_6.xml:2:16: error: Unmatched quote\n")) << err_.str();
    std::filesystem::remove(folder_.Path("template_6.xml"));
    EXPECT_EQ(Catalogue("", false), ExitFiles);
    EXPECT_TRUE(Complains("template_6.xml: can't be read\n"));
}

TEST_F(ProjectCommandTest, ShowsEveryIncludeWithItsState) {
    std::filesystem::remove(folder_.Path("templates/template_6/camera.brl"));
    EXPECT_EQ(Run(ProjectAction::Show), ExitOk);
    EXPECT_EQ(out_.str(),
              folder_.Name() +
                  ": main.brl includes 7 scripts; templates: Lamplight Templates 6.04\n"
                  "    FILE          VERSION  DATE      NAME\n"
                  "    tools.brl     -        -         Tools\n"
                  "    sound.brl     4        20230620  Sound\n"
                  "    messages.brl  9        20240403  Messages\n"
                  "  * hero.brl      103      20230918  Hero  (the template has version 104, date 20240411)\n"
                  "  ? camera.brl    -        -         Camera\n"
                  "  * weather.brl   7        20231204  Weather\n"
                  "  * door_0.brl    12       20240118  -\n"
                  "* has a copy in the project   ? is not there\n");
    EXPECT_EQ(Run(ProjectAction::Notes), ExitOk);
    EXPECT_TRUE(Tells("Template: Lamplight Templates\n\tType: Adventure\n"));
    EXPECT_TRUE(Tells("\n*hero.brl  (103) (20230918)\n!camera.brl  (-1) (-1)\n")) << out_.str();
}

TEST_F(ProjectCommandTest, AddingBringsWhatTheScriptNeeds) {
    EXPECT_EQ(Run(ProjectAction::Remove, {"door_0.brl", "Hero", "Camera", "Messages"}), ExitOk) << err_.str();
    EXPECT_EQ(Run(ProjectAction::Add, {"enemies", "Door", "door_.brl"}), ExitOk) << err_.str();
    EXPECT_EQ(out_.str(),
              "Enemies: added to main.brl\n+ include <messages.brl>;\n+ include <enemy.brl>;\n"
              "Door: added to main.brl\n+ include <door_1.brl>;\n"
              "Door: added to main.brl\n+ include <door_2.brl>;\n");
    EXPECT_TRUE(folder_.Has("project/door_2.brl"));
    EXPECT_FALSE(folder_.Has("project/enemy.brl"));
    EXPECT_EQ(Run(ProjectAction::Add, {"Enemies"}), ExitOk);
    EXPECT_TRUE(Tells("in the project already"));
}

TEST_F(ProjectCommandTest, WhatCantBeDoneIsSaidAndChangesNothing) {
    std::filesystem::remove(folder_.Path("templates/template_6/lantern.brl"));
    std::filesystem::remove(folder_.Path("templates/template_6/hero.brl"));
    const struct {
        ProjectAction action;
        const char* name;
        int status;
        const char* why;
    } cases[] = {
        {ProjectAction::Add, "Nobody", ExitUser, "no script of the catalogue has this name"},
        {ProjectAction::Add, "Lanterns", ExitFiles, "no template file"},
        {ProjectAction::Remove, "Enemies", ExitUser, "Enemies: not in the project"},
        {ProjectAction::Remove, "Messages", ExitUser,
         "brlv: Can't Remove Script: The following scripts must be removed first: \nHero\n"},
        {ProjectAction::Restore, "Camera", ExitUser, "Can't Reset: Script is already using default values."},
        {ProjectAction::Restore, "Weather", ExitUser, "Restore values to default?? no: there is no terminal"},
        {ProjectAction::Restore, "Hero", ExitUser, "there is no template of this file"},
        {ProjectAction::Update, "door_0.brl", ExitUser, "not in the catalogue"},
        {ProjectAction::Update, "Hero", ExitFiles, "the template can't be read, nothing was changed"},
    };
    const std::string main = Main();
    const std::string hero = folder_.Read("project/hero.brl");
    for (const auto& c : cases) {
        EXPECT_EQ(Run(c.action, {c.name}), c.status) << c.why;
        EXPECT_TRUE(Complains(c.why)) << err_.str();
    }
    EXPECT_EQ(Main(), main);
    EXPECT_EQ(folder_.Read("project/hero.brl"), hero);
    EXPECT_TRUE(folder_.Has("project/weather.brl"));
}

TEST_F(ProjectCommandTest, AnUpdateKeepsTheValues) {
    EXPECT_EQ(Run(ProjectAction::Update), ExitOk);
    EXPECT_EQ(out_.str(), "Hero--[Local ver: 103 date: 20230918 --> Template ver: 104 date: 20240411]\n");
    EXPECT_EQ(Run(ProjectAction::Update, {"Hero", "Weather", "Tools"}), ExitOk) << err_.str();
    EXPECT_TRUE(
        Tells("Hero: updated from version 103, date 20230918 to version 104, date 20240411\n"
              "#1 Walk speed = 14: carried\n"));
    EXPECT_TRUE(Tells("#9 = 5: no record has this id\n"));
    EXPECT_TRUE(Tells("Weather: version and date are those of the template\n"));
    EXPECT_TRUE(Tells("Tools: runs from the template folder"));
    EXPECT_NE(folder_.Read("project/hero.brl").find("hero_walk_speed = 14;"), std::string::npos);

    ProjectRequest all;
    all.action = ProjectAction::Update;
    all.all = true;
    EXPECT_EQ(Run(all), ExitOk);
    EXPECT_TRUE(Complains("Everything Up-to-Date."));
    all.force = true;
    EXPECT_EQ(Run(all), ExitUser);  // nobody says yes
    std::istringstream yes("y\n");
    EXPECT_EQ(Run(all, &yes), ExitOk);
    EXPECT_TRUE(Complains("Update All Scripts Listed? [y/N] "));
    EXPECT_TRUE(Tells("Weather: updated"));
}

TEST_F(ProjectCommandTest, SettingMakesTheCopyAndRestoringDropsIt) {
    ProjectRequest set;
    set.action = ProjectAction::Set;
    set.names = {"Camera"};
    set.assignments = {"Height=48"};
    EXPECT_EQ(Run(set), ExitOk);
    set.assignments = {"Height=tall"};
    EXPECT_EQ(Run(set), ExitUser);
    EXPECT_TRUE(Complains("expected a whole number"));
    EXPECT_FALSE(folder_.Has("project/camera.brl"));
    set.assignments = {"Height=50"};
    EXPECT_EQ(Run(set), ExitOk) << err_.str();
    EXPECT_NE(folder_.Read("project/camera.brl").find("cam_height = 50;"), std::string::npos);
    EXPECT_NE(folder_.Read("templates/template_6/camera.brl").find("cam_height = 48;"), std::string::npos);

    ProjectRequest restore;
    restore.action = ProjectAction::Restore;
    restore.names = {"Camera"};
    restore.yes = true;
    EXPECT_EQ(Run(restore), ExitOk);
    EXPECT_FALSE(folder_.Has("project/camera.brl"));
}

// A project whose main script stands elsewhere: the first install copies it, and asks where one is there.
TEST_F(ProjectCommandTest, AMainScriptFromOutsideIsCopied) {
    std::string file = folder_.Read("project.tarn");
    file.replace(file.find("project\\main.brl"), 16, "templates\\main.brl");
    folder_.Write("project.tarn", file);
    folder_.Write("templates/main.brl", "var other;\n");
    const std::string before = Main();
    EXPECT_EQ(Run(ProjectAction::Add, {"Camera"}), ExitUser);
    EXPECT_TRUE(Complains("main.brl\nFile exist! Overwrite? no"));
    EXPECT_EQ(Main(), before);
    ProjectRequest add;
    add.action = ProjectAction::Add;
    add.names = {"Camera"};
    add.yes = true;
    EXPECT_EQ(Run(add), ExitOk) << err_.str();
    EXPECT_EQ(Main(), "include <tools.brl>;\r\ninclude <camera.brl>;\r\nvar other;\n");
    EXPECT_NE(folder_.Read("project.tarn").find("project\\main.brl"), std::string::npos);
}

}  // namespace
