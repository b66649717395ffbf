#include "customize/entry_value_search.h"

namespace {

bool StripEnds(CScriptEntry& entry, char first, const char* marks) {
    if (entry.value.IsEmpty() || entry.value.GetAt(0) != first) return false;
    entry.textPos += 1;
    entry.textLen -= 2;
    entry.value.Trim(marks);
    return true;
}

}  // namespace

int FindEntryValue(CScriptEntry& entry, CLex& lex, const char* line, int length, TokenFailure* failure) {
    entry.value.Empty();
    entry.textPos = nullptr;
    entry.textLen = 0;

    const char* token = nullptr;
    int tokenlen = 0;
    int pos = 0;
    const auto next = [&] { return NextScriptToken(token, tokenlen, pos, line, length, lex, failure) != 0; };
    if (!next()) return 0;
    while (next()) {
        if (*token == ';') return 1;
        const bool behind_equals = *token == '=';
        if (behind_equals && !next()) return 0;
        if (!behind_equals && *token != '"') continue;
        entry.value = CString(token, tokenlen);
        entry.textPos = token;
        entry.textLen = tokenlen;
        return 1;
    }
    return 0;
}

bool StripQuotes(CScriptEntry& entry) {
    return StripEnds(entry, '"', "\"");
}

bool StripBrackets(CScriptEntry& entry) {
    if (!StripEnds(entry, '<', "<>")) return false;
    entry.value.Trim();
    return true;
}
