#include "customize/script_token.h"

#include <cstring>

namespace {

bool IsSpace(char ch) {
    return ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n';
}
bool IsMark(char ch) {
    return ch == ':' || ch == ';' || ch == '=' || ch == ',';
}

// The line reader hands out its last line as a copy; its place in the text does as well and lives longer.
bool FetchLine(const char*& line, int& length, CLex& lex) {
    if (lex.getNextUnformLine() == nullptr) return false;
    line = lex.getCurrLinePos();
    length = lex.getLineLen();
    return true;
}

const char* FindByte(const char* from, const char* end, char ch) {
    if (from >= end) return nullptr;
    return static_cast<const char*>(std::memchr(from, ch, static_cast<size_t>(end - from)));
}

// The closing quote may stand on a later line.
const char* FindClosingQuote(const char* content, int& pos, const char*& line, int& length, CLex& lex) {
    const char* from = content;
    while (true) {
        if (const char* const quote = FindByte(from, line + length, '"')) {
            pos = static_cast<int>(quote + 1 - line);
            return quote;
        }
        if (!FetchLine(line, length, lex)) return nullptr;
        from = line;
    }
}

// A NUL that closes the text is no word.
bool IsClosingNul(const char* at, const CLex& lex) {
    return *at == '\0' && at + 1 == lex.getBuf() + lex.getBufSize();
}

}  // namespace

int NextScriptToken(const char*& token, int& tokenlen, int& pos, const char*& line, int& length, CLex& lex,
                    TokenFailure* failure) {
    const auto fail = [&](TokenFailure why) {
        if (failure != nullptr) *failure = why;
        return 0;
    };
    while (pos >= length || IsSpace(line[pos])) {
        if (pos < length) {
            ++pos;
            continue;
        }
        if (!FetchLine(line, length, lex)) return fail(TokenFailure::EndOfText);
        pos = 0;
    }
    token = line + pos;
    const char* const end = line + length;
    const char* behind = token + 1;
    if (*token == '/') return fail(TokenFailure::Comment);
    if (IsClosingNul(token, lex)) return fail(TokenFailure::EndOfText);
    if (*token == '<') {
        behind = FindByte(behind, end, '>');
        if (behind == nullptr) return fail(TokenFailure::Bracket);
        ++behind;
    } else if (*token == '"') {
        behind = FindClosingQuote(behind, pos, line, length, lex);
        if (behind == nullptr) return fail(TokenFailure::Quote);
        tokenlen = static_cast<int>(behind + 1 - token);
        return 1;
    } else if (!IsMark(*token)) {
        while (behind < end && !IsSpace(*behind) && !IsMark(*behind))
            ++behind;
    }
    tokenlen = static_cast<int>(behind - token);
    pos += tokenlen;
    return 1;
}
