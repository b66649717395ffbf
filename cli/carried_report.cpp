#include "cli/carried_report.h"

#include <unordered_map>

#include "cli/script_report.h"

namespace {

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

}  // namespace

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
