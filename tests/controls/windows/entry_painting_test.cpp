#include <gtest/gtest.h>

#include <filesystem>

#include "controls/images/image_bytes.h"
#include "controls/toolkit_gdi.h"
#include "controls/windows/panel.h"
#include "host/folder_host.h"
#include "temp_folder.h"

namespace {

// How many pixels of a row differ from the face colour.
int MarksIn(CWnd& window, int row, int width) {
    int marks = 0;
    for (int x = 0; x < width; ++x)
        marks += Pixel(window, x, row) != g_colorFace;
    return marks;
}

TEST(EntryPainting, SectionsAreUnderlinedByAnEtchedLine) {
    Panel panel("// section: Moves\n// section:\n");
    const int width = panel.Width() - 8;
    const std::string labels[] = {"Moves", ""};
    for (size_t i = 0; i < 2; ++i) {
        SCOPED_TRACE(labels[i]);
        CEntryWnd& section = panel.Control(i);
        const auto length = static_cast<int>(labels[i].size());
        const int line =
            static_cast<int>(Measured(panel.Window(), labels[i].c_str(), length, FW_BOLD).cy) + 1;
        EXPECT_EQ(section.GetHeight(), line + 2);
        for (const int x : {0, width / 2, width - 2}) {
            EXPECT_EQ(Pixel(section, x, line), g_colorShadow) << x;
            EXPECT_EQ(Pixel(section, x, line + 1), g_colorLight) << x;
        }
        int marks = 0;
        for (int row = 0; row < line; ++row)
            marks += MarksIn(section, row, width);
        EXPECT_EQ(marks > 20, length > 0);
    }
}

TEST(EntryPainting, LabelsStandAtTheTopLeftInTheirWeight) {
    Panel panel("// title: MMMM\n// text: MMMM\n// text:\n");
    int marks[3] = {};
    for (size_t i = 0; i < 3; ++i) {
        CEntryWnd& line = panel.Control(i);
        for (int row = 0; row < line.GetHeight(); ++row)
            marks[i] += MarksIn(line, row, panel.Width() - 8);
        const int width = static_cast<int>(Measured(panel.Window(), "MMMM", 4, FW_BOLD).cx);
        EXPECT_EQ(Pixel(line, width + 5, line.GetHeight() / 2), g_colorFace);
    }
    EXPECT_GT(marks[0], marks[1]);
    EXPECT_GT(marks[1], 0);
    EXPECT_EQ(marks[2], 0);
}

// Two by three pixels; rows from the bottom, in blue, green and red, each filled up to four bytes.
std::string TrueColour() {
    return "BM" + std::string(8, 0) + Number(54, 4) + Number(40, 4) + Number(2, 4) + Number(3, 4) +
           Number(1, 2) + Number(24, 2) + std::string(24, 0) + Bytes({1, 2, 3, 4, 5, 6, 0, 0}) +
           Bytes({11, 12, 13, 14, 15, 16, 0, 0}) + Bytes({21, 22, 23, 24, 25, 26, 0, 0});
}

// One row of five pixels with two colours.
std::string WithPalette() {
    return "BM" + std::string(8, 0) + Number(62, 4) + Number(40, 4) + Number(5, 4) + Number(1, 4) +
           Number(1, 2) + Number(8, 2) + std::string(16, 0) + Number(2, 4) + std::string(4, 0) +
           Bytes({10, 20, 30, 0, 40, 50, 60, 0}) + Bytes({0, 1, 1, 0, 1, 0, 0, 0});
}

TEST(EntryPainting, PicturesAreShownPixelByPixel) {
    const TempFolder folder;
    folder.Write("true.bmp", TrueColour());
    folder.Write("few.bmp", WithPalette());
    Panel panel("// image: " + folder.Name("true.bmp") + "\n// image: " + folder.Name("few.bmp") + "\n");
    const struct {
        size_t entry;
        int x, y;
        COLORREF color;
    } rows[] = {{0, 0, 0, RGB(23, 22, 21)}, {0, 1, 0, RGB(26, 25, 24)}, {0, 0, 2, RGB(3, 2, 1)},
                {0, 1, 2, RGB(6, 5, 4)},    {1, 0, 0, RGB(30, 20, 10)}, {1, 1, 0, RGB(60, 50, 40)},
                {1, 4, 0, RGB(60, 50, 40)}};
    for (const auto& row : rows)
        EXPECT_EQ(Pixel(panel.Control(row.entry), row.x, row.y), row.color) << row.entry << row.x << row.y;
    EXPECT_EQ(panel.Control(0).GetHeight(), 3);
    EXPECT_EQ(panel.Control(1).GetHeight(), 1);
}

// A host whose search folders are those of the test.
class HostOfFolders {
public:
    explicit HostOfFolders(std::vector<std::string> folders) : host_(Project(std::move(folders))) {
        g_appInterface = host_.App();
    }
    HostOfFolders(const HostOfFolders&) = delete;
    HostOfFolders& operator=(const HostOfFolders&) = delete;
    ~HostOfFolders() { g_appInterface = nullptr; }

private:
    static HostProject Project(std::vector<std::string> folders) {
        HostProject project;
        project.searchFolders = std::move(folders);
        return project;
    }

    FolderHost host_;
};

TEST(EntryPainting, PicturesAreLookedForWhereTheHostSearches) {
    const TempFolder folder;
    std::filesystem::create_directories(folder.Path("b"));
    folder.Write("b/true.bmp", TrueColour());
    folder.Write("b/wall.txt", "no picture");
    const HostOfFolders host({folder.Name("a"), folder.Name("b")});
    const std::pair<const char*, int> rows[] = {
        {"true.bmp", 3}, {"nosuch.bmp", 24}, {"wall.txt", 1}, {"b\\true.bmp", 24}};
    for (const auto& [name, height] : rows) {
        Panel panel(std::string("// image: ") + name + "\n");
        EXPECT_EQ(panel.Control(0).GetHeight(), height) << name;
    }
    const HostOfFolders without({});
    Panel panel("// image: true.bmp\n");
    EXPECT_EQ(panel.Control(0).GetHeight(), 1);
}

TEST(EntryPainting, PictureThatNobodyHasKeepsTheRoom) {
    Panel panel("// image: no such picture.bmp\n// text: below\n");
    EXPECT_EQ(panel.Control(0).GetHeight(), 24);
    EXPECT_EQ(MarksIn(panel.Control(0), 0, panel.Width() - 8), 0);
}

}  // namespace
