#include <afx.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

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

template <typename Call>
bool RaisesFileException(Call call) {
    try {
        call();
    } catch (CFileException* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

TEST(StdioFile, ReadsLines) {
    const TempFolder folder;
    const struct {
        std::string content;
        Lines text;
        Lines binary;
    } cases[] = {
        {"", {}, {}},
        {"\n", {""}, {""}},
        {"\r\n", {""}, {"\r"}},
        {"a\nb", {"a", "b"}, {"a", "b"}},
        {"a\r\nb\r\n", {"a", "b"}, {"a\r", "b\r"}},
        {"a\n\n\r\nb\n", {"a", "", "", "b"}, {"a", "", "\r", "b"}},
        {"a\rb\r\r\nc\r", {"a\rb\r", "c\r"}, {"a\rb\r\r", "c\r"}},
        {std::string("a\0b\x1a\nc\x1a", 7),
         {std::string("a\0b\x1a", 4), "c\x1a"},
         {std::string("a\0b\x1a", 4), "c\x1a"}},
    };
    for (const auto& c : cases) {
        EXPECT_THAT(ReadLines(folder, c.content, CFile::typeText), ElementsAreArray(c.text)) << c.content;
        EXPECT_THAT(ReadLines(folder, c.content, CFile::typeBinary), ElementsAreArray(c.binary)) << c.content;
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

TEST(StdioFile, OpensOnlyWhatIsThere) {
    const TempFolder folder;
    CStdioFile file;
    EXPECT_FALSE(file.Open(folder.Name("nosuch").c_str(), CFile::modeRead));
    EXPECT_FALSE(file.Open(folder.Name("nosuch").c_str(), CFile::modeWrite));
    EXPECT_FALSE(file.Open(folder.Name().c_str(), CFile::modeRead));
    EXPECT_FALSE(file.Open(nullptr, CFile::modeRead));
    EXPECT_FALSE(file.Open(folder.Name("nosuch").c_str(), CFile::modeCreate));
    EXPECT_FALSE(folder.Has("nosuch"));
}

TEST(StdioFile, RaisesWhenItCannotGoOn) {
    const TempFolder folder;
    CStdioFile file;
    CString line;
    EXPECT_TRUE(RaisesFileException([&] { file.ReadString(line); }));
    EXPECT_TRUE(RaisesFileException([&] { file.WriteString("x"); }));
    file.Close();
    folder.Write("t", "abc");
    ASSERT_TRUE(file.Open(folder.Name("t").c_str(), CFile::modeRead));
    EXPECT_TRUE(RaisesFileException([&] { file.WriteString("x"); }));
    ASSERT_TRUE(file.Open(folder.Name("t").c_str(), CFile::modeWrite));
    EXPECT_TRUE(RaisesFileException([&] { file.ReadString(line); }));
    file.Close();
    EXPECT_EQ(folder.Read("t"), "abc");
}

}  // namespace
