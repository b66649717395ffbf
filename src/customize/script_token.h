#pragma once

#include "support/lex.h"

// Why a token or a value could not be had.
enum class TokenFailure {
    None,
    Comment,  // a slash stands where a token would begin
    Bracket,  // "<" without ">" on its line
    Quote,    // a double quote that nothing closes
    EndOfText,
};

// Takes the next token of code from `pos` bytes behind `line` (of `length` bytes), going on into the
// following lines of `lex` where the line ends. A token is one of ":;=,", a "<...>" on one line, a string in
// double quotes that may run over line ends, or a word. All tokens are pointers into the text of `lex`, never
// into its line buffer. Gives 1, or 0 when there is none; lines that were fetched on the way stay used up.
int NextScriptToken(const char*& token, int& tokenlen, int& pos, const char*& line, int& length, CLex& lex,
                    TokenFailure* failure = nullptr);
