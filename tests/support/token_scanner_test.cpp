#include "support/token_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>
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
    const std::tuple<std::string, const char*, std::vector<std::string>> cases[] = {
        {"  \t", nullptr, {}},
        {" \nx", nullptr, {}},
        {"a b\t:c\r\nd", nullptr, {"a", "b", ":c"}},
        {std::string("a\0b", 3), nullptr, {"a"}},
        {":,ver:1.2,;", ":,;", {"ver", "1.2"}},
        {"d,e\n", "\n,\r", {"d", "e"}},
    };
    for (const auto& [text, delims, tokens] : cases)
        EXPECT_EQ(Tokens(text, delims), tokens) << text;
}

TEST(TokenScanner, QuotedTokens) {
    const std::pair<std::string, std::vector<std::string>> cases[] = {
        {"a \"b c\" \"\" d", {"a", "b c", "", "d"}}, {"a \"b c", {"a", "\"b", "c"}}, {"a \"", {"a", "\""}},
        {"\"a b\" c", {"\"a", "b\"", "c"}},       // the first token is never quoted
        {"a \"b\nc\" d\ne", {"a", "b\nc", "d"}},  // line ends inside do not stop it
    };
    for (const auto& [text, tokens] : cases)
        EXPECT_EQ(Tokens(text, nullptr, true), tokens) << text;
}

TEST(TokenScanner, TheStaticScanKeepsItsState) {
    for (const auto& [text, size] : {std::pair<const char*, int>(nullptr, 5), {"abc", -1}, {"abc", 0}})
        EXPECT_EQ(CLex::GetFirstToken(text, size, nullptr), nullptr);
    EXPECT_EQ(CLex::GetTokenLen(), 0);

    const char* const text = "one two three";
    EXPECT_EQ(CLex::GetFirstToken(text, 7, nullptr), text);
    TokenScanner own;
    own.First("x y", 3, nullptr);  // another scan does not disturb it
    EXPECT_EQ(CLex::GetNextToken(), text + 4);
    EXPECT_EQ(CLex::GetTokenLen(), 3);
    EXPECT_EQ(CLex::GetNextTokenEx(), nullptr);
}

}  // namespace
