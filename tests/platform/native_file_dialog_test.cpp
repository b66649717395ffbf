#include <windows.h>
// behind the header of windows
#include <commdlg.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "modal_driver.h"
#include "resource_count.h"
#include "temp_folder.h"

// The list of the file dialog is a list box here, and a view of the shell under Windows.

namespace {

std::string ListOf(HWND dialog) {
    std::string lines;
    const LRESULT count = SendDlgItemMessageA(dialog, lst1, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        char line[MAX_PATH] = {};
        SendDlgItemMessageA(dialog, lst1, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(line));
        lines += line + std::string(" ");
    }
    return lines;
}

void Choose(HWND dialog, int line, int code) {
    SendDlgItemMessageA(dialog, lst1, LB_SETCURSEL, static_cast<WPARAM>(line), 0);
    SetFocus(GetDlgItem(dialog, lst1));
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(lst1, code),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, lst1)));
}

TEST(NativeFileDialog, ListFollowsFolderAndFilter) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.Path("sub"));
    for (const char* const name : {"b.txt", "a.TXT", "c.bin", "sub/s.txt"})
        folder.Write(name, "x");
    const std::string initial = folder.Name();
    char path[MAX_PATH] = "";
    OPENFILENAMEA record = {};
    record.lStructSize = sizeof record;
    record.lpstrFile = path;
    record.nMaxFile = sizeof path;
    record.lpstrFilter = "Text\0*.txt\0Both\0*.txt;*.bin\0";
    record.lpstrInitialDir = initial.c_str();
    record.Flags = OFN_EXPLORER | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR;
    ModalDriver driver({{"Open", [](HWND dialog) {
                             EXPECT_EQ(ListOf(dialog), "[..] [sub] a.TXT b.txt ");
                             SendDlgItemMessageA(dialog, cmb1, CB_SETCURSEL, 1, 0);
                             SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(cmb1, CBN_SELCHANGE),
                                          reinterpret_cast<LPARAM>(GetDlgItem(dialog, cmb1)));
                             EXPECT_EQ(ListOf(dialog), "[..] [sub] a.TXT b.txt c.bin ");
                             Choose(dialog, 4, LBN_SELCHANGE);
                             EXPECT_EQ(ItemText(dialog, cmb13), "c.bin");
                             Choose(dialog, 1, LBN_SELCHANGE);
                             EXPECT_EQ(ItemText(dialog, cmb13), "c.bin") << "a folder is no name";
                             Choose(dialog, 1, LBN_DBLCLK);
                             EXPECT_EQ(ListOf(dialog), "[..] s.txt ");
                             EXPECT_EQ(ItemText(dialog, cmb13), "");
                             Choose(dialog, 1, LBN_SELCHANGE);
                             Choose(dialog, 1, LBN_DBLCLK);
                         }}});
    EXPECT_TRUE(GetOpenFileNameA(&record));
    EXPECT_EQ(path, folder.Name("sub\\s.txt"));
    EXPECT_EQ(record.nFilterIndex, 2u);
}

TEST(NativeFileDialog, BadRecordsAreRefused) {
    OPENFILENAMEA record = {};
    EXPECT_FALSE(GetOpenFileNameA(nullptr));
    EXPECT_FALSE(GetOpenFileNameA(&record));
    EXPECT_EQ(CommDlgExtendedError(), CDERR_STRUCTSIZE);
    record.lStructSize = sizeof record;
    EXPECT_FALSE(GetOpenFileNameA(&record));
    EXPECT_EQ(CommDlgExtendedError(), CDERR_INITIALIZATION);
    EXPECT_EQ(MessageBoxA(reinterpret_cast<HWND>(0x7654), "Text", "Caption", MB_OK), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_WINDOW_HANDLE);
}

TEST(NativeFileDialog, NothingIsLeftBehind) {
    const ResourceCount before = CountResources();
    {
        char path[MAX_PATH] = "";
        OPENFILENAMEA record = {};
        record.lStructSize = sizeof record;
        record.lpstrFile = path;
        record.nMaxFile = sizeof path;
        ModalDriver driver({{"Open", [](HWND dialog) { Click(dialog, IDCANCEL); }}});
        EXPECT_FALSE(GetOpenFileNameA(&record));
    }
    EXPECT_EQ(CountResources(), before);
}

}  // namespace
