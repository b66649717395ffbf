#include <gtest/gtest.h>

#include "dialogs.h"
#include "modal_driver.h"

namespace {

struct Bounds {
    LONG left, top, width, height;
    bool operator==(const Bounds&) const = default;
    friend void PrintTo(const Bounds& b, std::ostream* out) {
        *out << b.left << ' ' << b.top << ' ' << b.width << ' ' << b.height;
    }
};

Bounds PlaceIn(HWND dialog, int id) {
    RECT rect = {};
    GetWindowRect(GetDlgItem(dialog, id), &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

LONG ExtendedStyle(HWND window) {
    return GetWindowLongA(window, GWL_EXSTYLE);
}

TEST(Dialog, ControlsAreMadeFromTheTemplate) {
    TestDialog dialog;
    const HWND window = MakeDialog(dialog, 100);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(dialog.window, window);
    EXPECT_EQ(TextOf(window), "Controls");
    EXPECT_FALSE(IsWindowVisible(window)) << "the template does not ask for it";
    EXPECT_TRUE(ExtendedStyle(window) & WS_EX_DLGMODALFRAME);
    const struct {
        int id;
        const char* class_name;
        const char* text;
        DWORD style;
        RECT units;  // left, top, width, height
    } items[] = {
        {0xFFFF, "Static", "&Name:", 0x50020000, {7, 7, 30, 8}},
        {10, "Edit", "text", 0x50010080, {40, 7, 60, 12}},
        {11, "Edit", "hidden", 0x40010080, {40, 20, 60, 12}},
        {13, "Button", "one", 0x50030000, {7, 50, 40, 12}},
        {2, "Button", "Cancel", 0x50010000, {60, 80, 50, 14}},
    };
    const HFONT font = reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0));
    EXPECT_NE(font, nullptr);
    for (const auto& item : items) {
        SCOPED_TRACE(item.id);
        const HWND control = GetDlgItem(window, item.id);
        char class_name[32] = {};
        GetClassNameA(control, class_name, sizeof class_name);
        EXPECT_STREQ(class_name, item.class_name);
        EXPECT_EQ(TextOf(control), item.text);
        EXPECT_EQ(GetDlgCtrlID(control), item.id);
        EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE)), item.style);
        EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(control, WM_GETFONT, 0, 0)), font);
        RECT place = item.units;
        EXPECT_TRUE(MapDialogRect(window, &place));
        const Bounds expected = {place.left, place.top, place.right, place.bottom};
        EXPECT_EQ(PlaceIn(window, item.id), expected);
    }
    RECT size = {0, 0, 200, 100};
    RECT client = {};
    MapDialogRect(window, &size);
    GetClientRect(window, &client);
    EXPECT_EQ(client.right, size.right);
    EXPECT_EQ(client.bottom, size.bottom);
    EXPECT_TRUE(DestroyWindow(window));
}

// Four units are the average width, eight the height of the font's characters.
TEST(Dialog, UnitsFollowTheFont) {
    TestDialog dialog;
    const HWND window = MakeDialog(dialog, 100);
    RECT unit = {0, 0, 4, 8};
    MapDialogRect(window, &unit);
    const HDC dc = GetDC(window);
    const HGDIOBJ former = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)));
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    SIZE letters = {};
    GetTextExtentPoint32A(dc, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52, &letters);
    SelectObject(dc, former);
    ReleaseDC(window, dc);
    EXPECT_EQ(unit.right, (letters.cx / 26 + 1) / 2);
    EXPECT_EQ(unit.bottom, metrics.tmHeight);
    DestroyWindow(window);
    RECT rect = {};
    EXPECT_FALSE(MapDialogRect(window, &rect)) << "it is gone";
}

TEST(Dialog, ChildPagesLieInTheirParent) {
    TestDialog outer, inner;
    const HWND window = MakeDialog(outer, 100);
    const HWND page = MakeDialog(inner, 101, window);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(GetParent(page), window);
    EXPECT_TRUE(ExtendedStyle(page) & WS_EX_CONTROLPARENT);
    RECT corner = {110, 40, 190, 80};
    MapDialogRect(window, &corner);
    RECT rect = {};
    GetClientRect(page, &rect);
    MapWindowPoints(page, window, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(rect.left, corner.left);
    EXPECT_EQ(rect.top, corner.top);
    EXPECT_EQ(rect.right - rect.left, corner.right - corner.left);
    DestroyWindow(window);
    EXPECT_FALSE(IsWindow(page));
}

TEST(Dialog, LiesByItsOwnerOrInTheMiddle) {
    TestDialog outer, inner, centred;
    const HWND owner = MakeDialog(outer, 100);
    SetWindowPos(owner, nullptr, 60, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const HWND owned = MakeDialog(inner, 100, owner);
    RECT place = {10, 20, 0, 0};
    MapDialogRect(owner, &place);
    POINT corner = {place.left, place.top};
    ClientToScreen(owner, &corner);
    // What lies there is its client area.
    RECT rect = {};
    MapWindowPoints(owned, nullptr, reinterpret_cast<POINT*>(&rect), 1);
    EXPECT_EQ(rect.left, corner.x);
    EXPECT_EQ(rect.top, corner.y);
    const HWND middle = MakeDialog(centred, 104, owner);
    GetWindowRect(middle, &rect);
    EXPECT_NEAR(rect.left + rect.right, GetSystemMetrics(SM_CXSCREEN), 2);
    EXPECT_NEAR(rect.top + rect.bottom, GetSystemMetrics(SM_CYSCREEN), 2);
    for (const HWND window : {middle, owned, owner})
        DestroyWindow(window);
}

TEST(Dialog, BadTemplatesGiveNoDialog) {
    TestDialog dialog;
    EXPECT_EQ(MakeDialog(dialog, 103), nullptr) << "a class that is not there";
    EXPECT_EQ(RunDialog(dialog, 103), -1);
    EXPECT_EQ(RunDialog(dialog, 100, reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7654))), -1);
    EXPECT_EQ(CreateDialogIndirectParamA(GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, 0), nullptr);
    const HWND bare = MakeDialog(dialog, 102);
    ASSERT_NE(bare, nullptr) << "no items and no font";
    EXPECT_EQ(TextOf(bare), "");
    DestroyWindow(bare);
}

TEST(Dialog, ItemsAreReachedById) {
    TestDialog dialog;
    const HWND window = MakeDialog(dialog, 100);
    EXPECT_TRUE(SetDlgItemTextA(window, 10, "changed"));
    char text[8] = "------";
    EXPECT_EQ(GetDlgItemTextA(window, 10, text, 5), 4u);
    EXPECT_STREQ(text, "chan");
    EXPECT_EQ(SendDlgItemMessageA(window, 10, WM_GETTEXTLENGTH, 0, 0), 7);
    EXPECT_EQ(GetDlgItem(window, 99), nullptr);
    EXPECT_FALSE(SetDlgItemTextA(window, 99, "nothing"));
    text[0] = '-';
    EXPECT_EQ(GetDlgItemTextA(window, 99, text, sizeof text), 0u);
    EXPECT_STREQ(text, "");
    DestroyWindow(window);
    EXPECT_EQ(GetDlgItem(window, 10), nullptr);
}

// The procedure's answer decides only that the default is left out; the result is set beside it.
TEST(Dialog, AnswersOfTheProcedure) {
    TestDialog dialog;
    dialog.on_message = [](TestDialog& self, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_APP) {
            SetWindowLongPtrA(self.window, DWLP_MSGRESULT, static_cast<LONG_PTR>(wParam));
            return wParam == 3 ? FALSE : TRUE;
        }
        if (message == WM_CTLCOLORDLG) return reinterpret_cast<INT_PTR>(GetStockObject(GRAY_BRUSH));
        return message == WM_INITDIALOG;
    };
    const HWND window = MakeDialog(dialog, 100);
    EXPECT_EQ(SendMessageA(window, WM_APP, 7, 0), 7);
    EXPECT_EQ(SendMessageA(window, WM_APP, 3, 0), 0) << "the default answers";
    EXPECT_EQ(SendMessageA(window, WM_CTLCOLORDLG, 0, 0),
              reinterpret_cast<LRESULT>(GetStockObject(GRAY_BRUSH)));
    DestroyWindow(window);
}

TEST(Dialog, ClosingIsCancel) {
    TestDialog dialog;
    dialog.on_message = [](TestDialog& self, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {
            EXPECT_EQ(reinterpret_cast<HWND>(lParam), GetDlgItem(self.window, IDCANCEL));
            EndDialog(self.window, 33);
        }
        return message == WM_INITDIALOG;
    };
    ModalDriver driver({{"Controls", [](HWND window) { SendMessageA(window, WM_CLOSE, 0, 0); }}});
    EXPECT_EQ(RunDialog(dialog, 100), 33);
    EXPECT_FALSE(IsWindow(dialog.window));
}

TEST(Dialog, EndsInsideItsInitialisation) {
    TestDialog dialog;
    dialog.on_message = [](TestDialog& self, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) EndDialog(self.window, 5);
        if (message == WM_SHOWWINDOW) self.told += "shown ";
        return TRUE;
    };
    EXPECT_EQ(RunDialog(dialog, 100), 5);
    EXPECT_EQ(dialog.told, "");
    EXPECT_FALSE(IsWindow(dialog.window));
    EXPECT_FALSE(EndDialog(dialog.window, 0));
}

// Each dialog keeps its owner from input and gives it back before it goes.
TEST(Dialog, ModalInsideModal) {
    static TestDialog outer, inner;
    outer = {};
    inner = {};
    inner.on_message = [](TestDialog& self, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_COMMAND && LOWORD(wParam) == IDOK) EndDialog(self.window, 11);
        if (message == WM_DESTROY) self.told += IsWindowEnabled(outer.window) ? "free " : "caught ";
        return message == WM_INITDIALOG;
    };
    ModalDriver driver({{"Controls",
                         [](HWND window) {
                             EXPECT_EQ(window, outer.window);
                             EXPECT_EQ(RunDialog(inner, 100, window), 11);
                             EXPECT_TRUE(IsWindowEnabled(window));
                             EXPECT_EQ(GetActiveWindow(), window);
                             EndDialog(window, 22);
                         }},
                        {"Controls", [](HWND window) {
                             EXPECT_EQ(window, inner.window);
                             EXPECT_FALSE(IsWindowEnabled(outer.window));
                             EXPECT_EQ(GetWindow(window, GW_OWNER), outer.window);
                             Click(window, IDOK);
                         }}});
    EXPECT_EQ(RunDialog(outer, 100), 22);
    EXPECT_EQ(inner.told, "1 free ");
}

// A request to quit ends all loops, one after the other, and is still there for the last.
TEST(Dialog, QuittingEndsModalDialogs) {
    TestDialog dialog;
    ModalDriver driver({{"Controls", [](HWND) { PostQuitMessage(9); }}});
    RunDialog(dialog, 100);
    EXPECT_FALSE(IsWindow(dialog.window));
    MSG message = {};
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.wParam, 9u);
}

INT_PTR CALLBACK DestroyAtFont(HWND window, UINT message, WPARAM, LPARAM) {
    if (message == WM_SETFONT) DestroyWindow(window);
    return FALSE;
}

TEST(Dialog, DestroyedWhileItIsMade) {
    EXPECT_EQ(CreateDialogIndirectParamA(GetModuleHandleA(nullptr), DialogResource(100), nullptr,
                                         &DestroyAtFont, 0),
              nullptr);
}

}  // namespace
