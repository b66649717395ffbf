#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>

#include "modal_driver.h"

namespace {

constexpr int kTextId = 0xFFFF;

void Press(HWND window, int key) {
    PostMessageA(window, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    PostMessageA(window, WM_KEYUP, static_cast<WPARAM>(key), 0);
}

TEST(MessageBoxTest, ButtonsAreThoseOfItsType) {
    constexpr int kAll[] = {IDOK, IDCANCEL, IDABORT, IDRETRY, IDIGNORE, IDYES, IDNO};
    const struct {
        UINT type;
        std::vector<int> buttons;
        int default_button;
    } cases[] = {
        {MB_OK, {IDOK}, IDOK},
        {MB_OKCANCEL, {IDOK, IDCANCEL}, IDOK},
        {MB_OKCANCEL | MB_DEFBUTTON2, {IDOK, IDCANCEL}, IDCANCEL},
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON3, {IDABORT, IDRETRY, IDIGNORE}, IDIGNORE},
        {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}, IDYES},
        {MB_YESNO | MB_ICONHAND, {IDYES, IDNO}, IDYES},
        {MB_RETRYCANCEL | MB_ICONQUESTION, {IDRETRY, IDCANCEL}, IDRETRY},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.type);
        const auto look = [&](HWND box) {
            for (const int id : kAll) {
                const bool wanted =
                    std::find(each.buttons.begin(), each.buttons.end(), id) != each.buttons.end();
                EXPECT_EQ(GetDlgItem(box, id) != nullptr, wanted) << id;
            }
            EXPECT_EQ(ItemText(box, kTextId), "Text & more");
            EXPECT_EQ(GetFocus(), GetDlgItem(box, each.default_button));
            Click(box, each.default_button);
        };
        ModalDriver driver({{"Caption", look}});
        EXPECT_EQ(MessageBoxA(nullptr, "Text & more", "Caption", each.type), each.default_button);
    }
}

// Return presses the button with the focus, Escape and closing mean Cancel even where there is no such
// button.
TEST(MessageBoxTest, IsAnsweredByTheUser) {
    const struct {
        const char* way;
        UINT type;
        std::function<void(HWND)> act;
        int answer;
    } cases[] = {
        {"Return", MB_YESNO, [](HWND) { Press(GetFocus(), VK_RETURN); }, IDYES},
        {"Tab and Return", MB_YESNO, [](HWND) { Press(GetFocus(), VK_TAB); }, IDNO},
        {"Escape", MB_OKCANCEL, [](HWND) { Press(GetFocus(), VK_ESCAPE); }, IDCANCEL},
        {"closing", MB_RETRYCANCEL, [](HWND box) { SendMessageA(box, WM_CLOSE, 0, 0); }, IDCANCEL},
        {"a click", MB_YESNOCANCEL, [](HWND box) { PostMessageA(GetDlgItem(box, IDNO), BM_CLICK, 0, 0); },
         IDNO},
        {"closing without Cancel", MB_YESNO, [](HWND box) { SendMessageA(box, WM_CLOSE, 0, 0); }, IDCANCEL},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.way);
        std::vector<ModalDriver::Step> steps = {{"Ask", each.act}};
        if (std::string(each.way) == "Tab and Return") {
            // The keys are taken between this step and the next.
            steps.push_back({"Ask", [](HWND) {}});
            steps.push_back({"Ask", [](HWND box) {
                                 EXPECT_EQ(GetFocus(), GetDlgItem(box, IDNO));
                                 Press(GetFocus(), VK_RETURN);
                             }});
        }
        ModalDriver driver(std::move(steps));
        EXPECT_EQ(MessageBoxA(nullptr, "Text", "Ask", each.type), each.answer);
    }
}

TEST(MessageBoxTest, KeepsItsOwnerFromInput) {
    const HINSTANCE module = GetModuleHandleA(nullptr);
    const HWND owner = CreateWindowExA(0, "Static", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                       module, nullptr);
    ModalDriver driver({{"Box", [owner](HWND box) {
                             EXPECT_FALSE(IsWindowEnabled(owner));
                             EXPECT_EQ(GetWindow(box, GW_OWNER), owner);
                             EXPECT_EQ(GetActiveWindow(), box);
                             Click(box, IDOK);
                         }}});
    EXPECT_EQ(MessageBoxA(owner, "Text", "Box", MB_OK), IDOK);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(GetActiveWindow(), owner);
    DestroyWindow(owner);
}

TEST(MessageBoxTest, SizeFollowsItsText) {
    const auto size_of = [](const char* text) {
        SIZE size = {};
        ModalDriver driver({{"Size", [&size](HWND box) {
                                 RECT client = {};
                                 GetClientRect(box, &client);
                                 size = {client.right, client.bottom};
                                 Click(box, IDOK);
                             }}});
        MessageBoxA(nullptr, text, "Size", MB_OK);
        return size;
    };
    const SIZE one = size_of("A line of text");
    const SIZE two = size_of("A line of text\nand one more");
    const SIZE wrapped = size_of(std::string(500, 'a').insert(250, " ").insert(100, " ").c_str());
    const SIZE words = size_of(
        "A text of many words that has to be broken into several lines, since nobody wants to read a box "
        "that is as wide as the whole screen and more");
    EXPECT_GT(two.cy, one.cy);
    EXPECT_GT(words.cy, two.cy);
    EXPECT_LT(words.cx, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_GT(wrapped.cy, one.cy);
}

TEST(MessageBoxTest, MissingTextsAndOwners) {
    ModalDriver driver({{"Error", [](HWND box) {
                             EXPECT_EQ(ItemText(box, kTextId), "");
                             Click(box, IDOK);
                         }}});
    EXPECT_EQ(MessageBoxA(nullptr, nullptr, nullptr, MB_OK), IDOK);
    EXPECT_LE(MessageBoxA(reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7654)), "Text", "Caption", MB_OK), 0);
}

}  // namespace
