#include <afx.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "platform/raises.h"
#include "temp_folder.h"

using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

using Lines = std::vector<std::string>;

Lines ReadLines(const TempFolder& folder, const std::string& content, UINT type) {
    folder.Write("Lines.txt", content);
    CStdioFile file;
    EXPECT_TRUE(file.Open(folder.Name("lines.TXT").c_str(), CFile::modeRead | type));
    Lines lines;
    CString line("left over");
    while (file.ReadString(line))
        lines.emplace_back(line, static_cast<size_t>(line.GetLength()));
    EXPECT_TRUE(line.IsEmpty());
    return lines;
}

TEST(StdioFile, ReadsLines) {
    const TempFolder folder;
    const std::tuple<std::string, Lines, Lines> cases[] = {
        {"", {}, {}},
        {"\r\n", {""}, {"\r"}},
        {"a\r\nb\r\n", {"a", "b"}, {"a\r", "b\r"}},
        {"a\n\n\r\nb\n", {"a", "", "", "b"}, {"a", "", "\r", "b"}},
        {"a\rb\r\r\nc\r", {"a\rb\r", "c\r"}, {"a\rb\r\r", "c\r"}},
        {std::string("a\0b\x1a\nc\x1a", 7),
         {std::string("a\0b\x1a", 4), "c\x1a"},
         {std::string("a\0b\x1a", 4), "c\x1a"}},
    };
    for (const auto& [content, text, binary] : cases) {
        EXPECT_THAT(ReadLines(folder, content, CFile::typeText), ElementsAreArray(text)) << content;
        EXPECT_THAT(ReadLines(folder, content, CFile::typeBinary), ElementsAreArray(binary)) << content;
    }
}

// A line end may fall anywhere in a buffer, a CR LF on both sides of its end.
TEST(StdioFile, ReadsLinesOfAnyLength) {
    const TempFolder folder;
    for (size_t length = 16380; length < 16390; ++length) {
        const std::string line(length, 'x');
        EXPECT_THAT(ReadLines(folder, line + "\r\ny\r\n", CFile::typeText), ElementsAre(line, "y")) << length;
    }
    const std::string line(100000, 'x');
    EXPECT_THAT(ReadLines(folder, line + "\n" + line, 0), ElementsAre(line, line));
}

TEST(StdioFile, WritesLines) {
    const TempFolder folder;
    CStdioFile file;
    ASSERT_TRUE(file.Open(folder.Name("t").c_str(), CFile::modeCreate | CFile::modeWrite | CFile::typeText));
    file.WriteString("a\nb\n\n");
    file.WriteString("c");
    file.Close();
    EXPECT_EQ(folder.Read("t"), "a\r\nb\r\n\r\nc");

    ASSERT_TRUE(file.Open(folder.Name("t").c_str(), CFile::modeWrite | CFile::typeBinary));
    file.WriteString("x\ny");
    file.Close();
    EXPECT_EQ(folder.Read("t"), "x\nyb\r\n\r\nc");
}

TEST(StdioFile, RaisesWhenItCannotGoOn) {
    const TempFolder folder;
    CStdioFile file;
    CString line;
    EXPECT_TRUE(Raises<CFileException>([&] { file.ReadString(line); }));
    for (const UINT mode : {CFile::modeRead, CFile::modeWrite})
        EXPECT_FALSE(file.Open(folder.Name("t").c_str(), mode)) << mode;
    EXPECT_FALSE(folder.Has("t"));
    folder.Write("t", "abc");
    ASSERT_TRUE(file.Open(folder.Name("t").c_str(), CFile::modeRead));
    EXPECT_TRUE(Raises<CFileException>([&] { file.WriteString("x"); }));
    file.Close();
    EXPECT_EQ(folder.Read("t"), "abc");
}

}  // namespace
