#include <gtest/gtest.h>

#include "edit_driver.h"

namespace {

constexpr DWORD kOneLine = ES_AUTOHSCROLL;
constexpr DWORD kLines = ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL | WS_VSCROLL;

TEST(Edit, KeysInOneLine) {
    ControlHost host;
    const EditDriver edit(host, "hello", kOneLine);
    const EditStep steps[] = {
        {"End", "hello|", ""},
        {"Right", "hello|", ""},
        {"+Left", "hell[o]", ""},
        {"+Left", "hel[lo]", ""},
        {"X", "helX|", "update change"},
        {"YZ", "helXYZ|", "update change update change"},
        {"Back", "helXY|", "update change"},
        {"Up", "helX|Y", ""},
        {"Down", "helXY|", ""},
        {"Home", "|helXY", ""},
        {"Back", "|helXY", ""},
        {"Delete", "|elXY", "update change"},
        {"+End", "[elXY]", ""},
        {"+Left", "[elX]Y", ""},
        {"Delete", "|Y", "update change"},
        {"End", "Y|", ""},
        {"Delete", "Y|", ""},
        {"Enter", "Y|", ""},
        {"Tab", "Y|", ""},
        {"\x1b", "Y|", ""},
        {"\x7f", "Y|", ""},
        {"\xe9", "Y\xe9|", "update change"},
        {"+Delete", "Y|", "update change"},
        {"one two  three,four", "Yone two  three,four|", nullptr},
        {"^Left", "Yone two  |three,four", ""},
        {"^Left", "Yone |two  three,four", ""},
        {"+^Left", "[Yone ]two  three,four", ""},
        {"^Left", "|Yone two  three,four", ""},
        {"^Right", "Yone |two  three,four", ""},
        {"+^Right", "Yone [two  ]three,four", ""},
        {"Delete", "Yone |three,four", "update change"},
        {"Left", "Yone| three,four", ""},
        {"^Delete", "Yone|", "update change"},
    };
    RunSteps(host, edit, steps);
}

TEST(Edit, KeysInSeveralLines) {
    ControlHost host;
    const EditDriver edit(host, "l1\r\nline two\r\n\r\nl4", kLines);
    const EditStep steps[] = {
        {"Down", "l1/|line two//l4", ""},
        {"End", "l1/line two|//l4", ""},
        {"Down", "l1/line two/|/l4", ""},
        {"Down", "l1/line two//|l4", ""},
        {"Down", "l1/line two//|l4", ""},
        {"Up", "l1/line two/|/l4", ""},
        {"Up", "l1/|line two//l4", ""},
        {"Left", "l1|/line two//l4", ""},
        {"Right", "l1/|line two//l4", ""},
        {"+Left", "l1[/]line two//l4", ""},
        {"^End", "l1/line two//l4|", ""},
        {"Home", "l1/line two//|l4", ""},
        {"+^Home", "[l1/line two//]l4", ""},
        {"^Home", "|l1/line two//l4", ""},
        {"^Right", "l1|/line two//l4", ""},
        {"Delete", "l1|line two//l4", "update change"},
        {"Enter", "l1/|line two//l4", "update change"},
        {"\n", "l1//|line two//l4", "update change"},
        {"Back", "l1/|line two//l4", "update change"},
        {"Back", "l1|line two//l4", "update change"},
        {"Tab", "l1\t|line two//l4", "update change"},
        {"^Right", "l1\tline |two//l4", ""},
        {"^Delete", "l1\tline |//l4", "update change"},
        {"+PageDown", "l1\tline [//l4]", nullptr},
        {"Delete", "l1\tline |", "update change"},
    };
    RunSteps(host, edit, steps);
}

TEST(Edit, WhoIsToldOfTextThatIsSet) {
    ControlHost host;
    const EditDriver one(host, "a", kOneLine);
    for (const char* text : {"b", "b", "", ""}) {
        SetWindowTextA(one.Window(), text);
        EXPECT_EQ(host.Told(), "update change") << text;
    }
    one.Replace("x");
    EXPECT_EQ(host.Told(), "update change");
    one.Replace("");
    EXPECT_EQ(host.Told(), "");
    const EditDriver many(host, "a", kLines);
    host.Told();
    for (const char* text : {"b", "b\r\nc", ""}) {
        SetWindowTextA(many.Window(), text);
        EXPECT_EQ(host.Told(), "") << text;
    }
    many.Replace("x");
    EXPECT_EQ(host.Told(), "update change");
}

TEST(Edit, TextThatIsSetForgetsTheRest) {
    ControlHost host;
    const EditDriver edit(host, "hello", kOneLine);
    edit.Do("End");
    edit.Do("x");
    SetWindowTextA(edit.Window(), "other");
    EXPECT_EQ(edit.Shown(), "|other");
    SendMessageA(edit.Window(), WM_SETTEXT, 0, 0);
    EXPECT_EQ(edit.Shown(), "|");
}

TEST(Edit, LimitHoldsTheUserAndNotTheProgram) {
    ControlHost host;
    const EditDriver edit(host, "", kOneLine);
    EXPECT_EQ(edit.Send(EM_GETLIMITTEXT), 30000);
    edit.Send(EM_LIMITTEXT, 5);
    SetWindowTextA(edit.Window(), "1234567");
    EXPECT_EQ(edit.Shown(), "|1234567");
    host.Told();
    edit.Do("x");
    EXPECT_EQ(edit.Shown(), "|1234567");
    EXPECT_EQ(host.Told().substr(0, 4), "full");
    SetWindowTextA(edit.Window(), "123");
    edit.Do("End");
    host.Told();
    edit.Replace("abcdef");
    EXPECT_EQ(edit.Shown(), "123ab|");
    EXPECT_EQ(host.Told(), "full update change");
    edit.Send(EM_SETSEL, 0, 2);
    edit.Replace("ABC");
    EXPECT_EQ(edit.Shown(), "AB|3ab");
    edit.Do("Back");
    edit.Do("Q");
    EXPECT_EQ(edit.Shown(), "AQ|3ab");
    edit.Send(EM_LIMITTEXT, 0);
    EXPECT_EQ(edit.Send(EM_GETLIMITTEXT), 0x7FFFFFFE);
}

TEST(Edit, ReadOnlyKeepsOutTheUserAndNotTheProgram) {
    ControlHost host;
    const EditDriver edit(host, "abc", kOneLine);
    edit.Send(EM_SETREADONLY, TRUE);
    EXPECT_TRUE(GetWindowLongA(edit.Window(), GWL_STYLE) & ES_READONLY);
    edit.Send(EM_SETSEL, 0, 2);
    const EditStep steps[] = {
        {"x", "[ab]c", ""},
        {"Back", "[ab]c", ""},
        {"Delete", "[ab]c", ""},
        {"+Right", "[abc]", ""},
    };
    RunSteps(host, edit, steps);
    edit.Replace("z");
    EXPECT_EQ(edit.Shown(), "z|");
    edit.Send(EM_SETREADONLY, FALSE);
    edit.Do("y");
    EXPECT_EQ(edit.Shown(), "zy|");
}

TEST(Edit, SelectionBySend) {
    ControlHost host;
    const EditDriver edit(host, "0123456789", kOneLine);
    const struct {
        int start;
        int end;
        const char* shown;
        const char* after_shift_left;  // tells which end moves
    } cases[] = {
        {0, -1, "[0123456789]", "[012345678]9"},         {-1, 0, "012345678|9", "01234567[8]9"},
        {5, 2, "01[234]56789", "0[1234]56789"},          {2, 5, "01[234]56789", "01[23]456789"},
        {3, 5000, "012[3456789]", "012[345678]9"},       {4, -1, "0123[456789]", "0123[45678]9"},
        {0xFFFF, 0xFFFF, "0123456789|", "012345678[9]"}, {0, 0xFFFF, "[0123456789]", "[012345678]9"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.start << ", " << c.end);
        edit.Send(EM_SETSEL, static_cast<WPARAM>(c.start), c.end);
        EXPECT_EQ(edit.Shown(), c.shown);
        edit.Do("+Left");
        EXPECT_EQ(edit.Shown(), c.after_shift_left);
    }
    edit.Send(EM_SETSEL, 2, 5);
    EXPECT_EQ(edit.Send(EM_GETSEL), MAKELRESULT(2, 5));
    EXPECT_EQ(host.Told(), "");
}

TEST(Edit, TextIsCopiedAsFarAsThereIsRoom) {
    ControlHost host;
    const EditDriver edit(host, "hello", kOneLine);
    const struct {
        WPARAM size;
        const char* text;
    } cases[] = {{0, "####"}, {1, ""}, {4, "hel"}, {6, "hello"}, {20, "hello"}};
    for (const auto& c : cases) {
        char buffer[32] = "####";
        const LRESULT count = edit.Send(WM_GETTEXT, c.size, reinterpret_cast<LPARAM>(buffer));
        EXPECT_STREQ(buffer, c.text);
        EXPECT_EQ(count, c.size ? static_cast<LRESULT>(std::strlen(c.text)) : 0);
    }
    char line[16] = "\x04\0##########";
    EXPECT_EQ(edit.Send(EM_GETLINE, 3, reinterpret_cast<LPARAM>(line)), 4);
    EXPECT_STREQ(line, "hell########") << "no 0 is written";
}

TEST(Edit, FocusIsTold) {
    ControlHost host;
    const EditDriver edit(host, "x", kOneLine);
    SetFocus(host.Window());
    EXPECT_EQ(host.Told(), "blur");
    MouseDown(edit.Window(), 5, 5);
    MouseUp(edit.Window(), 5, 5);
    EXPECT_EQ(host.Told(), "focus");
    DestroyWindow(edit.Window());
    EXPECT_EQ(host.Told(), "blur");
}

TEST(Edit, ColourIsAskedForByWhatTheUserMayDo) {
    ControlHost host;
    UINT asked = 0;
    host.on_message = [&](UINT message, WPARAM, LPARAM) -> LRESULT {
        if (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC) asked = message;
        return 0;
    };
    const EditDriver edit(host, "x", kOneLine);
    EXPECT_EQ(asked, WM_CTLCOLOREDIT);
    const auto redrawn = [&] {
        asked = 0;
        InvalidateRect(edit.Window(), nullptr, TRUE);
        PumpMessages();
        return asked;
    };
    edit.Send(EM_SETREADONLY, TRUE);
    EXPECT_EQ(redrawn(), WM_CTLCOLORSTATIC);
    edit.Send(EM_SETREADONLY, FALSE);
    EXPECT_EQ(redrawn(), WM_CTLCOLOREDIT);
    EnableWindow(edit.Window(), FALSE);
    EXPECT_EQ(redrawn(), WM_CTLCOLORSTATIC);
}

TEST(Edit, ParentMayDestroyItInAnyNotification) {
    for (const int code : {EN_MAXTEXT, EN_UPDATE, EN_CHANGE}) {
        ControlHost host;
        const EditDriver edit(host, "abc", kOneLine);
        edit.Send(EM_LIMITTEXT, 3);
        host.on_message = [&](UINT message, WPARAM wParam, LPARAM) -> LRESULT {
            if (message == WM_COMMAND && HIWORD(wParam) == code) DestroyWindow(edit.Window());
            return 0;
        };
        edit.Do("x");
        EXPECT_FALSE(IsWindow(edit.Window()));
    }
}

TEST(Edit, SeveralLinesGiveDialogKeysBack) {
    ControlHost host;
    HWND button = host.Add("Button", "Ok", BS_DEFPUSHBUTTON, 60, 20, 77);
    std::string asked;
    host.on_message = [&](UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
        if (message == WM_CLOSE) return asked += "close ", 1;
        if (message == DM_GETDEFID) return MAKELRESULT(77, DC_HASDEFID);
        if (message != WM_NEXTDLGCTL) return 0;
        if (lParam) {
            asked += wParam == reinterpret_cast<WPARAM>(button) ? "button " : "other ";
        } else {
            asked += wParam ? "previous " : "next ";
        }
        return 0;
    };
    const EditDriver edit(host, "a", kLines | ES_WANTRETURN);
    EXPECT_EQ(edit.Send(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTALLKEYS | DLGC_HASSETSEL | DLGC_WANTCHARS);
    const auto answer = [&](int key, Modifiers modifiers = {}) {
        asked.clear();
        PressKey(edit.Window(), key, modifiers);
        PumpMessages();
        return asked;
    };
    EXPECT_EQ(answer(VK_TAB), "") << "no dialog has asked";
    MSG message = {edit.Window(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    edit.Send(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&message));
    EXPECT_EQ(answer(VK_TAB), "next ");
    EXPECT_EQ(answer(VK_TAB, {true, false}), "previous ");
    EXPECT_EQ(answer(VK_ESCAPE), "close ");
    EXPECT_EQ(answer(VK_RETURN), "");
    edit.Do("Enter");
    EXPECT_EQ(edit.Shown(), "/|a");
    edit.Do("Tab");
    EXPECT_EQ(edit.Shown(), "/|a");
    const EditDriver plain(host, "a", kLines);
    plain.Send(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&message));
    asked.clear();
    PressKey(plain.Window(), VK_RETURN);
    plain.Do("Enter");
    EXPECT_EQ(asked, "button ");
    EXPECT_EQ(plain.Shown(), "|a");
}

}  // namespace
