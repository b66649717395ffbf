#include "support/token_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/lex.h"

namespace {

std::vector<std::string> Tokens(const std::string& text, const char* delims, bool quoted = false) {
    std::vector<char> exact(text.begin(), text.end());
    std::vector<std::string> tokens;
    TokenScanner scanner;
    const char* token = scanner.First(exact.data(), static_cast<int>(exact.size()), delims);
    while (token != nullptr) {
        tokens.emplace_back(token, static_cast<size_t>(scanner.TokenLen()));
        token = quoted ? scanner.NextQuoted() : scanner.Next();
    }
    EXPECT_EQ(scanner.TokenLen(), 0);
    EXPECT_EQ(scanner.Next(), nullptr);
    return tokens;
}

TEST(TokenScanner, Tokens) {
    const struct {
        std::string text;
        const char* delims;
        std::vector<std::string> tokens;
    } cases[] = {
        {"", nullptr, {}},
        {"  \t", nullptr, {}},
        {" \nx", nullptr, {}},
        {"a b\tc", nullptr, {"a", "b", "c"}},
        {"a b\r\nc", nullptr, {"a", "b"}},
        {std::string("a\0b", 3), nullptr, {"a"}},
        {"ver:1.2", ":", {"ver", "1.2"}},
        {":,;a", ":,;", {"a"}},
        {"a:b", nullptr, {"a:b"}},
        {"d,e\n", "\n,\r", {"d", "e"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Tokens(c.text, c.delims), c.tokens) << c.text;
}

TEST(TokenScanner, QuotedTokens) {
    const struct {
        std::string text;
        std::vector<std::string> tokens;
    } cases[] = {
        {"a \"b c\" d", {"a", "b c", "d"}},   {"a \"\" d", {"a", "", "d"}},
        {"a \"b c", {"a", "\"b", "c"}},       {"a \"", {"a", "\""}},
        {"\"a b\" c", {"\"a", "b\"", "c"}},    // the first token is never quoted
        {"a \"b\nc\" d", {"a", "b\nc", "d"}},  // line ends inside do not stop it
        {"a \"x\n y\"\nz", {"a", "x\n y"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Tokens(c.text, nullptr, true), c.tokens) << c.text;
}

TEST(TokenScanner, TheStaticScanKeepsItsState) {
    EXPECT_EQ(CLex::GetFirstToken(nullptr, 5, nullptr), nullptr);
    EXPECT_EQ(CLex::GetFirstToken("abc", -1, nullptr), nullptr);
    EXPECT_EQ(CLex::GetFirstToken("abc", 0, nullptr), nullptr);
    EXPECT_EQ(CLex::GetTokenLen(), 0);

    const char* const text = "one two three";
    EXPECT_EQ(CLex::GetFirstToken(text, 7, nullptr), text);
    TokenScanner own;
    own.First("x y", 3, nullptr);  // another scan does not disturb it
    EXPECT_EQ(CLex::GetNextToken(), text + 4);
    EXPECT_EQ(CLex::GetTokenLen(), 3);
    EXPECT_EQ(CLex::GetNextToken(), nullptr);
    EXPECT_EQ(CLex::GetNextTokenEx(), nullptr);
}

}  // namespace
