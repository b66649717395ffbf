#include "manager/script_update.h"

#include <string>
#include <unordered_set>

#include "catalogue/project_record_file.h"
#include "catalogue/script_location.h"
#include "catalogue/script_operations.h"
#include "customize/value_check.h"
#include "support/saved_file.h"

namespace {

UpdateResult ReadDocument(ScriptDocument& script, const char* path, UpdateResult notReadable) {
    switch (script.Load(path)) {
        case LoadResult::Loaded: return UpdateResult::Updated;
        case LoadResult::LineTooLong: return UpdateResult::LineTooLong;
        case LoadResult::CannotOpen: break;
    }
    return notReadable;
}

std::vector<CarriedValue> ShowValues(ScriptDocument& script, const std::vector<SavedValue>& values) {
    return CarryValues(script.List(), values, [&script](size_t entry, const CString& value) {
        if (EntryValue* const shown = script.Edit(entry)) shown->DisplayValue(value);
    });
}

bool StaysReadable(const ScriptDocument& script, const std::vector<NewValue>& changes) {
    const SplicedScript spliced = SpliceValues(script.Text(), script.List(), changes);
    CEntryList expected = script.List();
    ApplySplice(spliced, changes, expected);
    return ReadsBack(spliced.text, expected);
}

// Everything that can be known before a file is touched.
UpdateResult Plan(ScriptUpdate& update, const char* copy, const char* original) {
    UpdateResult result = ReadDocument(update.before, copy, UpdateResult::CopyNotReadable);
    if (result != UpdateResult::Updated) return result;
    result = ReadDocument(update.original, original, UpdateResult::TemplateNotReadable);
    if (result != UpdateResult::Updated) return result;
    update.saved = update.before.NumberedValues();
    update.carried = ShowValues(update.original, update.saved);
    update.changes = update.original.ChangedValues();
    return StaysReadable(update.original, update.changes) ? result : UpdateResult::WouldBreak;
}

UpdateResult WriteValues(const std::vector<SavedValue>& values, const char* path) {
    ScriptDocument script;
    if (script.Load(path) != LoadResult::Loaded) return UpdateResult::ValuesNotWritten;
    ShowValues(script, values);
    const std::vector<NewValue> changes = script.ChangedValues();
    if (changes.empty()) return UpdateResult::Updated;
    switch (script.Save(changes)) {
        case SaveResult::Saved: return UpdateResult::Updated;
        case SaveResult::CannotWriteSideFile: return UpdateResult::SideFileStale;
        default: return UpdateResult::ValuesNotWritten;
    }
}

// A template without the user's values is no update: the old copy comes back.
UpdateResult CarryOut(const ScriptUpdate& update, const char* include, const char* copy) {
    ScriptFile old;
    if (!old.Load(copy)) return UpdateResult::CopyNotReadable;
    if (WriteSideFile(SideFileName(copy), update.before.Header(), update.saved) != SideFileCode::Ok)
        return UpdateResult::ValuesNotKept;
    switch (ReplaceByTemplate(CurrentHost(), include)) {
        case TemplateSwap::Done: break;
        case TemplateSwap::NotDeleted:
        case TemplateSwap::NotRestored: return UpdateResult::NotReplaced;
        case TemplateSwap::CopyLost: return UpdateResult::CopyLost;
    }
    const UpdateResult result = WriteValues(update.saved, copy);
    if (result != UpdateResult::ValuesNotWritten) return result;
    const bool back = ReplaceFileContent(copy, old.Data(), static_cast<size_t>(old.Size()));
    return back ? result : UpdateResult::CopyLost;
}

std::string KeyOf(const CScriptEntry& entry) {
    const CString label = entry.label + '\0' + entry.value;
    return std::to_string(entry.kind) + ' ' + std::string(label, static_cast<size_t>(label.GetLength()));
}

}  // namespace

const char* UpdateResultText(UpdateResult result) {
    switch (result) {
        case UpdateResult::Updated: return "updated";
        case UpdateResult::SideFileStale:
            return "updated, but the side file can't be written and tells the old values";
        case UpdateResult::CopyNotReadable: return "the project's copy can't be read, nothing was changed";
        case UpdateResult::TemplateNotReadable: return "the template can't be read, nothing was changed";
        case UpdateResult::LineTooLong:
            return "a line of 1024 bytes or more keeps the values from being read, nothing was changed";
        case UpdateResult::WouldBreak:
            return "with these values the new script would no longer read as before, nothing was changed";
        case UpdateResult::ValuesNotKept: return "the side file can't be written, nothing was changed";
        case UpdateResult::NotReplaced: return "the copy can't be replaced, it is as it was";
        case UpdateResult::ValuesNotWritten: return "the values can't be written, the old copy is back";
        case UpdateResult::CopyLost: break;
    }
    return "the new copy can't be written, and the old one could not be put back";
}

ScriptUpdate UpdateScript(const CString& include) {
    ScriptUpdate update;
    PathBuffer copy;
    PathBuffer original;
    GetProjectPath(CurrentHost(), include, copy);
    GetTemplatePath(CurrentHost(), include, original);
    update.result = Plan(update, copy, original);
    if (update.result == UpdateResult::Updated) update.result = CarryOut(update, include, copy);
    return update;
}

std::vector<size_t> FindLostValues(const CEntryList& before, const CEntryList& after) {
    std::unordered_set<std::string> present;
    for (const CScriptEntry& entry : after.entries)
        present.insert(KeyOf(entry));
    std::vector<size_t> lost;
    for (size_t i = 0; i < before.entries.size(); ++i) {
        const CScriptEntry& entry = before.entries[i];
        const bool carriesNothing = entry.id < 1 && MakeEntryValue(entry.kind) != nullptr;
        if (carriesNothing && !present.contains(KeyOf(entry))) lost.push_back(i);
    }
    return lost;
}
