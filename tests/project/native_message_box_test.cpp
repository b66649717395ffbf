#include <gtest/gtest.h>
#include <windows.h>

namespace {

// Nobody can press a button of the stand-in.
TEST(NativeMessageBox, IsRefusedWhenNobodyAnswers) {
    EXPECT_EQ(IDOK, MessageBoxA(nullptr, "text", nullptr, MB_OK | MB_ICONHAND));
    EXPECT_EQ(IDCANCEL, MessageBoxA(nullptr, "text", nullptr, MB_OKCANCEL));
    EXPECT_EQ(IDNO, MessageBoxA(nullptr, "text", nullptr, MB_YESNO));
    EXPECT_EQ(IDCANCEL, MessageBoxA(nullptr, "text", nullptr, MB_YESNOCANCEL));
    EXPECT_EQ(IDABORT, MessageBoxA(nullptr, "text", nullptr, MB_ABORTRETRYIGNORE));
    EXPECT_EQ(IDCANCEL, MessageBoxA(nullptr, nullptr, nullptr, MB_RETRYCANCEL));
}

}  // namespace
