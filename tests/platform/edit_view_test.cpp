#include <gtest/gtest.h>

#include "edit_driver.h"

namespace {

constexpr DWORD kOneLine = ES_AUTOHSCROLL;
constexpr DWORD kLines = ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL | WS_VSCROLL;

std::string LineOf(const EditDriver& edit, WPARAM line) {
    char buffer[64] = {};
    const WORD size = 60;
    std::memcpy(buffer, &size, sizeof size);
    const LRESULT count = edit.Send(EM_GETLINE, line, reinterpret_cast<LPARAM>(buffer));
    return {buffer, static_cast<size_t>(count)};
}

TEST(EditView, LinesOfAText) {
    ControlHost host;
    const struct {
        const char* text;
        std::initializer_list<int> starts;
        std::initializer_list<const char*> lines;
    } cases[] = {
        {"", {0}, {""}},
        {"one", {0}, {"one"}},
        {"l1\r\nline two\r\n\r\nl4", {0, 4, 14, 16}, {"l1", "line two", "", "l4"}},
        {"end\r\n", {0, 5}, {"end", ""}},
        {"a\nb\rc\r\r\nd", {0, 2, 8}, {"a", "b\rc", "d"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const EditDriver edit(host, c.text, kLines);
        EXPECT_EQ(edit.Send(EM_GETLINECOUNT), static_cast<LRESULT>(c.starts.size()));
        WPARAM line = 0;
        for (const int start : c.starts) {
            const std::string text = c.lines.begin()[line];
            EXPECT_EQ(edit.Send(EM_LINEINDEX, line), start);
            EXPECT_EQ(LineOf(edit, line), text);
            for (int i = start; i <= start + static_cast<int>(text.size()); ++i) {
                EXPECT_EQ(edit.Send(EM_LINEFROMCHAR, static_cast<WPARAM>(i)), static_cast<LRESULT>(line));
                EXPECT_EQ(edit.Send(EM_LINELENGTH, static_cast<WPARAM>(i)),
                          static_cast<LRESULT>(text.size()));
            }
            ++line;
        }
        EXPECT_EQ(edit.Send(EM_LINEINDEX, line), -1);
        EXPECT_EQ(LineOf(edit, line), "");
    }
}

TEST(EditView, LinesOfTheSelection) {
    ControlHost host;
    const EditDriver edit(host, "a\r\nbb\r\nccc\r\ndddd", kLines);
    edit.Send(EM_SETSEL, 3, 8);
    const auto minus_one = static_cast<WPARAM>(-1);
    EXPECT_EQ(edit.Send(EM_LINEFROMCHAR, minus_one), 1);
    EXPECT_EQ(edit.Send(EM_LINEINDEX, minus_one), 7) << "of the caret";
    EXPECT_EQ(edit.Send(EM_LINELENGTH, minus_one), 2) << "what is not selected";
}

TEST(EditView, PlacesGrowAlongTheLineAndDownTheLines) {
    ControlHost host;
    const EditDriver edit(host, "ab\r\ncd", kLines);
    const POINT a = edit.PlaceOf(0);
    const POINT b = edit.PlaceOf(1);
    const POINT c = edit.PlaceOf(4);
    EXPECT_EQ(a.y, b.y);
    EXPECT_LT(a.x, b.x);
    EXPECT_EQ(a.x, c.x);
    EXPECT_LT(a.y, c.y);
    EXPECT_EQ(edit.Send(EM_POSFROMCHAR, 6), -1) << "behind the last character";
    EXPECT_EQ(edit.Send(EM_POSFROMCHAR, 60), -1);
}

TEST(EditView, TabStops) {
    ControlHost host;
    const EditDriver edit(host, "\tx\ty", kLines, 400);
    const LONG left = edit.PlaceOf(0).x;
    const auto first = [&] { return edit.PlaceOf(1).x - left; };
    const auto second = [&] { return edit.PlaceOf(3).x - left; };
    const LONG standard = first();
    EXPECT_EQ(second(), 2 * standard) << "every eight characters";
    int stop = 16;
    EXPECT_EQ(edit.Send(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&stop)), TRUE);
    EXPECT_EQ(2 * first(), standard) << "quarters of a character";
    EXPECT_EQ(second(), standard);
    int stops[] = {32, 96};
    edit.Send(EM_SETTABSTOPS, 2, reinterpret_cast<LPARAM>(stops));
    EXPECT_EQ(first(), standard);
    EXPECT_EQ(second(), 3 * standard);
    edit.Send(EM_SETTABSTOPS, 0, 0);
    EXPECT_EQ(first(), standard);
    EXPECT_EQ(edit.Send(EM_FMTLINES, TRUE), TRUE);
    EXPECT_EQ(TextOf(edit.Window()), "\tx\ty");
}

TEST(EditView, WordsWrapWithoutHorizontalScrolling) {
    ControlHost host;
    const std::string text =
        "the quick brown fox jumps over the lazy dog andaverylongwordthatdoesnotfitonaline x";
    const EditDriver edit(host, text.c_str(), ES_MULTILINE | ES_AUTOVSCROLL | WS_VSCROLL, 120, 60);
    const auto count = static_cast<WPARAM>(edit.Send(EM_GETLINECOUNT));
    ASSERT_GT(count, 3u);
    std::string joined;
    for (WPARAM line = 0; line < count; ++line) {
        const std::string part = LineOf(edit, line);
        EXPECT_FALSE(part.empty());
        if (joined.size() < 30) {
            EXPECT_EQ(part.back(), ' ') << "cut behind a word";
        }
        joined += part;
    }
    EXPECT_EQ(joined, text);
    EXPECT_EQ(TextOf(edit.Window()), text);

    // The end of a wrapped line and the start of the next are one position, and two places of the caret.
    const LRESULT second = edit.Send(EM_LINEINDEX, 1);
    edit.Send(EM_SETSEL, 0, 0);
    edit.Do("End");
    EXPECT_EQ(edit.SelectionStart(), static_cast<size_t>(second));
    POINT caret = {};
    GetCaretPos(&caret);
    EXPECT_EQ(caret.y, edit.PlaceOf(0).y);
    edit.Do("Home");
    EXPECT_EQ(edit.SelectionStart(), 0u);

    MoveWindow(edit.Window(), 10, 10, 1500, 60, TRUE);
    EXPECT_EQ(edit.Send(EM_GETLINECOUNT), 1);
}

std::string NumberedLines(int count) {
    std::string text = "0";
    for (int i = 1; i < count; ++i)
        text += "\r\n" + std::to_string(i);
    return text;
}

TEST(EditView, ScrollsByBarKeyAndWheel) {
    ControlHost host;
    const EditDriver edit(host, NumberedLines(20).c_str(), kLines, 100, 70);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(edit.Window(), SB_VERT, &info);
    const auto page = static_cast<int>(info.nPage);
    ASSERT_GT(page, 2);
    EXPECT_EQ(info.nMin, 0);
    EXPECT_EQ(info.nMax, 19);
    const auto bar = [&](int code, int thumb = 0) { edit.Send(WM_VSCROLL, MAKEWPARAM(code, thumb)); };
    const auto end = static_cast<LPARAM>(std::string(NumberedLines(20)).size());
    const struct {
        const char* what;
        std::function<void()> act;
        int first;
    } cases[] = {
        {"line down", [&] { bar(SB_LINEDOWN); }, 1},
        {"page down", [&] { bar(SB_PAGEDOWN); }, 1 + page},
        {"line up", [&] { bar(SB_LINEUP); }, page},
        {"page up", [&] { bar(SB_PAGEUP); }, 0},
        {"line up at the top", [&] { bar(SB_LINEUP); }, 0},
        {"thumb", [&] { bar(SB_THUMBPOSITION, 7); }, 7},
        {"bottom", [&] { bar(SB_BOTTOM); }, 20 - page},
        {"top", [&] { bar(SB_TOP); }, 0},
        {"by send", [&] { edit.Send(EM_LINESCROLL, 0, 4); }, 4},
        {"by send, too far", [&] { edit.Send(EM_LINESCROLL, 0, 400); }, 20 - page},
        {"by send, back", [&] { edit.Send(EM_LINESCROLL, 0, -2); }, 18 - page},
        {"wheel up", [&] { edit.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, 120)); }, 15 - page},
        {"caret at the top", [&] { edit.Send(EM_SETSEL, 0, 0), edit.Send(EM_SCROLLCARET); }, 0},
        {"caret at the end", [&] { edit.Send(EM_SETSEL, static_cast<WPARAM>(end), end); }, 20 - page},
        {"caret up one page and a line", [&] { edit.Do("PageUp"), edit.Do("Up"); }, 18 - page},
    };
    for (const auto& c : cases) {
        c.act();
        const LRESULT first = edit.Send(EM_GETFIRSTVISIBLELINE);
        EXPECT_EQ(first, c.first) << c.what;
        EXPECT_EQ(GetScrollPos(edit.Window(), SB_VERT), first) << c.what;
    }
    SetWindowTextA(edit.Window(), "short");
    EXPECT_EQ(edit.Send(EM_GETFIRSTVISIBLELINE), 0);
    const EditDriver one(host, "x", kOneLine);
    EXPECT_EQ(one.Send(EM_LINESCROLL, 0, 1), FALSE);
}

TEST(EditView, OneLineFollowsItsCaret) {
    ControlHost host;
    const EditDriver edit(host, std::string(100, 'w').c_str(), kOneLine, 80, 20);
    const auto first = [&] { return edit.Send(EM_GETFIRSTVISIBLELINE); };
    EXPECT_EQ(first(), 0);
    edit.Do("End");
    const LRESULT at_end = first();
    EXPECT_GT(at_end, 80);
    edit.Do("Left");
    EXPECT_EQ(first(), at_end) << "still in sight";
    edit.Do("Home");
    EXPECT_EQ(first(), 0);
    edit.Send(EM_SETSEL, 100, 100);
    EXPECT_EQ(first(), at_end);
    edit.Send(EM_SETSEL, 0, -1);
    edit.Do("x");
    EXPECT_EQ(first(), 0);
}

TEST(EditView, SelectionShowsWithTheFocus) {
    ControlHost host;
    const auto marked = [](const EditDriver& edit) {
        PumpMessages();
        return CountPixels(edit.Window(), GetSysColor(COLOR_HIGHLIGHT)) > 0;
    };
    const EditDriver edit(host, "hello", kOneLine);
    EXPECT_FALSE(marked(edit));
    edit.Send(EM_SETSEL, 0, -1);
    EXPECT_TRUE(marked(edit));
    SetFocus(host.Window());
    EXPECT_FALSE(marked(edit));
    SetFocus(edit.Window());
    EXPECT_TRUE(marked(edit));
    edit.Do("x");
    EXPECT_FALSE(marked(edit));
    const EditDriver always(host, "hello", kOneLine | ES_NOHIDESEL);
    always.Send(EM_SETSEL, 0, -1);
    SetFocus(host.Window());
    EXPECT_TRUE(marked(always));
}

TEST(EditView, FrameOfItsOwn) {
    ControlHost host;
    const EditDriver edit(host, "hello", kOneLine | WS_BORDER, 100, 30);
    RECT area = {};
    GetClientRect(edit.Window(), &area);
    EXPECT_EQ(area.right, 100) << "the border is inside of the client area";
    EXPECT_EQ(GetWindowLongA(edit.Window(), GWL_STYLE) & WS_BORDER, 0);
    EXPECT_EQ(PixelOf(edit.Window(), 0, 0), GetSysColor(COLOR_WINDOWFRAME));
    const POINT inset = edit.PlaceOf(0);
    const EditDriver plain(host, "hello", kOneLine, 100, 30);
    EXPECT_EQ(inset.x, plain.PlaceOf(0).x + 2);
    EXPECT_EQ(inset.y, plain.PlaceOf(0).y + 2);
}

TEST(EditView, MouseInOneLine) {
    ControlHost host;
    const EditDriver edit(host, "hello brave world", kOneLine, 200, 20);
    const auto x = [&](int position) { return static_cast<int>(edit.PlaceOf(position).x); };
    const auto click = [&](int at, WPARAM keys = MK_LBUTTON) {
        MouseDown(edit.Window(), at, 5, keys);
        MouseUp(edit.Window(), at, 5);
    };
    click(x(8) + 1);
    EXPECT_EQ(edit.Shown(), "hello br|ave world");
    click(x(9) - 1);
    EXPECT_EQ(edit.Shown(), "hello bra|ve world") << "the nearer side counts";
    click(0);
    EXPECT_EQ(edit.Shown(), "|hello brave world");
    click(190);
    EXPECT_EQ(edit.Shown(), "hello brave world|");
    click(x(6) + 1, MK_LBUTTON | MK_SHIFT);
    EXPECT_EQ(edit.Shown(), "hello [brave world]");
    MouseDown(edit.Window(), x(2) + 1, 5);
    EXPECT_EQ(GetCapture(), edit.Window());
    MouseMove(edit.Window(), x(8) + 1, 300);
    EXPECT_EQ(edit.Shown(), "he[llo br]ave world");
    MouseMove(edit.Window(), -50, 5);
    EXPECT_EQ(edit.Shown(), "[he]llo brave world");
    MouseUp(edit.Window(), -50, 5);
    EXPECT_EQ(GetCapture(), nullptr);
    MouseMove(edit.Window(), x(8), 5);
    EXPECT_EQ(edit.Shown(), "[he]llo brave world");
    click(x(8) + 1);
    SendMessageA(edit.Window(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x(8) + 1, 5));
    MouseUp(edit.Window(), x(8) + 1, 5);
    EXPECT_EQ(edit.Shown(), "hello [brave ]world");
}

TEST(EditView, MouseInSeveralLines) {
    ControlHost host;
    const EditDriver edit(host, "a\r\nbb\r\nccc\r\ndddd\r\neeeee\r\nf\r\ng", kLines, 100, 50);
    const int height = static_cast<int>(edit.PlaceOf(3).y - edit.PlaceOf(0).y);
    const int visible = 50 / height;
    const auto line_at = [&](int y) {
        MouseDown(edit.Window(), 50, y);
        MouseUp(edit.Window(), 50, y);
        return edit.Send(EM_LINEFROMCHAR, edit.SelectionStart());
    };
    EXPECT_EQ(line_at(-20), 0);
    EXPECT_EQ(line_at(1), 0);
    EXPECT_EQ(line_at(height + 3), 1);
    EXPECT_EQ(line_at(500), visible - 1) << "the last line that is wholly visible";
    EXPECT_EQ(edit.Send(EM_GETFIRSTVISIBLELINE), 0);
}

}  // namespace
