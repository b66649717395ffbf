#include <gtest/gtest.h>
#include <windows.h>

#include <cstring>

namespace {

HMODULE Module() {
    return GetModuleHandleA(nullptr);
}

TEST(Resources, AreFoundByNumber) {
    const HRSRC found = FindResourceA(Module(), MAKEINTRESOURCEA(102), MAKEINTRESOURCEA(5));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(FindResourceA(nullptr, MAKEINTRESOURCEA(102), MAKEINTRESOURCEA(5)), found) << "of the program";
    // Style, extended style, no items, place, no menu, class or caption.
    ASSERT_EQ(SizeofResource(Module(), found), 24u);
    const void* const bytes = LockResource(LoadResource(Module(), found));
    ASSERT_NE(bytes, nullptr);
    DLGTEMPLATE dialog = {};
    std::memcpy(&dialog, bytes, sizeof dialog);
    EXPECT_EQ(dialog.style, 0x80800000u);
    EXPECT_EQ(dialog.cdit, 0);
    EXPECT_EQ(dialog.cx, 50);
    EXPECT_EQ(dialog.cy, 30);
}

TEST(Resources, MissingOnesHaveAnError) {
    const struct {
        int name;
        int type;
        DWORD error;
    } cases[] = {
        {9999, 5, ERROR_RESOURCE_NAME_NOT_FOUND},
        {100, 14, ERROR_RESOURCE_NAME_NOT_FOUND},
        {100, 77, ERROR_RESOURCE_TYPE_NOT_FOUND},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        SetLastError(0);
        EXPECT_EQ(FindResourceA(Module(), MAKEINTRESOURCEA(each.name), MAKEINTRESOURCEA(each.type)), nullptr);
        EXPECT_EQ(GetLastError(), each.error);
    }
    EXPECT_EQ(LoadResource(Module(), nullptr), nullptr);
    EXPECT_EQ(SizeofResource(Module(), nullptr), 0u);
}

TEST(Resources, IconsAndCursorsAreShared) {
    const HICON icon = LoadIconA(Module(), MAKEINTRESOURCEA(200));
    EXPECT_NE(icon, nullptr);
    EXPECT_EQ(LoadIconA(Module(), MAKEINTRESOURCEA(200)), icon);
    EXPECT_EQ(LoadIconA(Module(), MAKEINTRESOURCEA(100)), nullptr);
    EXPECT_NE(LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION)), nullptr);
    const HCURSOR arrow = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    EXPECT_NE(arrow, nullptr);
    EXPECT_EQ(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)), arrow);
    EXPECT_EQ(LoadCursorA(nullptr, MAKEINTRESOURCEA(3)), nullptr);
}

}  // namespace
