#include "catalogue/script_info.h"

#include <string_view>

#include "support/token_scanner.h"

namespace {

constexpr const char* kKeyDelimiters = ":,;";
constexpr const char* kValueDelimiters = "\n,\r";

struct Line {
    const char* text;
    int length;
};

// The key of a comment line, in `scanner`, which can go on behind it. Null for lines that are none.
const char* FirstKey(Line line, TokenScanner& scanner) {
    const char* const first = scanner.First(line.text, line.length, nullptr);
    if (!first || !std::string_view(first, static_cast<size_t>(scanner.TokenLen())).starts_with("//"))
        return nullptr;
    const char* const comment = first + 2;
    return scanner.First(comment, static_cast<int>(line.text + line.length - comment), kKeyDelimiters);
}

bool IsKey(const char* key, const TokenScanner& scanner, std::string_view word) {
    return scanner.TokenLen() == static_cast<int>(word.size()) &&
           _strnicmp(key, word.data(), word.size()) == 0;
}

// The colon and one blank are taken to stand between a key and its value.
CString ValueBehind(Line line, const char* key, std::string_view word) {
    const ptrdiff_t skipped = key - line.text + static_cast<ptrdiff_t>(word.size()) + 2;
    if (skipped >= line.length) return CString();
    TokenScanner scanner;
    const int rest = line.length - static_cast<int>(skipped);
    const char* const value = scanner.First(line.text + skipped, rest, kValueDelimiters);
    return value ? CString(value, scanner.TokenLen()) : CString();
}

}  // namespace

ScriptInfo ReadScriptInfo(CLex& lex) {
    ScriptInfo info;
    TokenScanner scanner;
    while (const char* const text = lex.getNextUnformLine()) {
        const Line line{text, lex.getLineLen()};
        const char* const key = FirstKey(line, scanner);
        if (!key) continue;
        if (IsKey(key, scanner, "ver")) info.ver = ValueBehind(line, key, "ver");
        if (IsKey(key, scanner, "date")) info.date = ValueBehind(line, key, "date");
    }
    return info;
}

int ReadNeeds(CLex& lex, CStringArray& names) {
    int count = 0;
    TokenScanner scanner;
    while (const char* const text = lex.getNextUnformLine()) {
        const char* const key = FirstKey({text, lex.getLineLen()}, scanner);
        if (!key || !IsKey(key, scanner, "needs")) continue;
        while (const char* const name = scanner.Next()) {
            names.Add(CString(name, scanner.TokenLen()));
            ++count;
        }
    }
    return count;
}
