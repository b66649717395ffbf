#include <windows.h>
// behind the header of windows
#include <commdlg.h>
#include <direct.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>

#include "current_folder.h"
#include "modal_driver.h"
#include "temp_folder.h"

namespace {

constexpr char kFilter[] = "Text (*.txt)\0*.txt\0All\0*.*\0";

class FileDialogTest : public testing::Test {
protected:
    FileDialogTest() : initial_(folder_.Name("files")) {
        std::filesystem::create_directories(folder_.Path("files/sub"));
        for (const char* const name :
             {"above.txt", "files/a.txt", "files/c.bin", "files/noext", "files/sub/s.txt"})
            folder_.Write(name, "x");
        record_.lStructSize = sizeof record_;
        record_.lpstrFilter = kFilter;
        record_.lpstrFile = path_;
        record_.nMaxFile = sizeof path_;
        record_.lpstrFileTitle = title_;
        record_.nMaxFileTitle = sizeof title_;
        record_.lpstrInitialDir = initial_.c_str();
        record_.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR;
    }

    static ModalDriver::Step Type(const char* name) {
        return {"Open", [name](HWND dialog) {
                    SetDlgItemTextA(dialog, cmb13, name);
                    Click(dialog, IDOK);
                }};
    }
    static ModalDriver::Step Cancel() {
        return {"Open", [](HWND dialog) { Click(dialog, IDCANCEL); }};
    }
    // The box that says why a name is not taken.
    static ModalDriver::Step Complaint(const char* caption, const char* text) {
        return {"", [caption, text](HWND box) {
                    EXPECT_EQ(GetDlgItem(box, cmb13), nullptr) << "no message box";
                    EXPECT_EQ(TextOf(box), caption);
                    EXPECT_EQ(ItemText(box, 0xFFFF).find(text), 0u) << ItemText(box, 0xFFFF);
                    Click(box, IDOK);
                }};
    }

    bool Open(std::vector<ModalDriver::Step> steps) {
        ModalDriver driver(std::move(steps));
        return GetOpenFileNameA(&record_) != FALSE;
    }
    std::string In(const char* name) const { return folder_.Name(name); }

    TempFolder folder_;
    std::string initial_;
    char path_[MAX_PATH] = "";
    char title_[64] = "";
    OPENFILENAMEA record_ = {};
};

TEST_F(FileDialogTest, NamesThatAreTaken) {
    const std::string absolute = In("above.txt");
    const struct {
        std::string typed;
        std::string path;
        std::string title;
        int extension;  // within the title
    } cases[] = {
        {"c.bin", In("files\\c.bin"), "c.bin", 2},     {"A.TXT", In("files\\A.TXT"), "A.TXT", 2},
        {"\"a.txt\"", In("files\\a.txt"), "a.txt", 2}, {"sub\\s.txt", In("files\\sub\\s.txt"), "s.txt", 2},
        {"..\\above.txt", absolute, "above.txt", 6},   {absolute, absolute, "above.txt", 6},
        {"noext", In("files\\noext"), "noext", 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        *path_ = 0;
        EXPECT_TRUE(Open({Type(each.typed.c_str())}));
        EXPECT_EQ(path_, each.path);
        EXPECT_EQ(title_, each.title);
        const size_t offset = each.path.size() - each.title.size();
        EXPECT_EQ(record_.nFileOffset, offset);
        EXPECT_EQ(record_.nFileExtension, each.extension ? offset + static_cast<size_t>(each.extension) : 0);
        EXPECT_EQ(CommDlgExtendedError(), 0u);
    }
}

TEST_F(FileDialogTest, NamesThatAreRefusedLeaveItOpen) {
    constexpr char kBadName[] = "Invalid character(s) in path";
    const struct {
        const char* typed;
        DWORD flags;
        const char* caption;
        const char* text;
    } cases[] = {
        {"none.txt", OFN_FILEMUSTEXIST, "", "File does not exist"},
        {"a", OFN_FILEMUSTEXIST, "", "File does not exist"},
        {"none\\a.txt", OFN_PATHMUSTEXIST, "", "Path does not exist"},
        {"a<b.txt", OFN_FILEMUSTEXIST, kBadName, "A filename cannot contain"},
        {"sub/s.txt", OFN_FILEMUSTEXIST, kBadName, "A filename cannot contain"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.typed);
        record_.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | each.flags;
        *path_ = 0;
        const ModalDriver::Step again = {"Open", [&each](HWND dialog) {
                                             EXPECT_EQ(ItemText(dialog, cmb13), each.typed);
                                             Click(dialog, IDCANCEL);
                                         }};
        EXPECT_FALSE(Open({Type(each.typed), Complaint(each.caption, each.text), again}));
        EXPECT_STREQ(path_, "");
        EXPECT_EQ(CommDlgExtendedError(), 0u);
    }
}

TEST_F(FileDialogTest, NamesOfNothingAreTakenWithoutTheMustFlags) {
    record_.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    EXPECT_TRUE(Open({Type("none.dat")}));
    EXPECT_EQ(path_, In("files\\none.dat"));
    EXPECT_TRUE(Open({Type("nowhere\\none.dat")}));
    EXPECT_EQ(path_, In("files\\nowhere\\none.dat"));
}

TEST_F(FileDialogTest, FoldersAndPatternsAreGoneIntoNotChosen) {
    const auto then = [](const char* shown, const char* name) -> ModalDriver::Step {
        return {"Open", [shown, name](HWND dialog) {
                    EXPECT_EQ(ItemText(dialog, cmb13), shown);
                    SetDlgItemTextA(dialog, cmb13, name);
                    Click(dialog, IDOK);
                }};
    };
    EXPECT_TRUE(Open({Type("sub"), then("", "s.txt")}));
    EXPECT_EQ(path_, In("files\\sub\\s.txt"));
    *path_ = 0;
    EXPECT_TRUE(Open({Type("sub\\"), then("", "..\\a.txt")}));
    EXPECT_EQ(path_, In("files\\a.txt"));
    *path_ = 0;
    EXPECT_TRUE(Open({Type(".."), then("", "above.txt")}));
    EXPECT_EQ(path_, In("above.txt"));
    *path_ = 0;
    EXPECT_TRUE(Open({Type("*.bin"), then("*.bin", ""), then("", "c.bin")}));
    EXPECT_EQ(path_, In("files\\c.bin"));
}

TEST_F(FileDialogTest, BeginsWithTheNameOfTheRecord) {
    std::strcpy(path_, In("files\\sub\\s.txt").c_str());
    record_.lpstrInitialDir = nullptr;
    EXPECT_TRUE(Open({{"Open", [](HWND dialog) {
                           EXPECT_EQ(ItemText(dialog, cmb13), "s.txt");
                           Click(dialog, IDOK);
                       }}}));
    EXPECT_EQ(path_, In("files\\sub\\s.txt"));
}

TEST_F(FileDialogTest, FilterIndexOutOfRangeIsTheFirst) {
    for (const DWORD index : {0u, 1u, 2u, 9u}) {
        SCOPED_TRACE(index);
        record_.nFilterIndex = index;
        *path_ = 0;
        const DWORD used = index == 2 ? 2 : 1;
        EXPECT_TRUE(Open({{"Open", [used](HWND dialog) {
                               EXPECT_EQ(SendDlgItemMessageA(dialog, cmb1, CB_GETCURSEL, 0, 0),
                                         static_cast<LRESULT>(used) - 1);
                               SetDlgItemTextA(dialog, cmb13, "c.bin");
                               Click(dialog, IDOK);
                           }}}));
        EXPECT_EQ(record_.nFilterIndex, used);
    }
}

TEST_F(FileDialogTest, ShortBufferIsTold) {
    record_.nMaxFile = 6;
    EXPECT_FALSE(Open({Type("a.txt")}));
    EXPECT_EQ(CommDlgExtendedError(), DWORD{FNERR_BUFFERTOOSMALL});
    WORD needed = 0;
    std::memcpy(&needed, path_, sizeof needed);
    EXPECT_EQ(needed, In("files\\a.txt").size() + 1);
    record_.nMaxFile = sizeof path_;
    *path_ = 0;
    EXPECT_FALSE(Open({Cancel()}));
    EXPECT_EQ(CommDlgExtendedError(), 0u) << "of the call before";
}

TEST_F(FileDialogTest, CurrentFolderChangesUnlessToldNotTo) {
    const CurrentFolder before(folder_.Name());
    EXPECT_TRUE(Open({Type("a.txt")}));
    EXPECT_EQ(CurrentFolder::Name(), folder_.Name());
    record_.Flags &= ~DWORD{OFN_NOCHANGEDIR};
    *path_ = 0;
    EXPECT_TRUE(Open({Type("a.txt")}));
    EXPECT_EQ(CurrentFolder::Name(), In("files"));
}

}  // namespace
