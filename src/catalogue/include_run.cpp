#include "catalogue/include_run.h"

#include <algorithm>
#include <unordered_map>

#include "customize/script_token.h"
#include "support/token_scanner.h"

namespace {

constexpr std::string_view kInclude = "include";
constexpr std::string_view kLineStart = "include <";
constexpr std::string_view kLineEnd = ">;\r\n";

char LowerCase(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}

// In a buffer that its caller uses again.
const std::string& LowerCase(std::string_view text, std::string& lower) {
    lower = text;
    for (char& ch : lower)
        ch = LowerCase(ch);
    return lower;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

// One line of a script, or, for an include whose name stands further down, all lines up to that name.
struct ScannedLine {
    const char* start = nullptr;  // in the text
    bool comment = false;
    bool include = false;
    std::optional<std::string_view> name;  // of an include; in the text
};

// The name in a token put in angle brackets.
std::optional<std::string_view> NameInBrackets(std::string_view token) {
    if (token.size() < 2 || token.front() != '<' || token.back() != '>') return std::nullopt;
    constexpr const char* kTrimmed = "<> \t\r\n\v\f";
    const size_t first = token.find_first_not_of(kTrimmed);
    if (first == std::string_view::npos) return std::string_view();
    return token.substr(first, token.find_last_not_of(kTrimmed) - first + 1);
}

// The name behind the word of the include line that was read last. May fetch further lines.
std::optional<std::string_view> ReadName(CLex& lex) {
    const char* line = lex.getCurrLinePos();
    int length = lex.getLineLen();
    int pos = 0;
    const char* token = nullptr;
    int size = 0;
    for (int i = 0; i < 2; ++i) {
        if (!NextScriptToken(token, size, pos, line, length, lex)) return std::nullopt;
    }
    return NameInBrackets({token, static_cast<size_t>(size)});
}

bool NextLine(CLex& lex, ScannedLine& line) {
    const char* const text = lex.getNextUnformLine();
    if (!text) return false;
    line = {};
    line.start = lex.getCurrLinePos();
    TokenScanner scanner;
    const char* const first = scanner.First(text, lex.getLineLen(), nullptr);
    if (!first) return true;
    const std::string_view token(first, static_cast<size_t>(scanner.TokenLen()));
    line.comment = token.starts_with("//");
    line.include = EqualNoCase(token.substr(0, kInclude.size()), kInclude);
    if (line.include) line.name = ReadName(lex);
    return true;
}

// Gives each name of the include run to `take`; the result is that of FindInsertPoint.
template <typename Take>
const char* ScanIncludeRun(CLex& lex, Take take) {
    const char* firstCode = nullptr;
    const char* lastInclude = nullptr;
    ScannedLine line;
    while (NextLine(lex, line)) {
        if (!firstCode && !line.comment) firstCode = line.start;
        if (!line.include) {
            if (lastInclude) return line.start;
            continue;
        }
        lastInclude = line.start;
        if (line.name) take(*line.name);
    }
    return lastInclude ? lastInclude : firstCode;
}

std::string_view View(const CString& text) {
    return {text.GetString(), static_cast<size_t>(text.GetLength())};
}

}  // namespace

void ReadIncludes(CLex& lex, CStringArray& names) {
    ScanIncludeRun(lex, [&names](std::string_view name) {
        names.Add(CString(name.data(), static_cast<int>(name.size())));
    });
}

// The names that are sought go into a table, so that the time is that of one pass over the run.
const char* FindInsertPoint(CLex& lex, CStringArray& names) {
    std::unordered_map<std::string, bool> included;
    std::string lower;
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        included.emplace(LowerCase(View(names[i]), lower), false);
    const char* const place = ScanIncludeRun(lex, [&](std::string_view name) {
        const auto found = included.find(LowerCase(name, lower));
        if (found != included.end()) found->second = true;
    });
    INT_PTR kept = 0;
    for (INT_PTR i = 0; i < names.GetSize(); ++i) {
        if (included[LowerCase(View(names[i]), lower)]) continue;
        if (kept != i) names[kept] = names[i];
        ++kept;
    }
    names.SetSize(kept);
    return place;
}

std::string WithIncludes(std::string_view text, size_t place, const CStringArray& names) {
    size_t added = 0;
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        added += kLineStart.size() + View(names[i]).size() + kLineEnd.size();
    std::string result;
    result.reserve(text.size() + added);
    result.append(text.substr(0, place));
    for (INT_PTR i = 0; i < names.GetSize(); ++i)
        result.append(kLineStart).append(View(names[i])).append(kLineEnd);
    return result.append(text.substr(place));
}

std::optional<std::string> WithoutInclude(std::string_view text, std::string_view name) {
    CLex lex(text.data(), static_cast<long>(text.size()));
    ScannedLine line;
    do {
        if (!NextLine(lex, line)) return std::nullopt;
    } while (!line.name || !EqualNoCase(*line.name, name));
    const size_t start = static_cast<size_t>(line.start - text.data());
    std::string_view rest = text.substr(static_cast<size_t>(lex.getPos()));
    if (lex.getLineNum() == lex.getLinesNumber() - 1) {
        for (int dropped = 0; dropped < 2 && rest.ends_with('\r'); ++dropped)
            rest.remove_suffix(1);
    }
    std::string result;
    result.reserve(start + rest.size());
    return result.append(text.substr(0, start)).append(rest);
}
