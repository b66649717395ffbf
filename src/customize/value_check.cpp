#include "customize/value_check.h"

#include <cstring>

#include "customize/tag_parser.h"

namespace {

bool Contains(const CString& value, const char* marks) {
    return std::strpbrk(value, marks) != nullptr;
}

bool StandsInQuotes(const CScriptEntry& entry) {
    return entry.kind == KindStrEdit ||
           (entry.kind >= KindEntity && entry.kind <= KindEntryText && entry.textPos[-1] == '"');
}

bool MayHoldLineEnds(const CScriptEntry& entry) {
    return entry.kind == KindEntryText && entry.height > 1;
}

bool SameRecord(const CScriptEntry& a, const CScriptEntry& b) {
    return a.kind == b.kind && a.label == b.label && a.help == b.help && a.id == b.id && a.value == b.value &&
           a.textLen == b.textLen && a.limitsMode == b.limitsMode && a.items == b.items;
}

}  // namespace

const char* ValueFaultText(ValueFault fault) {
    switch (fault) {
        case ValueFault::None: return "";
        case ValueFault::QuoteInside: return "a double quote would end the string in the script";
        case ValueFault::LineEndInside: return "a line end would break the value's line in the script";
        case ValueFault::BracketInside: return "an angle bracket would end the file name in the script";
        case ValueFault::NulInside: return "a NUL byte can't stand in a value";
        case ValueFault::NotOneWord:
            return "the value stands without quotes in the script and must be one word";
    }
    return "";
}

ValueFault FindValueFault(const CScriptEntry& entry, const CString& value) {
    if (entry.kind == KindEnable || entry.textPos == nullptr) return ValueFault::None;
    if (value.Find('\0') >= 0) return ValueFault::NulInside;
    const bool quoted = StandsInQuotes(entry);
    if (Contains(value, "\r\n") && !(quoted && MayHoldLineEnds(entry))) return ValueFault::LineEndInside;
    if (quoted) return Contains(value, "\"") ? ValueFault::QuoteInside : ValueFault::None;
    if (entry.kind == KindChooseFile)
        return Contains(value, "<>") ? ValueFault::BracketInside : ValueFault::None;
    return value.IsEmpty() || Contains(value, " \t:;=,") ? ValueFault::NotOneWord : ValueFault::None;
}

bool ReadsBack(const ScriptText& text, const CEntryList& expected) {
    CLex lex(text.Data(), text.Size());
    if (lex.GetLastError() != CLEXERR_NONE) return false;
    ScriptHeader header;
    CEntryList list;
    ParseScriptTags(header, list, lex);
    if (list.entries.size() != expected.entries.size()) return false;
    for (size_t i = 0; i < list.entries.size(); ++i) {
        const CScriptEntry& a = list.entries[i];
        const CScriptEntry& b = expected.entries[i];
        if (!SameRecord(a, b) || a.textPos != b.textPos) return false;
    }
    return true;
}
