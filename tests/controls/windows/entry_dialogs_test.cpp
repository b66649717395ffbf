#include <gtest/gtest.h>

#include <filesystem>

#include "controls/windows/panel.h"
#include "host/folder_host.h"
#include "platform/current_folder.h"
#include "platform/modal_driver.h"
#include "temp_folder.h"

namespace {

constexpr int kHelpText = 1013;
constexpr int kFileName = 0x47C;  // in a file dialog

void AskForHelp(CEntryWnd& control) {
    control.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(1, 1));
}

RECT PlaceOf(HWND window) {
    RECT place = {};
    ::GetWindowRect(window, &place);
    return place;
}

TEST(Help, IsShownOnARightClick) {
    Panel panel(
        "// entry: Speed\n// help: How fast\n// help: it goes\nvar speed = 5;\n// entry: Turn\nvar turn = "
        "1;\n");
    const std::pair<size_t, const char*> rows[] = {{0, "How fast\r\nit goes"}, {1, "No Help Available"}};
    for (const auto& [entry, text] : rows) {
        const ModalDriver driver({{"Help", [expected = text](HWND dialog) {
                                       EXPECT_EQ(ItemText(dialog, kHelpText), expected);
                                       Click(dialog, IDOK);
                                   }}});
        AskForHelp(panel.Control(entry));
    }
}

TEST(Help, OpensWhereItWasLeftAndFitsItsText) {
    Panel panel("// entry: Speed\n// help: How fast\nvar speed = 5;\n");
    int gap = 0;
    const ModalDriver driver({{"Help",
                               [&gap](HWND dialog) {
                                   const HWND edit = ::GetDlgItem(dialog, kHelpText);
                                   gap = PlaceOf(dialog).right - PlaceOf(edit).right;
                                   ::MoveWindow(dialog, 30, 40, 300, 200, TRUE);
                                   EXPECT_EQ(PlaceOf(dialog).right - PlaceOf(edit).right, gap);
                                   Click(dialog, IDOK);
                               }},
                              {"Help", [&gap](HWND dialog) {
                                   const RECT place = PlaceOf(dialog);
                                   EXPECT_EQ(place.left, 30);
                                   EXPECT_EQ(place.top, 40);
                                   EXPECT_EQ(place.right, 330);
                                   EXPECT_EQ(place.bottom, 240);
                                   EXPECT_EQ(place.right - PlaceOf(::GetDlgItem(dialog, kHelpText)).right,
                                             gap);
                                   Click(dialog, IDCANCEL);
                               }}});
    AskForHelp(panel.Control(0));
    AskForHelp(panel.Control(0));
}

TEST(Help, LongTextsAreShownAtTheirEnd) {
    std::string script = "// entry: Speed\n";
    for (int line = 0; line < 60; ++line)
        script += "// help: line\n";
    Panel panel(script + "var speed = 5;\n");
    const ModalDriver driver({{"Help", [](HWND dialog) {
                                   const HWND edit = ::GetDlgItem(dialog, kHelpText);
                                   EXPECT_GT(::SendMessageA(edit, EM_GETFIRSTVISIBLELINE, 0, 0), 20);
                                   Click(dialog, IDOK);
                               }}});
    AskForHelp(panel.Control(0));
}

TEST(FileButton, TakesTheNameOfTheChosenFile) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.Path("skins"));
    folder.Write("skins/eva.pcx", "x");
    const CurrentFolder current(folder.Name());
    Panel panel("// entry: Skin\nbmap skin = <mira.pcx>;\n");
    CWnd& edit = *Child(panel.Control(0), 1011);
    const struct {
        int button;
        const char* shown;
    } rows[] = {{IDCANCEL, "mira.pcx"}, {IDOK, "eva.pcx"}};
    for (const auto& row : rows) {
        const ModalDriver driver({{"Open", [&row](HWND dialog) {
                                       ::SetDlgItemTextA(dialog, kFileName, "skins\\eva.pcx");
                                       Click(dialog, row.button);
                                   }}});
        Click(*Child(panel.Control(0), 1012), 3, 3);
        EXPECT_EQ(TextOf(edit), row.shown);
    }
    EXPECT_TRUE(panel.Control(0).IsChanged());
    EXPECT_STREQ(panel.Control(0).GetValue(), "eva.pcx");
    EXPECT_EQ(CurrentFolder::Name(), folder.Name());
}

std::string Items(CWnd& list) {
    std::string items;
    for (LRESULT index = 0; index < list.SendMessage(CB_GETCOUNT); ++index) {
        char text[64] = "";
        list.SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
        items += std::string(index ? "," : "") + text;
    }
    return items;
}

TEST(HostLists, HoldTheValueAndWhatTheHostNames) {
    HostProject project;
    project.pathsA = {"road", "street"};
    project.pathsB = {"road"};
    for (const char* const name : {"lamp_wmb", "hero_mdl"}) {
        HostEntity entity;
        entity.name = name;
        project.entities.push_back(entity);
    }
    FolderHost host(project);
    const char* const script =
        "// entry_entity: Who\nstring who = \"hero_mdl\";\n// entry_path: Where\nstring where = \"gate\";\n";
    {
        Panel panel(script, &host);
        EXPECT_EQ(Items(*Child(panel.Control(0), 1014)), "hero_mdl,lamp_wmb,hero_mdl");
        EXPECT_EQ(Items(*Child(panel.Control(1), 1014)), "gate,road,street,road");
        EXPECT_STREQ(panel.Control(0).GetValue(), "hero_mdl");
    }
    Panel without(script);
    EXPECT_EQ(Items(*Child(without.Control(1), 1014)), "gate");
}

CScriptEntry Entry(int kind, const char* value, int mode = LimitsNone) {
    CScriptEntry entry;
    entry.kind = kind;
    entry.label = "Label";
    entry.value = value;
    entry.limitsMode = mode;
    entry.maxValue = 2;
    entry.stepValue = 0.5;
    return entry;
}

// Only a skill's decimal keeps to its limits.
TEST(SkillsAndFlags, AreNumbersWithLimitsAndBoxes) {
    Panel panel({Entry(KindSkill, "1.5", LimitsSpin), Entry(KindNumEditF, "1.5", LimitsSpin),
                 Entry(KindSkill, "1.5"), Entry(KindFlag, "1")});
    const char* const values[] = {"2.0", "7.5", "7.5"};
    for (size_t i = 0; i < 3; ++i) {
        CWnd& field = *Child(*Child(panel.Control(i), 1009), 5123);
        field.SetFocus();
        field.SendMessage(EM_SETSEL, 0, -1);
        Type(field, "7.5");
        Press(field, VK_RETURN);
        EXPECT_STREQ(panel.Control(i).GetValue(), values[i]) << i;
    }
    Click(*Child(panel.Control(3), 1021), 5, 5);
    EXPECT_STREQ(panel.Control(3).GetValue(), "0");
}

// Without columns the field follows the panel; one row is a field of one line.
TEST(TextSizes, AreCountedInCharactersAndLines) {
    Panel panel(
        "// entry_text: 0, 1, A\nstring a = \"x\";\n// entry_text: 10, 1, B\nstring b = \"x\";\n"
        "// entry_text: 10, 4, C\nstring c = \"x\";\n");
    RECT places[3] = {};
    for (size_t i = 0; i < 3; ++i)
        places[i] = PlaceOf(Child(panel.Control(i), 1010)->m_hWnd);
    EXPECT_EQ(places[0].right - places[0].left, panel.Width() - 8) << "as wide as the control";
    EXPECT_NE(places[1].right - places[1].left, panel.Width() - 8);
    EXPECT_EQ(places[0].bottom - places[0].top, places[1].bottom - places[1].top);
    const int line = static_cast<int>(Measured(panel.Window(), "Ag01", 4).cy) + 1;
    EXPECT_EQ((places[2].bottom - places[2].top) - (places[1].bottom - places[1].top), 3 * line + 1);
    EXPECT_FALSE(Child(panel.Control(1), 1010)->GetStyle() & ES_MULTILINE);
}

}  // namespace
