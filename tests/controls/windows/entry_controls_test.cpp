#include <gtest/gtest.h>

#include <cstring>

#include "controls/entry_choose_file.h"
#include "controls/entry_drop.h"
#include "controls/windows/panel.h"
#include "platform/resource_count.h"

namespace {

constexpr char kEveryKind[] =
    "// title: Hero\n"
    "// text: First line\n"
    "// text: Second line\n"
    "// section: Moves\n"
    "// enable: Jump\n"
    "// jump();\n"
    "// entry: Speed\n"
    "// id: 1\n"
    "// cntl: spin 0 10 2\n"
    "// help: How fast\n"
    "var speed = 5;\n"
    "// entry: Turn\n"
    "var turn = 1.5;\n"
    "// entry: Name\n"
    "string name = \"Mira\";\n"
    "// entry: Skin\n"
    "bmap skin = <mira.pcx>;\n"
    "// entry_text: 20, 3, Notes\n"
    "string notes = \"one\";\n"
    "// entry_drop: Tool\n"
    "// cntl: drop lamp Ladder lamp\n"
    "define TOOL = ladder;\n";

enum Place : size_t {
    kTitle,
    kLine1,
    kLine2,
    kSection,
    kCheck,
    kSpeed,
    kTurn,
    kName,
    kSkin,
    kNotes,
    kTool,
    kCount
};

int HeightOf(Panel& panel, size_t index) {
    const auto cy = [&panel](const char* text, LONG weight = FW_NORMAL) {
        return Measured(panel.Window(), text, static_cast<int>(std::strlen(text)), weight).cy;
    };
    switch (index) {
        case kTitle: return cy("Hero", FW_BOLD) + 1;
        case kLine1: return cy("First line") + 1;
        case kLine2: return cy("Second line") + 1;
        case kSection: return cy("Moves", FW_BOLD) + 1 + 2;
        case kCheck: return cy("Ag01") + 2;
        case kSpeed: return cy("Speed") + 4;
        case kTurn: return cy("Turn") + 4;
        case kName:
        case kSkin: return cy("Ag01") + 1 + cy("Ag01") + 4 + 4;
        case kNotes: return 24 + 3 * (cy("Ag01") + 1) + 4 + 4;
        default: return -1;
    }
}

TEST(EntryControls, StandUnderEachOtherByTheirHeights) {
    Panel panel(kEveryKind);
    ASSERT_EQ(panel.List().entries.size(), kCount);
    int y = 4;
    for (size_t i = 0; i < kCount; ++i) {
        SCOPED_TRACE(i);
        CEntryWnd& control = panel.Control(i);
        RECT place = {};
        control.GetWindowRect(&place);
        panel.Window().ScreenToClient(&place);
        EXPECT_EQ(place.left, 4);
        EXPECT_EQ(place.top, y);
        EXPECT_EQ(place.right - place.left, panel.Width() - 8);
        EXPECT_EQ(place.bottom - place.top, control.GetHeight());
        if (i != kTool) {
            EXPECT_EQ(control.GetHeight(), HeightOf(panel, i));
        }
        y += control.GetHeight() + (i == kLine1 || i == kLine2 ? 0 : 8);
    }
    EXPECT_EQ(panel.List().y, y);
}

TEST(EntryControls, ChildrenStandWhereTheyShould) {
    Panel panel(kEveryKind);
    const int cx = static_cast<int>(Measured(panel.Window(), "Ag01\xDCqQT", 8).cx);
    const int h = panel.Control(kSpeed).GetHeight();
    const struct {
        size_t entry;
        int id, left, width;
        DWORD style, extended;
    } rows[] = {
        {kSpeed, 1009, panel.Width() - 5 * h, 5 * h, WS_VISIBLE, WS_EX_CLIENTEDGE},
        {kName, 1010, 0, panel.Width() - 8, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
        {kSkin, 1011, 0, 2 * cx, ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE},
        {kSkin, 1012, 2 * cx + 1, static_cast<int>(cx * 0.75), WS_VISIBLE, 0},
        {kNotes, 1010, 0, static_cast<int>(Measured(panel.Window(), "Q\xDCGGGGGG", 8).cx * 0.125 + 0.5) * 20,
         ES_MULTILINE | ES_WANTRETURN, WS_EX_CLIENTEDGE},
        {kTool, 1014, 0, 4 * cx, CBS_DROPDOWNLIST, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.id);
        CWnd* const child = Child(panel.Control(row.entry), row.id);
        ASSERT_NE(child, nullptr);
        RECT place = {};
        child->GetWindowRect(&place);
        panel.Control(row.entry).ScreenToClient(&place);
        EXPECT_EQ(place.left, row.left);
        EXPECT_EQ(place.right - place.left, row.width);
        EXPECT_EQ(child->GetStyle() & row.style, row.style);
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(child->m_hWnd, GWL_EXSTYLE)) & row.extended,
                  row.extended);
        EXPECT_TRUE(panel.Control(row.entry).OwnsWindow(child));
        EXPECT_FALSE(panel.Control(kTitle).OwnsWindow(child));
    }
}

TEST(EntryControls, FollowTheWidthOfThePanel) {
    Panel panel(kEveryKind);
    RECT before = {};
    Child(panel.Control(kNotes), 1010)->GetWindowRect(&before);
    panel.Window().SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
    for (size_t i = 0; i < kCount; ++i)
        panel.Control(i).Refit();
    RECT name = {};
    Child(panel.Control(kName), 1010)->GetWindowRect(&name);
    EXPECT_EQ(name.right - name.left, panel.Width() - 8);
    RECT after = {};
    Child(panel.Control(kNotes), 1010)->GetWindowRect(&after);
    EXPECT_EQ(after.right - after.left, before.right - before.left);
}

TEST(EntryControls, TakeAndGiveTheirValues) {
    Panel panel(kEveryKind);
    const struct {
        size_t entry;
        const char* loaded;
        const char* restored;
        bool changes;
    } rows[] = {{kCheck, "0", "1", true},           {kSpeed, "5", "7", true},
                {kTurn, "1.5", "2.25", true},       {kName, "Mira", "Tomas", true},
                {kSkin, "mira.pcx", "a.bmp", true}, {kNotes, "one", "a\r\nb", true},
                {kTool, "ladder", "lamp", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.entry);
        CEntryWnd& control = panel.Control(row.entry);
        EXPECT_FALSE(control.IsChanged());
        EXPECT_STREQ(control.GetValue(), row.loaded);
        control.DisplayValue(row.restored);
        EXPECT_EQ(control.IsChanged() != FALSE, row.changes);
        EXPECT_STREQ(control.GetValue(), row.changes ? row.restored : row.loaded);
        EXPECT_FALSE(control.IsChanged());
    }
    for (const size_t silent : {kTitle, kLine1, kSection}) {
        panel.Control(silent).SetValue("1");
        EXPECT_EQ(panel.Control(silent).GetValue(), nullptr);
        EXPECT_FALSE(panel.Control(silent).IsChanged());
    }
}

TEST(EntryControls, CheckBoxIsTurnedByEachClick) {
    Panel panel(kEveryKind);
    CWnd& box = *Child(panel.Control(kCheck), 1021);
    Click(box, 5, 5);
    EXPECT_TRUE(panel.Control(kCheck).IsChanged());
    EXPECT_EQ(box.SendMessage(BM_GETCHECK), BST_CHECKED);
    Click(box, 5, 5);
    EXPECT_FALSE(panel.Control(kCheck).IsChanged());
    const int cx = static_cast<int>(Measured(box, "Ag01\xDCqQT", 7).cx);
    RECT place = {};
    box.GetWindowRect(&place);
    EXPECT_EQ(place.right - place.left, 4 * cx + 8);
}

TEST(EntryControls, EditsKeepReturnAndEscapeFromTheDialog) {
    Panel panel(kEveryKind);
    const struct {
        size_t entry;
        const char* after;
    } rows[] = {{kName, "xMira"}, {kNotes, "x\r\none"}};
    for (const auto& row : rows) {
        CWnd& edit = *Child(panel.Control(row.entry), 1010);
        edit.SetFocus();
        edit.SendMessage(EM_SETSEL, 0, 0);
        Type(edit, "x");
        edit.PostMessage(WM_KEYDOWN, VK_RETURN, 1);
        Pump();
        Press(edit, VK_ESCAPE);
        EXPECT_EQ(TextOf(edit), row.after);
        EXPECT_TRUE(panel.Control(row.entry).IsChanged());
        EXPECT_TRUE(panel.Window().GetStyle() & WS_VISIBLE);
    }
}

TEST(EntryControls, DropListChoosesByKeysAndLeavesOutWhatIsThere) {
    Panel panel(kEveryKind);
    CWnd& list = *Child(panel.Control(kTool), 1014);
    EXPECT_EQ(list.SendMessage(CB_GETCOUNT), 2);  // "Ladder" is there already, and so is the second "lamp"
    EXPECT_EQ(TextOf(list), "ladder");
    list.SetFocus();
    Press(list, VK_DOWN);
    EXPECT_TRUE(panel.Control(kTool).IsChanged());
    EXPECT_STREQ(panel.Control(kTool).GetValue(), "lamp");
}

TEST(EntryControls, FileFilterGoesByTheExtension) {
    const struct {
        const char* name;
        char first;
    } rows[] = {{"a.TGA", 'P'}, {"a.bmp", 'P'}, {"a.pcx.txt", 'A'},
                {"a.wav", 'S'}, {"plain", 'A'}, {"", 'A'}};
    for (const auto& row : rows)
        EXPECT_EQ(*FileFilterFor(row.name), row.first) << row.name;
}

TEST(EntryControls, NothingIsLeftBehind) {
    const auto rounds = [](int count) {
        for (int round = 0; round < count; ++round)
            Panel panel(kEveryKind);
        return CountResources();
    };
    const ResourceCount before = rounds(2);
    EXPECT_EQ(rounds(100), before);
}

}  // namespace
