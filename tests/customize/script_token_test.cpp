#include "customize/script_token.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

struct Walk {
    std::vector<std::string> tokens;
    TokenFailure end = TokenFailure::None;
};

Walk Tokens(const std::string& text) {
    std::vector<char> exact(text.begin(), text.end());
    CLex lex(exact.data(), static_cast<long>(exact.size()));
    lex.getNextUnformLine();
    const char* line = lex.getCurrLinePos();
    int length = lex.getLineLen();
    int pos = 0;
    Walk walk;
    const char* token = nullptr;
    int tokenlen = 0;
    while (NextScriptToken(token, tokenlen, pos, line, length, lex, &walk.end) != 0) {
        EXPECT_GE(token, exact.data());
        EXPECT_LE(token + tokenlen, exact.data() + exact.size());
        walk.tokens.emplace_back(token, static_cast<size_t>(tokenlen));
    }
    return walk;
}

TEST(ScriptToken, Tokens) {
    using namespace std::string_literals;
    const std::tuple<std::string, std::vector<std::string>, TokenFailure> cases[] = {
        {"var x=5;", {"var", "x", "=", "5", ";"}, TokenFailure::EndOfText},
        {"a /b", {"a"}, TokenFailure::Comment},
        {"10//x 5/2 a\"b a<b", {"10//x", "5/2", "a\"b", "a<b"}, TokenFailure::EndOfText},
        {"<a b>c<", {"<a b>", "c<"}, TokenFailure::EndOfText},
        {"<a\n>", {}, TokenFailure::Bracket},
        {"x <", {"x"}, TokenFailure::Bracket},
        {"\"a b\"c \"d\ne\" f", {"\"a b\"", "c", "\"d\ne\"", "f"}, TokenFailure::EndOfText},
        {"x \"a\nb", {"x"}, TokenFailure::Quote},
        {"\"", {}, TokenFailure::Quote},
        {"= \r\n\0"s, {"="}, TokenFailure::EndOfText},
        {"a\0b\n\0"s, {"a\0b"s}, TokenFailure::EndOfText},
    };
    for (const auto& [text, tokens, end] : cases) {
        const Walk walk = Tokens(text);
        EXPECT_EQ(walk.tokens, tokens) << text;
        EXPECT_EQ(walk.end, end) << text;
    }
}

}  // namespace
