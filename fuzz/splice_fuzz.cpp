// Splicing over any script: the values as read give the same bytes, and other values change nothing around
// them.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "customize/splice.h"
#include "customize/tag_parser.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

std::string_view View(const ScriptText& text) {
    return {text.Data(), static_cast<size_t>(text.Size())};
}

// Everything but the edited runs is the same, byte for byte.
void CheckEdits(const ScriptText& before, const SplicedScript& after) {
    size_t old_at = 0;
    size_t new_at = 0;
    for (const SpliceEdit& edit : after.edits) {
        const size_t kept = static_cast<size_t>(edit.oldPos) - old_at;
        Require(View(before).substr(old_at, kept) == View(after.text).substr(new_at, kept));
        old_at = static_cast<size_t>(edit.oldPos + edit.oldLen);
        new_at = static_cast<size_t>(edit.newPos + edit.newLen);
    }
    Require(View(before).substr(old_at) == View(after.text).substr(new_at));
}

}  // namespace

// The first byte chooses the values; the rest is the script.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 2) return 0;
    ScriptText text = ScriptText::Copy(reinterpret_cast<const char*>(data) + 1, static_cast<long>(size) - 1);
    CLex lex(text.Data(), text.Size());
    ScriptHeader header;
    CEntryList list;
    ParseScriptTags(header, list, lex);

    std::vector<NewValue> same;
    std::vector<NewValue> other;
    for (size_t i = 0; i < list.entries.size(); ++i) {
        const CScriptEntry& entry = list.entries[i];
        const bool in_place = entry.textPos != nullptr && entry.kind != KindEnable;
        same.push_back({i, in_place ? CString(entry.textPos, entry.textLen) : entry.value});
        if (((data[0] >> (i % 8)) & 1) == 0) continue;
        const bool enable = entry.kind == KindEnable;
        other.push_back({i, enable ? CString(entry.value == "0" ? "1" : "0") : CString("a longer value")});
    }
    Require(View(SpliceValues(text, list, same).text) == View(text));

    for (int save = 0; save < 2; ++save) {
        SplicedScript spliced = SpliceValues(text, list, other);
        CheckEdits(text, spliced);
        for (const NewValue& change : other) {
            const SplicedScript::Place place = spliced.places[change.entry];
            if (place.textPos == nullptr || list.entries[change.entry].kind == KindEnable) continue;
            Require(CString(place.textPos, place.textLen) == change.value);
        }
        TakeSplice(std::move(spliced), other, text, list);
    }
    return 0;
}
