#include "support/lex.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace {

// A text of exactly its own size on the heap, so that a read beyond it shows under the sanitizer.
struct Text {
    explicit Text(const std::string& text)
        : bytes(new char[text.size()]),
          lex(static_cast<char*>(memcpy(bytes.get(), text.data(), text.size())),
              static_cast<long>(text.size())) {}

    std::unique_ptr<char[]> bytes;
    CLex lex;
};

using Lines = std::vector<std::string>;

template <typename Next>
Lines LinesOf(CLex& lex, Next next) {
    Lines lines;
    while (const char* line = (lex.*next)())
        lines.emplace_back(line, static_cast<size_t>(lex.getLineLen()));
    return lines;
}

TEST(LineReader, RawLines) {
    const std::pair<std::string, Lines> cases[] = {
        {"", {""}},
        {"a\r\nb", {"a\r", "b"}},
        {"a\rb\n\n", {"a\rb", "", ""}},
        {"x\ny\r\r\r", {"x", "y\r"}},
        {std::string("x\r\n\0", 4), {"x\r", std::string(1, '\0')}},
    };
    for (const auto& [bytes, lines] : cases) {
        Text text(bytes);
        EXPECT_EQ(LinesOf(text.lex, &CLex::getNextUnformLine), lines) << bytes;
        EXPECT_EQ(text.lex.getLinesNumber(), static_cast<int>(lines.size()));
    }
}

TEST(LineReader, CleanLines) {
    const std::pair<std::string, Lines> cases[] = {
        {"// c\n\t\t\n  y", {"y"}},
        {"a\r\n\r\nb\r\n", {"a\r", "\r", "b\r"}},
        {"x // y  \n /z\n /", {"x // y  ", "/z", "/"}},
    };
    for (const auto& [bytes, lines] : cases) {
        Text text(bytes);
        EXPECT_EQ(LinesOf(text.lex, &CLex::getNextLine), lines) << bytes;
    }
}

TEST(LineReader, LengthLimit) {
    const std::tuple<size_t, const char*, CLEXERR> cases[] = {
        {1022, "\n", CLEXERR_NONE},
        {1023, "\n", CLEXERR_LINE_TOO_LONG},
        {1023, "", CLEXERR_NONE},
        {1024, "", CLEXERR_LINE_TOO_LONG},
    };
    for (const auto& [length, end, error] : cases)
        EXPECT_EQ(Text(std::string(length, 'x') + end).lex.GetLastError(), error) << length << end;
    Text text(std::string(2000, 'x') + "\n" + std::string(2000, 'y'));
    text.lex.getNextUnformLine();
    EXPECT_EQ(text.lex.getLineLen(), 2000);
    text.lex.getNextUnformLine();
    EXPECT_EQ(text.lex.getLineLen(), 1024);
    text.lex.setPosAtLine(0);
    EXPECT_EQ(std::string(text.lex.getNextLine()).size(), 1024u);
}

TEST(LineReader, PositionAndPlaceInTheText) {
    Text text("ab\ncd\ne");
    CLex& lex = text.lex;
    EXPECT_EQ(lex.getCurrLine(), -1);
    EXPECT_EQ(lex.getCurrLinePos(), nullptr);
    EXPECT_EQ(lex.getPos(), 0);
    EXPECT_EQ(lex.getNextUnformLine(), text.bytes.get());
    EXPECT_EQ(lex.getCurrLine(), 0);
    EXPECT_EQ(lex.getPos(), 3);
    EXPECT_EQ(lex.setPosAtLine(3), 0);
    EXPECT_EQ(lex.setPosAtLine(-1), 0);
    EXPECT_EQ(lex.setPosAtLine(2), 1);
    EXPECT_STREQ(lex.getNextUnformLine(), "e");  // the last line is a copy
    EXPECT_EQ(lex.getCurrLinePos(), text.bytes.get() + 6);
    EXPECT_EQ(lex.getPos(), 7);
    EXPECT_EQ(lex.getNextUnformLine(), nullptr);
}

TEST(LineReader, Search) {
    // What is found as part of a word and as a whole one; null: nothing.
    const std::tuple<const char*, int, std::string, const char*, const char*> cases[] = {
        {"one\n  TWO x\nthree", 0, "two", "TWO x", "TWO x"},
        {"one\ntwo\nthree", 2, "one", "one", "one"},      // round the end
        {"one\ntwo\nthree", 1, "one", nullptr, nullptr},  // the line read last
        {"one\ntwo", 0, "longer than all", nullptr, nullptr},
        {"abc\nx\n ab y", 0, "ab", "abc", "ab y"},
        {"abc\nabd\nx", 3, "ab", "abc", nullptr},  // refused hits only
        {"x\nab\r\ny", 0, "ab", "ab\r", "ab\r"},
    };
    for (auto [bytes, from, key, part, word] : cases) {
        for (const bool whole : {false, true}) {
            Text text(bytes);
            for (int i = 0; i < from; ++i)
                text.lex.getNextUnformLine();
            const char* hit = whole ? text.lex.searchToLineEx(key.data()) : text.lex.searchToLine(key.data());
            EXPECT_STREQ(hit, whole ? word : part) << bytes << " / " << key;
            EXPECT_TRUE(hit || text.lex.getLineNum() == from) << bytes << " / " << key;
        }
    }
}

TEST(LineReader, NullText) {
    CLex lex(nullptr, 10);
    EXPECT_EQ(lex.getLinesNumber(), 1);
    EXPECT_EQ(lex.getNextUnformLine(), nullptr);
    EXPECT_EQ(lex.getNextLine(), nullptr);
}

}  // namespace
