#include "customize/side_file.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "temp_folder.h"

namespace {

// The records in one line: id,kind,value; and so on.
std::string Tell(const SideFile& file) {
    std::string told = std::to_string(static_cast<int>(file.code)) + ":";
    for (const SavedValue& saved : file.values) {
        told += " " + std::to_string(saved.id) + "," + std::to_string(saved.kind) + "," +
                std::string(saved.value, static_cast<size_t>(saved.value.GetLength())) + ";";
    }
    return told;
}

SideFile Parse(const std::string& text) {
    return ParseSideFile(text.data(), text.size());
}

TEST(SideFile, WrittenForm) {
    const std::vector<SavedValue> values = {{12, 11, "10"}, {0, 11, "no number"}, {-1, 14, "x"}, {3, 14, ""}};
    EXPECT_EQ(FormatSideFile({104, -1}, values), "1\n104\n-1\n\n12\n11\n10\n\n3\n14\n\n\n");
    EXPECT_EQ(FormatSideFile({}, {}), "1\n-1\n-1\n\n");
}

TEST(SideFile, ReadForm) {
    const std::string header = "1\n2\n3\n\n";
    const std::pair<std::string, const char*> cases[] = {
        {"", "2802:"},
        {"1\n", "2803:"},
        {"1\n2\n3", "0:"},
        {header, "0:"},
        {header + "12\n11\n", "2808:"},
        {header + "12\n11\n10\n\n7\n", "2807: 12,11,10;"},
        {header + "12\nany\n10\r\n\n13\n14\n\n\n", "0: 12,0,10\r; 13,14,;"},
        {header + "0\nx\n-3\n\nword\n\n5\n14\nv\n", "0: 5,14,v;"},
        {"other\n\n\n\n5\n14\nv\n\n", "0: 5,14,v;"},
        // a value with a line end written by somebody else puts the reader out of step, in pairs of lines
        {header + "5\n14\na\nb\n\n6\n14\nc\n\n", "0: 5,14,a; 14,0,;"},
    };
    for (const auto& [text, told] : cases)
        EXPECT_EQ(Tell(Parse(text)), told) << text;
}

// What a reader of plain records makes of the file: line by line with a buffer of 512 bytes.
std::vector<int> PlainReaderIds(const std::string& text) {
    std::vector<std::string> lines;
    for (size_t at = 0; at < text.size();) {
        const size_t lf = text.find('\n', at);
        const size_t size = std::min<size_t>(511, (lf == std::string::npos ? text.size() : lf + 1) - at);
        lines.push_back(text.substr(at, size));
        at += size;
    }
    std::vector<int> ids;
    for (size_t i = 4; i < lines.size();) {
        const int id = atoi(lines[i].c_str());
        if (id > 0) ids.push_back(id);
        i += id > 0 ? 4 : 2;
    }
    return ids;
}

TEST(SideFile, ValuesBeyondALineAreKeptAndDisturbNoOther) {
    using namespace std::string_literals;
    std::string every_byte;
    for (int i = 0; i < 256; ++i)
        every_byte += static_cast<char>(i);
    for (const std::string& value :
         {"a\nb"s, std::string(510, 'x'), std::string(511, 'x'), std::string(1500, '\\'),
          std::string(3000, '\n'), "\0"s, "a\\nb\n"s, every_byte, "\n"s}) {
        const CString text(value.data(), static_cast<int>(value.size()));
        const std::vector<SavedValue> values = {
            {1, 14, "before"}, {2, 18, text}, {3, 11, "7"}, {4, 18, text}};
        const std::string written = FormatSideFile({1, 2}, values);
        const SideFile read = Parse(written);
        ASSERT_EQ(read.code, SideFileCode::Ok);
        EXPECT_EQ(Tell(read), Tell({SideFileCode::Ok, values})) << value.size();
        const bool plain = value.size() == 510;
        EXPECT_EQ(PlainReaderIds(written), plain ? (std::vector<int>{1, 2, 3, 4}) : (std::vector<int>{1, 3}));
    }
}

TEST(SideFile, PiecesWithAGapAreDropped) {
    const std::string header = "1\n2\n3\n\n";
    EXPECT_EQ(Tell(Parse(header + "-5 14 1/2\na\n-5 14 2/2\nb\n6\n11\n1\n\n")), "0: 5,14,ab; 6,11,1;");
    EXPECT_EQ(Tell(Parse(header + "-5 14 2/2\nb\n6\n11\n1\n\n")), "0: 6,11,1;");
    EXPECT_EQ(Tell(Parse(header + "-5 14 1/3\na\n-5 14 3/3\nb\n6\n11\n1\n\n")), "0: 6,11,1;");
    EXPECT_EQ(Tell(Parse(header + "-5 14 1/2\na\n-6 14 2/2\nb\n")), "0:");
}

TEST(SideFile, OnDisk) {
    TempFolder folder;
    const std::string name = folder.Name("a.brl.brlv");
    EXPECT_EQ(SideFileName(folder.Name("a.brl").c_str()), name.c_str());
    EXPECT_EQ(ReadSideFile(name.c_str()).code, SideFileCode::CannotRead);
    const std::vector<SavedValue> values = {{12, 11, "10"}};
    EXPECT_EQ(WriteSideFile(name.c_str(), {}, values), SideFileCode::Ok);
    EXPECT_EQ(folder.Read("a.brl.brlv"), "1\n-1\n-1\n\n12\n11\n10\n\n");
    EXPECT_EQ(Tell(ReadSideFile(name.c_str())), "0: 12,11,10;");
    EXPECT_EQ(WriteSideFile(folder.Name("none\\a.brlv").c_str(), {}, values), SideFileCode::CannotWrite);
    EXPECT_STREQ(SideFileMessage(SideFileCode::NoValue), "Error reading file (no type).\n(Code 2808)");
}

}  // namespace
