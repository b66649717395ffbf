// The tag parser over any bytes: places lie in the text and ascend, and every value stands at its place.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "customize/script_text.h"
#include "customize/tag_parser.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

class Bounds : public TagObserver {
public:
    explicit Bounds(const ScriptText& text) : text_(text) {}
    void Passed(TagNote note, int, int line, const char* place) override {
        Require(place >= text_.Data() && place < text_.Data() + text_.Size());
        Require(line >= 0 && *TagNoteText(note) != '\0');
    }

private:
    const ScriptText& text_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const ScriptText text = ScriptText::Copy(reinterpret_cast<const char*>(data), static_cast<long>(size));
    CLex lex(text.Data(), text.Size());
    ScriptHeader header;
    CEntryList list;
    Bounds bounds(text);
    ParseScriptTags(header, list, lex, &bounds);

    const char* reached = text.Data();
    for (const CScriptEntry& entry : list.entries) {
        Require(entry.kind >= 0 && entry.kind < KeywordCount);
        if (entry.textPos == nullptr) continue;
        Require(entry.textPos >= reached && entry.textLen >= 0);
        reached = entry.textPos + entry.textLen;
        Require(reached < text.Data() + text.Size());
        const bool trimmed = entry.kind == KindChooseFile || entry.kind == KindEnable;
        const CString there(entry.textPos, entry.textLen);
        Require(trimmed || there == entry.value || entry.value.GetLength() < there.GetLength());
    }
    return 0;
}
