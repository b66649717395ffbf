#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <memory>
#include <string>
#include <tuple>

#include "support/lex.h"
#include "support/number_text.h"

namespace {

// How many bytes a reading function went on, -1 for null.
long Went(const char* from, const char* to) {
    return to == nullptr ? -1 : static_cast<long>(to - from);
}

int Int(const std::string& text) {
    return ParseInt(text.data(), text.size());
}

double Double(const std::string& text) {
    return ParseDouble(text.data(), text.size());
}

TEST(NumberText, ReadsWhatTheTextBeginsWith) {
    EXPECT_EQ(Int(" 12x"), 12);
    EXPECT_EQ(Int("-7"), -7);
    EXPECT_EQ(Int("+7"), 7);
    EXPECT_EQ(Int("2147483648"), INT_MAX);
    EXPECT_EQ(Int("-99999999999999999999"), INT_MIN);
    EXPECT_EQ(ParseInt("123", 2), 12);
    EXPECT_EQ(Double(" 1.5x"), 1.5);
    EXPECT_EQ(Double("-.5"), -0.5);
    EXPECT_EQ(Double("1e3"), 1000);
    EXPECT_EQ(Double("1e"), 1);
    EXPECT_EQ(Double("1,5"), 1);
    EXPECT_EQ(Double("1e999"), DBL_MAX);
    EXPECT_EQ(Double("1e-999"), 0);
    EXPECT_EQ(Double("-1e999"), -DBL_MAX);
    for (const char* zero : {"", "x", "- 7", ".", "inf", "nan", "0x10", "0e999"})
        EXPECT_EQ(Int(zero) + Double(zero), 0) << zero;
}

TEST(ScanText, Numbers) {
    const std::tuple<const char*, long, double> cases[] = {
        {"5.", 2, 5.0},
        {"-1.25e3", 5, -1.25},
        {".5", -1, 99},
        {"\t2", 2, 2},
        {"1.1234567891", 12, 1.123456789},
        {"+1", -1, 99},
        {"-", -1, 99},
        {"99999999999", 11, 4294967295.0},
    };
    for (const auto& [text, went, expected] : cases) {
        double value = 99;
        EXPECT_EQ(Went(text, CLex::ScanDoubleValue(text, value)), went) << text;
        EXPECT_EQ(value, expected) << text;
        float single = 99;
        EXPECT_EQ(Went(text, CLex::ScanFloatValue(text, single)), went) << text;
        EXPECT_EQ(single, static_cast<float>(expected)) << text;
    }
    int value = 99;
    for (const char* none : {"+5", "", "-", static_cast<const char*>(nullptr)})
        EXPECT_EQ(CLex::ScanIntValue(none, value), nullptr);
    EXPECT_EQ(value, 99);
    const char* const text = " -5x";
    EXPECT_EQ(Went(text, CLex::ScanIntValue(text, value)), 3);
    EXPECT_EQ(value, -5);
    CLex::ScanIntValue("4294967295", value);
    EXPECT_EQ(value, INT_MAX);
}

TEST(ScanText, IsDigit) {
    const std::tuple<const char*, int, int> cases[] = {
        {"-12", 3, 1}, {"-", 1, 1}, {"12x", 2, 1}, {"12x", 3, 0}, {"1", 0, 0}, {nullptr, 1, 0},
    };
    for (const auto& [text, length, digits] : cases)
        EXPECT_EQ(CLex::IsDigit(text, length), digits) << (text ? text : "-") << length;
    long value = 5;
    int size = 5;
    EXPECT_EQ(CLex::IsDigit("-", &value, &size), 0);
    EXPECT_EQ(CLex::IsDigit("+12x", &value, &size), 1);
    EXPECT_EQ(value * 10 + size, 123);
}

TEST(ScanText, FormatFloat) {
    const std::tuple<double, const char*> cases[] = {
        {3.14, "3.14"}, {3, "3"}, {100, "100"}, {-0.0, "-0"}, {1e-7, "0"}, {3.7890625, "3.789062"},
    };
    for (const auto& [value, expected] : cases) {
        char text[400];
        EXPECT_STREQ(CLex::FormatFloat(text, value), expected);
    }
}

TEST(ScanText, Bits) {
    const char* const text = "' 11 ' x";
    unsigned long value = 9;
    EXPECT_EQ(Went(text, CLex::ScanBinValue(text, value)), 6);
    EXPECT_EQ(value, 3u);
    for (const std::string& none : {std::string("101"), "'" + std::string(34, '1') + "'"})
        EXPECT_EQ(CLex::ScanBinValue(none.c_str(), value), nullptr);
    EXPECT_EQ(value, 0u);
    EXPECT_EQ(CLex::BinToLong("1x1 \n"), 1u);
    EXPECT_EQ(CLex::BinToLong("100000000000000000000000000000001"), 1u);
    char bits[33];
    EXPECT_STREQ(CLex::LongToBin(bits, 0), "0000");
    EXPECT_STREQ(CLex::LongToBin(bits, 255), "11111111");
    EXPECT_EQ(strlen(CLex::LongToBin(bits, 256)), 16u);
    EXPECT_EQ(std::string(CLex::LongToBin(bits, -1)), std::string(32, '1'));
}

TEST(ScanText, DelimitedStrings) {
    const std::tuple<const char*, int, long, const char*, int> cases[] = {
        {" \" ab \"", 10, 7, "ab", 2},  {"\"x\"", 10, 3, "x", 1},   {"\"\"y", 10, 2, "old", 0},
        {"\"   \"", 10, 5, "old", 0},   {"\"abc\"", 3, 5, "ab", 3}, {"\"abc\"", 1, 5, "old", 3},
        {"\"a\nb\"", 10, 5, "a\nb", 3}, {"abc", 10, -1, "old", -7}, {"\"abc", 10, -1, "old", -7},
    };
    for (const auto& [text, size, went, content, contentLength] : cases) {
        char dest[16] = "old";
        int length = -7;
        EXPECT_EQ(Went(text, CLex::GetString(text, '"', dest, '"', size, length)), went) << text;
        EXPECT_STREQ(dest, content) << text;
        EXPECT_EQ(length, contentLength) << text;
    }
    char word[8] = "old";
    int length = 0;
    const char* const words = "  ab\tc d";
    EXPECT_EQ(Went(words, CLex::GetString(words, word, 8, length)), 6);
    EXPECT_STREQ(word, "ab\tc");
    EXPECT_EQ(length, 5);
    EXPECT_EQ(CLex::GetString("  ", word, 8, length), nullptr);
    const char* const text = "abcd";
    EXPECT_EQ(Went(text, CLex::GetString(text, word, 3, length)), 2);
    EXPECT_STREQ(word, "ab");
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
    EXPECT_EQ(CLex::GetToken("efghi", token, length, size, nullptr), nullptr);
    EXPECT_STREQ(token, "efghi");
    EXPECT_EQ(CLex::GetToken(" \n", token, length, size, nullptr), nullptr);
    EXPECT_STREQ(token, "");
    delete[] token;

    char* group = nullptr;
    size = 0;
    EXPECT_EQ(CLex::GetTokenGroup("a b", 3, group, length, size), nullptr);
    EXPECT_STREQ(group, "");
    const char* const words = "a\tbc  d";
    EXPECT_EQ(Went(words, CLex::GetTokenGroup(words, 2, group, length, size)), 6);
    EXPECT_STREQ(group, "a bc");
    EXPECT_EQ(CLex::GetTokenGroup(words, 3, group, length, size), nullptr);
    EXPECT_STREQ(group, "a bc d");
    delete[] group;
}

TEST(ScanText, TokenPositions) {
    const char* const text = "a,\n bc d";
    EXPECT_EQ(Went(text, CLex::GetTokenPos(text, 1, ",")), 4);
    EXPECT_EQ(CLex::GetTokenPos(text, 3, ","), nullptr);
    int size = 42;
    EXPECT_EQ(Went(text, CLex::GetTokenPos(text, 1, size)), 4);
    EXPECT_EQ(size, 2);
    EXPECT_EQ(CLex::GetTokenPos("", 0, size), nullptr);
    EXPECT_EQ(size, 2);
    EXPECT_EQ(CLex::GetFirstTokenSize("ab:c", ":"), 2);
}

TEST(ScanText, Characters) {
    const char* const text = "abc\nabd";
    EXPECT_EQ(Went(text, CLex::StrChr(text, 7, 'c')), 2);
    for (const char* none :
         {CLex::StrChr(text, 7, 'd'), CLex::StrChr(text, 2, 'c'), CLex::LineStrChr(text, 'd'),
          CLex::LineStrStr(text, "bd"), CLex::LineStrStr(text, "c\na")})
        EXPECT_EQ(none, nullptr);
    EXPECT_EQ(Went(text, CLex::LineStrStr(text, "bc")), 1);
    char buffer[] = " \r\na-b-c\t\n";
    EXPECT_EQ(CLex::StringCrop(buffer), 5);
    CLex::ReplaceChar(buffer, '-', '+');
    EXPECT_STREQ(buffer, "a+b+c");
    CLex::DeleteChar(buffer, '+');
    EXPECT_STREQ(buffer, "abc");
}

TEST(ScanText, DefinitionBlocks) {
    const std::pair<std::string, long> cases[] = {
        {"{ } {\n}\n}", 7},
        {"{ // }\n}", 8},
        {"{", -1},
        {"}\n{\n}", -1},
        {"{\n" + std::string(1024, ' ') + "}\n}x\n", 1030},
    };
    for (auto [text, size] : cases)
        EXPECT_EQ(CLex::GetDefinitionBlockSize(text.data(), static_cast<long>(text.size())), size) << text;
}

}  // namespace
