#include "customize/script_document.h"

#include "customize/tag_parser.h"
#include "support/saved_file.h"

namespace {

int FindLongLine(const CLex& lex) {
    CLex walk(lex.getBuf(), lex.getBufSize());
    while (walk.getNextUnformLine() != nullptr) {
        if (walk.getLineLen() + 1 >= walk.GetMaxLineSize()) return walk.getCurrLine();
    }
    return -1;
}

SaveResult ResultOf(SavedFileResult result) {
    switch (result) {
        case SavedFileResult::Saved: return SaveResult::Saved;
        case SavedFileResult::CannotOpen: return SaveResult::CannotOpen;
        case SavedFileResult::CannotWrite: return SaveResult::CannotWrite;
        case SavedFileResult::CannotRestore: return SaveResult::CannotRestore;
    }
    return SaveResult::CannotRestore;
}

}  // namespace

std::unique_ptr<EntryValue> MakeValueOf(const CScriptEntry& entry) {
    std::unique_ptr<EntryValue> value = MakeEntryValue(entry.kind);
    if (value == nullptr) return value;
    value->SetValue(entry.value);
    if (entry.kind == KindNumEdit && entry.limitsMode != LimitsNone) {
        value->SetLimits(entry.minValue, entry.maxValue, entry.stepValue);
    }
    if (auto* drop = dynamic_cast<DropValue*>(value.get())) {
        drop->AddItem(entry.value, false);
        if (entry.kind == KindDrop) {
            for (const CString& item : entry.items)
                drop->AddItem(item, true);
        }
    }
    return value;
}

LoadResult ScriptDocument::Load(const char* path, TagObserver* observer) {
    *this = ScriptDocument();
    path_ = path;
    if (!text_.Load(path)) return LoadResult::CannotOpen;
    CLex lex(text_.Data(), text_.Size());
    if (lex.GetLastError() != CLEXERR_NONE) {
        long_line_ = FindLongLine(lex);
        return LoadResult::LineTooLong;
    }
    ParseScriptTags(header_, list_, lex, observer);
    values_.resize(list_.entries.size());
    edited_.resize(list_.entries.size());
    return LoadResult::Loaded;
}

EntryValue* ScriptDocument::Edit(size_t index) {
    if (values_[index] == nullptr) values_[index] = MakeValueOf(list_.entries[index]);
    edited_[index] = values_[index] != nullptr;
    return values_[index].get();
}

std::vector<NewValue> ScriptDocument::ChangedValues() {
    std::vector<NewValue> changes;
    for (size_t i = 0; i < values_.size(); ++i) {
        if (edited_[i] && values_[i]->IsChanged()) changes.push_back({i, values_[i]->GetValue()});
    }
    return changes;
}

std::vector<SavedValue> ScriptDocument::NumberedValues() {
    std::vector<SavedValue> saved;
    for (size_t i = 0; i < values_.size(); ++i) {
        const CScriptEntry& entry = list_.entries[i];
        if (entry.id < 1 || MakeEntryValue(entry.kind) == nullptr) continue;
        saved.push_back({entry.id, entry.kind, edited_[i] ? values_[i]->GetValue() : entry.value});
    }
    return saved;
}

SaveResult ScriptDocument::Save(std::span<const NewValue> changes) {
    SplicedScript spliced = SpliceValues(text_, list_, changes);
    const SavedFileResult written =
        SaveFileContent(path_, spliced.text.Data(), static_cast<size_t>(spliced.text.Size()));
    if (written != SavedFileResult::Saved) return ResultOf(written);
    TakeSplice(std::move(spliced), changes, text_, list_);
    const SideFileCode side = WriteSideFile(SideFileName(path_), header_, NumberedValues());
    return side == SideFileCode::Ok ? SaveResult::Saved : SaveResult::CannotWriteSideFile;
}
