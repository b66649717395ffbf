#include "support/lex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

// A text of exactly its own size on the heap, so that a read beyond it shows under the sanitizer.
class Text {
public:
    explicit Text(const std::string& bytes) : bytes_(new char[bytes.size()]), lex(Fill(bytes), Size(bytes)) {}
    const char* Data() const { return bytes_.get(); }

private:
    static long Size(const std::string& bytes) { return static_cast<long>(bytes.size()); }
    const char* Fill(const std::string& bytes) {
        std::copy(bytes.begin(), bytes.end(), bytes_.get());
        return bytes_.get();
    }

    std::unique_ptr<char[]> bytes_;

public:
    CLex lex;
};

std::vector<std::string> RawLines(CLex& lex) {
    std::vector<std::string> lines;
    while (const char* line = lex.getNextUnformLine())
        lines.emplace_back(line, static_cast<size_t>(lex.getLineLen()));
    return lines;
}

std::vector<std::string> CleanLines(CLex& lex) {
    std::vector<std::string> lines;
    while (const char* line = lex.getNextLine()) {
        EXPECT_EQ(line[lex.getLineLen()], '\0');
        lines.emplace_back(line, static_cast<size_t>(lex.getLineLen()));
    }
    return lines;
}

TEST(LineReader, RawLines) {
    const struct {
        std::string text;
        std::vector<std::string> lines;
    } cases[] = {
        {"", {""}},
        {"a\nb\n", {"a", "b", ""}},
        {"a\r\nb", {"a\r", "b"}},
        {"\n\n", {"", "", ""}},
        {"a\rb\n", {"a\rb", ""}},
        {"x\ny\r", {"x", "y"}},
        {"x\ny\r\r\r", {"x", "y\r"}},
        {std::string("x\r\n\0", 4), {"x\r", std::string(1, '\0')}},
    };
    for (const auto& c : cases) {
        Text text(c.text);
        EXPECT_EQ(RawLines(text.lex), c.lines) << c.text;
        EXPECT_EQ(text.lex.getLinesNumber(), static_cast<int>(c.lines.size()));
    }
}

TEST(LineReader, RawLinesPointIntoTheTextButTheLast) {
    Text text("ab\ncd\nef");
    EXPECT_EQ(text.lex.getNextUnformLine(), text.Data());
    EXPECT_EQ(text.lex.getNextUnformLine(), text.Data() + 3);
    const char* last = text.lex.getNextUnformLine();
    EXPECT_STREQ(last, "ef");
    EXPECT_NE(last, text.Data() + 6);
    EXPECT_EQ(text.lex.getCurrLinePos(), text.Data() + 6);
}

TEST(LineReader, CleanLines) {
    const struct {
        std::string text;
        std::vector<std::string> lines;
    } cases[] = {
        {"// c\n\t\t\n  y", {"y"}},
        {"a\r\n\r\nb\r\n", {"a\r", "\r", "b\r"}},
        {"x // y  \n /z\n /", {"x // y  ", "/z", "/"}},
    };
    for (const auto& c : cases) {
        Text text(c.text);
        EXPECT_EQ(CleanLines(text.lex), c.lines) << c.text;
    }
}

TEST(LineReader, LengthLimit) {
    const struct {
        size_t length;
        const char* end;
        CLEXERR error;
    } cases[] = {
        {1022, "\n", CLEXERR_NONE},
        {1023, "\n", CLEXERR_LINE_TOO_LONG},
        {1023, "", CLEXERR_NONE},
        {1024, "", CLEXERR_LINE_TOO_LONG},
    };
    for (const auto& c : cases) {
        Text text(std::string(c.length, 'x') + c.end);
        EXPECT_EQ(text.lex.GetLastError(), c.error) << c.length << c.end;
    }
    Text text(std::string(2000, 'x') + "\n" + std::string(2000, 'y'));
    text.lex.getNextUnformLine();
    EXPECT_EQ(text.lex.getLineLen(), 2000);
    text.lex.getNextUnformLine();
    EXPECT_EQ(text.lex.getLineLen(), 1024);
    text.lex.setPosAtLine(0);
    EXPECT_EQ(std::string(text.lex.getNextLine()).size(), 1024u);
}

TEST(LineReader, Position) {
    Text text("ab\ncd\ne");
    CLex& lex = text.lex;
    EXPECT_EQ(lex.getCurrLine(), -1);
    EXPECT_EQ(lex.getCurrLinePos(), nullptr);
    EXPECT_EQ(lex.getPos(), 0);
    lex.getNextUnformLine();
    EXPECT_EQ(lex.getCurrLine(), 0);
    EXPECT_EQ(lex.getPos(), 3);
    EXPECT_EQ(lex.setPosAtLine(3), 0);
    EXPECT_EQ(lex.setPosAtLine(-1), 0);
    EXPECT_EQ(lex.getLineNum(), 1);
    EXPECT_EQ(lex.setPosAtLine(2), 1);
    EXPECT_STREQ(lex.getNextUnformLine(), "e");
    EXPECT_EQ(lex.getPos(), 7);
    EXPECT_EQ(lex.getNextUnformLine(), nullptr);
}

TEST(LineReader, Search) {
    const struct {
        const char* text;
        int from;
        const char* key;
        const char* hit;    // null: none
        const char* whole;  // the same for whole words
    } cases[] = {
        {"one\n  TWO x\nthree", 0, "two", "TWO x", "TWO x"},
        {"one\ntwo\nthree", 2, "one", "one", "one"},      // round the end
        {"one\ntwo\nthree", 1, "one", nullptr, nullptr},  // the line read last
        {"one\ntwo", 0, "longer than all", nullptr, nullptr},
        {"abc\nx\n ab y", 0, "ab", "abc", "ab y"},
        {"abc\nabd\nx", 0, "ab", "abc", nullptr},  // refused hits only
        {"abc\nabd\nx", 3, "ab", "abc", nullptr},
        {"x\nab", 0, "ab", "ab", "ab"},
        {"x\nab\r\ny", 0, "ab", "ab\r", "ab\r"},
    };
    for (const auto& c : cases) {
        std::string key = c.key;
        for (const bool whole : {false, true}) {
            Text text(c.text);
            for (int i = 0; i < c.from; ++i)
                text.lex.getNextUnformLine();
            const char* hit = whole ? text.lex.searchToLineEx(key.data()) : text.lex.searchToLine(key.data());
            const char* expected = whole ? c.whole : c.hit;
            if (expected == nullptr) {
                EXPECT_EQ(hit, nullptr) << c.text << " / " << key;
                EXPECT_EQ(text.lex.getLineNum(), c.from) << c.text << " / " << key;
            } else {
                ASSERT_NE(hit, nullptr) << c.text << " / " << key;
                EXPECT_STREQ(hit, expected);
            }
        }
    }
}

TEST(LineReader, NullText) {
    CLex lex(nullptr, 10);
    EXPECT_EQ(lex.getLinesNumber(), 1);
    EXPECT_EQ(lex.getNextUnformLine(), nullptr);
    EXPECT_EQ(lex.getNextLine(), nullptr);
}

TEST(LineReader, ManyLines) {
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += std::to_string(i) + "\n";
    Text text(bytes);
    EXPECT_EQ(text.lex.getLinesNumber(), 5001);
    text.lex.setPosAtLine(4999);
    const char* line = text.lex.getNextUnformLine();
    EXPECT_EQ(std::string(line, static_cast<size_t>(text.lex.getLineLen())), "4999");
}

}  // namespace
