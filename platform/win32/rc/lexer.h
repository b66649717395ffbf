#pragma once

#include <string>
#include <vector>

enum class TokenKind { Word, Number, Text, Mark, End };

struct Token {
    TokenKind kind;
    std::string text;  // of a word, a text without its quotes, or a mark
    long long number;
    int line;
};

// Cuts a script into tokens; the last one is the end. Throws ResourceError.
std::vector<Token> ReadTokens(const std::string& script);
