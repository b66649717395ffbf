#include <algorithm>
#include <unordered_map>

#include "cli/commands.h"
#include "cli/script_report.h"
#include "customize/carry_values.h"

namespace {

bool IsSideFile(const std::string& file) {
    return CString(file.c_str()).Right(5).CompareNoCase(".brlv") == 0;
}

// The values of a script, or of the side file that was named instead, and the records they come from.
int ReadOldValues(const std::string& file, ScriptDocument& script, std::vector<SavedValue>& values,
                  std::ostream& err) {
    if (!IsSideFile(file)) {
        const int status = LoadScript(script, file, err);
        values = script.NumberedValues();
        return status;
    }
    SideFile side = ReadSideFile(file.c_str());
    values = std::move(side.values);
    if (side.code == SideFileCode::Ok) return ExitOk;
    std::string words = SideFileMessage(side.code);
    std::replace(words.begin(), words.end(), '\n', ' ');
    err << "brlv: " << file << ": " << words << '\n';
    return ExitFiles;
}

bool IsOutOfLimits(const CScriptEntry& entry, const CString& value) {
    if (entry.kind != KindNumEdit || entry.limitsMode == LimitsNone) return false;
    IntValue limited;
    limited.SetLimits(entry.minValue, entry.maxValue, entry.stepValue);
    limited.DisplayValue(value);
    return limited.Field().Clamp();
}

// What became of one value, in words.
CString Outcome(const CScriptEntry* old, const CScriptEntry& entry, const CString& saved,
                const CString& shown) {
    const bool list = entry.kind == KindEntity || entry.kind == KindPath || entry.kind == KindDrop;
    if (list)
        return shown == saved ? "kept, the same in both"
                              : "not carried: a list keeps the new script's " + shown;
    CString words = saved == entry.value ? "the same in both" : "carried";
    if (shown != saved && saved != entry.value) words += " as " + shown;
    if (IsOutOfLimits(entry, shown)) {
        CString limits;
        limits.Format(", outside the new limits %g to %g", entry.minValue, entry.maxValue);
        words += limits;
    } else if (old != nullptr && old->limitsMode == LimitsSpin && entry.limitsMode != LimitsSpin) {
        words += ", its limits are gone";
    }
    return words;
}

void ReportCarried(const std::vector<CarriedValue>& carried, const CEntryList& old, const CEntryList& target,
                   const std::vector<NewValue>& changes, std::ostream& out) {
    std::unordered_map<int, const CScriptEntry*> old_by_id;
    for (const CScriptEntry& entry : old.entries)
        old_by_id.try_emplace(entry.id, &entry);
    std::unordered_map<size_t, CString> shown;
    for (const NewValue& change : changes)
        shown[change.entry] = change.value;

    for (const auto& [saved, entry] : carried) {
        if (entry < 0) {
            out << '#' << saved->id << " = " << OneLine(saved->value) << ": no record has this id\n";
            continue;
        }
        const size_t index = static_cast<size_t>(entry);
        const CScriptEntry& record = target.entries[index];
        const auto change = shown.find(index);
        const CString& now = change == shown.end() ? record.value : change->second;
        const auto before = old_by_id.find(saved->id);
        const CScriptEntry* const old_record = before == old_by_id.end() ? nullptr : before->second;
        out << RecordName(target, index) << " = " << OneLine(saved->value) << ": "
            << OneLine(Outcome(old_record, record, saved->value, now)) << '\n';
    }
}

}  // namespace

int RunCarry(const std::string& from, const std::string& to, bool dryRun, Streams streams) {
    ScriptDocument old;
    std::vector<SavedValue> values;
    if (const int failed = ReadOldValues(from, old, values, streams.err)) return failed;
    ScriptDocument target;
    if (const int failed = LoadScript(target, to, streams.err)) return failed;

    const auto take = [&target](size_t entry, const CString& value) {
        if (EntryValue* const shown = target.Edit(entry)) shown->DisplayValue(value);
    };
    const std::vector<CarriedValue> carried = CarryValues(target.List(), values, take);
    const std::vector<NewValue> changes = target.ChangedValues();
    ReportCarried(carried, old.List(), target.List(), changes, dryRun ? streams.err : streams.out);
    return WriteChanges(target, changes, to, dryRun, streams);
}
