#include "customize/splice.h"

#include <cstring>
#include <optional>
#include <string_view>

namespace {

constexpr std::string_view kCommentMark = "//";

struct Edit {
    size_t entry;
    long pos;
    long length;
    std::string_view bytes;
};

std::optional<Edit> EditOf(const ScriptText& text, const CScriptEntry& entry, const NewValue& change) {
    if (entry.textPos == nullptr) return std::nullopt;
    const long pos = static_cast<long>(entry.textPos - text.Data());
    if (entry.kind != KindEnable) {
        const std::string_view bytes(change.value, static_cast<size_t>(change.value.GetLength()));
        return Edit{change.entry, pos, entry.textLen, bytes};
    }
    const bool off = change.value == "0";
    if (off == (entry.value == "0")) return std::nullopt;
    if (off) return Edit{change.entry, pos, 0, kCommentMark};
    return Edit{change.entry, pos, static_cast<long>(kCommentMark.size()), {}};
}

std::vector<Edit> CollectEdits(const ScriptText& text, const CEntryList& list,
                               std::span<const NewValue> changes) {
    std::vector<Edit> edits;
    edits.reserve(changes.size());
    long done = 0;
    for (const NewValue& change : changes) {
        const std::optional<Edit> edit = EditOf(text, list.entries[change.entry], change);
        if (!edit || edit->pos < done) continue;
        edits.push_back(*edit);
        done = edit->pos + edit->length;
    }
    return edits;
}

ScriptText Assemble(const ScriptText& text, std::span<const Edit> edits, std::vector<SpliceEdit>& made) {
    long size = text.Size();
    for (const Edit& edit : edits)
        size += static_cast<long>(edit.bytes.size()) - edit.length;
    auto bytes = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(size));
    char* to = bytes.get();
    const auto append = [&to](const char* from, size_t count) {
        if (count > 0) std::memcpy(to, from, count);
        to += count;
    };
    long done = 0;
    made.reserve(edits.size());
    for (const Edit& edit : edits) {
        append(text.Data() + done, static_cast<size_t>(edit.pos - done));
        made.push_back({edit.pos, edit.length, static_cast<long>(to - bytes.get()),
                        static_cast<long>(edit.bytes.size())});
        append(edit.bytes.data(), edit.bytes.size());
        done = edit.pos + edit.length;
    }
    append(text.Data() + done, static_cast<size_t>(text.Size() - done));
    return ScriptText(std::move(bytes), size);
}

const char* LineStart(const char* text, const char* at) {
    while (at > text && at[-1] != '\n')
        --at;
    return at;
}

// A switched line has its place at the comment mark when it is off, at the line's first byte when it is live.
SplicedScript::Place PlaceBehindEdit(const ScriptText& text, const SpliceEdit& edit, bool is_switch) {
    const char* const at = text.Data() + edit.newPos;
    if (!is_switch) return {at, static_cast<int>(edit.newLen)};
    return {edit.newLen > 0 ? at : LineStart(text.Data(), at), 0};
}

}  // namespace

SplicedScript SpliceValues(const ScriptText& text, const CEntryList& list,
                           std::span<const NewValue> changes) {
    const std::vector<Edit> edits = CollectEdits(text, list, changes);
    SplicedScript result;
    result.text = Assemble(text, edits, result.edits);
    result.places.reserve(list.entries.size());
    size_t next = 0;
    long moved = 0;
    for (size_t i = 0; i < list.entries.size(); ++i) {
        const CScriptEntry& entry = list.entries[i];
        if (next < edits.size() && edits[next].entry == i) {
            const SpliceEdit& edit = result.edits[next++];
            result.places.push_back(PlaceBehindEdit(result.text, edit, entry.kind == KindEnable));
            moved = edit.newPos + edit.newLen - edit.oldPos - edit.oldLen;
        } else if (entry.textPos == nullptr) {
            result.places.push_back({nullptr, 0});
        } else {
            result.places.push_back(
                {result.text.Data() + (entry.textPos - text.Data()) + moved, entry.textLen});
        }
    }
    return result;
}

void ApplySplice(const SplicedScript& spliced, std::span<const NewValue> changes, CEntryList& list) {
    for (size_t i = 0; i < list.entries.size(); ++i) {
        list.entries[i].textPos = spliced.places[i].textPos;
        list.entries[i].textLen = spliced.places[i].textLen;
    }
    for (const NewValue& change : changes)
        list.entries[change.entry].value = change.value;
}

void TakeSplice(SplicedScript&& spliced, std::span<const NewValue> changes, ScriptText& text,
                CEntryList& list) {
    ApplySplice(spliced, changes, list);
    text = std::move(spliced.text);
}
