#include "host/action_text.h"

#include <afx.h>

#include <string>

#include "support/lex.h"

namespace {

bool IsWord(const TokenScanner& scanner, const char* token, std::string_view word) {
    return token && scanner.TokenLen() == static_cast<int>(word.size()) &&
           _strnicmp(token, word.data(), word.size()) == 0;
}

bool BeginsAction(const char* line, int length, std::string_view name) {
    TokenScanner scanner;
    const char* const keyword = scanner.First(line, length, "()");
    if (!IsWord(scanner, keyword, "action")) return false;
    const char* const word = scanner.Next();
    return IsWord(scanner, word, name);
}

bool IsComment(const char* line, int length) {
    TokenScanner scanner;
    const char* const token = scanner.First(line, length, nullptr);
    return token && std::string_view(token, static_cast<size_t>(scanner.TokenLen())).starts_with("//");
}

// The body is counted in braces by the line reader, which wants a text that it may write to.
size_t BodyEnd(std::string_view script, size_t start) {
    std::string rest(script.substr(start));
    const long size = CLex::GetDefinitionBlockSize(rest.data(), static_cast<long>(rest.size()));
    return size < 0 ? script.size() : start + static_cast<size_t>(size);
}

}  // namespace

std::optional<ActionText> FindAction(std::string_view script, std::string_view name) {
    CLex lex(script.data(), static_cast<long>(script.size()));
    const char* comments = nullptr;
    while (const char* const line = lex.getNextUnformLine()) {
        const int length = lex.getLineLen();
        const char* const start = lex.getCurrLinePos();
        if (BeginsAction(line, length, name)) {
            const size_t offset = static_cast<size_t>((comments ? comments : start) - script.data());
            return ActionText{offset, BodyEnd(script, static_cast<size_t>(start - script.data())) - offset};
        }
        if (!IsComment(line, length)) {
            comments = nullptr;
        } else if (!comments) {
            comments = start;
        }
    }
    return std::nullopt;
}
