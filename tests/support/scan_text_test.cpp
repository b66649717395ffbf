#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <string>

#include "support/lex.h"
#include "support/number_text.h"

namespace {

// How many bytes a reading function went on, -1 for null.
long Went(const char* from, const char* to) {
    return to == nullptr ? -1 : static_cast<long>(to - from);
}

TEST(NumberText, ParseInt) {
    const struct {
        const char* text;
        int value;
    } cases[] = {
        {"", 0},
        {" 12x", 12},
        {"-7", -7},
        {"+7", 7},
        {"- 7", 0},
        {"x", 0},
        {"007", 7},
        {"2147483647", INT_MAX},
        {"2147483648", INT_MAX},
        {"-2147483648", INT_MIN},
        {"-99999999999999999999", INT_MIN},
        {"99999999999999999999", INT_MAX},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ParseInt(c.text, strlen(c.text)), c.value) << c.text;
    EXPECT_EQ(ParseInt("123", 2), 12);
}

TEST(NumberText, ParseDouble) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"", 0},
        {" 1.5x", 1.5},
        {"-.5", -0.5},
        {"+2", 2},
        {".", 0},
        {"1e3", 1000},
        {"1e", 1},
        {"inf", 0},
        {"nan", 0},
        {"0x10", 0},
        {"1,5", 1},
        {"1e999", 1.7976931348623157e308},
        {"-1e999", -1.7976931348623157e308},
        {"1e-999", 0},
        {"0e999", 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ParseDouble(c.text, strlen(c.text)), c.value) << c.text;
}

TEST(ScanText, Numbers) {
    const struct {
        const char* text;
        long went;
        int value;
    } ints[] = {{" -5x", 3, -5}, {"+5", -1, 99}, {"", -1, 99}, {"-", -1, 99}, {"4294967295", 10, INT_MAX}};
    for (const auto& c : ints) {
        int value = 99;
        EXPECT_EQ(Went(c.text, CLex::ScanIntValue(c.text, value)), c.went) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    const struct {
        const char* text;
        long went;
        double value;
    } doubles[] = {
        {"5.", 2, 5.0},
        {"-1.25e3", 5, -1.25},
        {".5", -1, 99},
        {"\t2", 2, 2},
        {"+1", -1, 99},
        {"1.1234567891", 12, 1.123456789},
        {"99999999999", 11, 4294967295.0},
    };
    for (const auto& c : doubles) {
        double value = 99;
        EXPECT_EQ(Went(c.text, CLex::ScanDoubleValue(c.text, value)), c.went) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
        float single = 99;
        EXPECT_EQ(Went(c.text, CLex::ScanFloatValue(c.text, single)), c.went) << c.text;
        EXPECT_EQ(single, static_cast<float>(c.value)) << c.text;
    }
    int none = 1;
    EXPECT_EQ(CLex::ScanIntValue(nullptr, none), nullptr);
}

TEST(ScanText, IsDigit) {
    EXPECT_EQ(CLex::IsDigit("-12", 3), 1);
    EXPECT_EQ(CLex::IsDigit("-", 1), 1);
    EXPECT_EQ(CLex::IsDigit("12x", 2), 1);
    EXPECT_EQ(CLex::IsDigit("12x", 3), 0);
    EXPECT_EQ(CLex::IsDigit("1", 0), 0);
    EXPECT_EQ(CLex::IsDigit(nullptr, 1), 0);
    long value = 5;
    int size = 5;
    EXPECT_EQ(CLex::IsDigit("-", &value, &size), 0);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(CLex::IsDigit("+12x", &value, &size), 1);
    EXPECT_EQ(value, 12);
    EXPECT_EQ(size, 3);
    EXPECT_EQ(CLex::IsDigit("7", nullptr, nullptr), 1);
}

TEST(ScanText, FormatFloat) {
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {3.14, "3.14"}, {3, "3"},     {0.5, "0.5"},    {100, "100"}, {0, "0"},
        {1.05, "1.05"}, {-0.0, "-0"}, {-2.50, "-2.5"}, {1e-7, "0"},  {123456.7890625, "123456.789062"}};
    for (const auto& c : cases) {
        char text[400];
        EXPECT_STREQ(CLex::FormatFloat(text, c.value), c.text);
    }
}

TEST(ScanText, Bits) {
    const struct {
        const char* text;
        long went;
        unsigned long value;
    } cases[] = {{"'101'", 5, 5},
                 {"''", 2, 0},
                 {"' 11 ' x", 6, 3},
                 {"101", -1, 0},
                 {"'1111111111111111111111111111111111'", -1, 0}};
    for (const auto& c : cases) {
        unsigned long value = 9;
        EXPECT_EQ(Went(c.text, CLex::ScanBinValue(c.text, value)), c.went) << c.text;
        EXPECT_EQ(value, c.value) << c.text;
    }
    EXPECT_EQ(CLex::BinToLong("1x1 \n"), 1u);
    EXPECT_EQ(CLex::BinToLong(nullptr), 0u);
    EXPECT_EQ(CLex::BinToLong("100000000000000000000000000000001"), 1u);
    char bits[33];
    EXPECT_STREQ(CLex::LongToBin(bits, 0), "0000");
    EXPECT_STREQ(CLex::LongToBin(bits, 255), "11111111");
    EXPECT_EQ(strlen(CLex::LongToBin(bits, 256)), 16u);
    EXPECT_EQ(strlen(CLex::LongToBin(bits, 65536)), 32u);
    EXPECT_EQ(std::string(CLex::LongToBin(bits, -1)), std::string(32, '1'));
}

TEST(ScanText, DelimitedStrings) {
    const struct {
        const char* text;
        int size;
        long went;
        const char* content;
        int length;
    } cases[] = {
        {" \" ab \"", 10, 7, "ab", 2},  {"\"x\"", 10, 3, "x", 1},   {"\"\"y", 10, 2, "old", 0},
        {"\"   \"", 10, 5, "old", 0},   {"\"abc\"", 3, 5, "ab", 3}, {"\"abc\"", 1, 5, "old", 3},
        {"\"a\nb\"", 10, 5, "a\nb", 3}, {"abc", 10, -1, "old", -7}, {"\"abc", 10, -1, "old", -7},
        {"\"", 10, -1, "old", -7},
    };
    for (const auto& c : cases) {
        char dest[16] = "old";
        int length = -7;
        EXPECT_EQ(Went(c.text, CLex::GetString(c.text, '"', dest, '"', c.size, length)), c.went) << c.text;
        EXPECT_STREQ(dest, c.content) << c.text;
        EXPECT_EQ(length, c.length) << c.text;
    }
    char word[8] = "old";
    int length = 0;
    EXPECT_EQ(Went("  ab\tc d", CLex::GetString("  ab\tc d", word, 8, length)), -1 + 7);
    EXPECT_STREQ(word, "ab\tc");
    EXPECT_EQ(length, 5);
    EXPECT_EQ(CLex::GetString("  ", word, 8, length), nullptr);
    const char* const text = "abcd";
    EXPECT_EQ(Went(text, CLex::GetString(text, word, 3, length)), 2);
    EXPECT_STREQ(word, "ab");
    char ch = 'x';
    EXPECT_EQ(CLex::NextChar("  ", ch), nullptr);
    EXPECT_EQ(ch, '\0');
}

// The buffers come from array new and are handed back the same way.
TEST(ScanText, TokensIntoSharedBuffers) {
    char* token = nullptr;
    int length = -1;
    int size = 0;
    const char* const text = ":abcd\n efghi ";
    EXPECT_EQ(Went(text, CLex::GetToken(text, token, length, size, ":")), 7);
    EXPECT_STREQ(token, "abcd");
    EXPECT_EQ(size, 5);
    const char* const kept = token;
    CLex::GetToken("wxyz", token, length, size, nullptr);
    EXPECT_EQ(token, kept);
    EXPECT_EQ(CLex::GetToken("efghi", token, length, size, nullptr), nullptr);
    EXPECT_STREQ(token, "efghi");
    EXPECT_EQ(size, 6);
    EXPECT_EQ(CLex::GetToken(" \n", token, length, size, nullptr), nullptr);
    EXPECT_STREQ(token, "");
    EXPECT_EQ(length, 0);
    delete[] token;

    std::unique_ptr<char[]> owner;
    char* group = nullptr;
    size = 0;
    EXPECT_EQ(CLex::GetTokenGroup("a b", 3, group, length, size), nullptr);
    EXPECT_STREQ(group, "");
    EXPECT_EQ(size, 4);
    const char* const words = "a\tbc  d";
    EXPECT_EQ(Went(words, CLex::GetTokenGroup(words, 2, group, length, size)), 6);
    EXPECT_STREQ(group, "a bc");
    EXPECT_EQ(length, 4);
    EXPECT_EQ(CLex::GetTokenGroup(words, 3, group, length, size), nullptr);
    EXPECT_STREQ(group, "a bc d");
    EXPECT_EQ(CLex::GetTokenGroup(words, 0, group, length, size), words);
    owner.reset(group);
}

TEST(ScanText, TokenPositions) {
    const char* const text = "a,\n bc d";
    EXPECT_EQ(Went(text, CLex::GetTokenPos(text, 1, ",")), 4);
    EXPECT_EQ(Went(text, CLex::GetTokenPos(text, 3, ",")), -1);
    int size = 42;
    EXPECT_EQ(Went(text, CLex::GetTokenPos(text, 1, size)), 4);
    EXPECT_EQ(size, 2);
    EXPECT_EQ(CLex::GetTokenPos("", 0, size), nullptr);
    EXPECT_EQ(size, 2);
    EXPECT_EQ(CLex::GetFirstTokenSize("ab:c", ":"), 2);
    EXPECT_EQ(CLex::GetFirstTokenSize(" ab", nullptr), 0);
}

TEST(ScanText, Characters) {
    const char* const text = "abc\nabd";
    EXPECT_EQ(Went(text, CLex::StrChr(text, 7, 'c')), 2);
    EXPECT_EQ(CLex::StrChr(text, 7, 'd'), nullptr);
    EXPECT_EQ(CLex::StrChr(text, 2, 'c'), nullptr);
    EXPECT_EQ(CLex::StrChr(text, 7, '\n'), nullptr);
    EXPECT_EQ(CLex::LineStrChr(text, 'd'), nullptr);
    EXPECT_EQ(Went(text, CLex::LineStrStr(text, "bc")), 1);
    EXPECT_EQ(CLex::LineStrStr(text, "bd"), nullptr);
    EXPECT_EQ(CLex::LineStrStr(text, "c\na"), nullptr);
    char buffer[] = " \r\na-b-c\t\n";
    EXPECT_EQ(CLex::StringCrop(buffer), 5);
    EXPECT_STREQ(buffer, "a-b-c");
    CLex::ReplaceChar(buffer, '-', '+');
    EXPECT_STREQ(buffer, "a+b+c");
    CLex::DeleteChar(buffer, '+');
    EXPECT_STREQ(buffer, "abc");
    char blanks[] = "  \n";
    EXPECT_EQ(CLex::StringCrop(blanks), 0);
}

TEST(ScanText, DefinitionBlocks) {
    const struct {
        std::string text;
        long size;
    } cases[] = {
        {"{\na\n}\nb", 5},  {"{ }", 3},
        {"{ } {\n}\n}", 7}, {"{ // }\n}", 8},
        {"{", -1},          {"}\n{\n}", -1},
        {"", -1},           {"{\n" + std::string(1024, ' ') + "}\n}x\n", 1030},
    };
    for (const auto& c : cases) {
        std::string text = c.text;
        EXPECT_EQ(CLex::GetDefinitionBlockSize(text.data(), static_cast<long>(text.size())), c.size)
            << c.text;
    }
}

}  // namespace
