#include <map>
#include <optional>

#include "cli/commands.h"
#include "cli/script_report.h"
#include "cli/unified_diff.h"
#include "customize/typed_value.h"
#include "customize/value_check.h"
#include "support/number_text.h"

namespace {

// Records that a key may mean: one, none, or several of the same label.
std::vector<size_t> FindKey(const CEntryList& list, const std::string& key) {
    const auto matching = [&list](auto&& matches) {
        std::vector<size_t> found;
        for (size_t i = 0; i < list.entries.size(); ++i) {
            const bool has_value = MakeEntryValue(list.entries[i].kind) != nullptr;
            if (has_value && matches(i, list.entries[i])) found.push_back(i);
        }
        return found;
    };
    const bool numbered = key.size() > 1 && key.find_first_not_of("0123456789", 1) == std::string::npos;
    const int number = numbered ? ParseInt(key.data() + 1, key.size() - 1) : 0;
    if (numbered && key[0] == '#') {
        return matching([&](size_t, const CScriptEntry& entry) { return entry.id == number; });
    }
    if (numbered && key[0] == '@') {
        return matching([&](size_t i, const CScriptEntry&) { return i + 1 == static_cast<size_t>(number); });
    }
    std::vector<size_t> exact =
        matching([&](size_t, const CScriptEntry& entry) { return entry.label == key.c_str(); });
    if (!exact.empty()) return exact;
    return matching([&](size_t, const CScriptEntry& e) { return e.label.CompareNoCase(key.c_str()) == 0; });
}

struct Assignment {
    size_t entry;
    CString value;
};

// Labels may hold an equals sign, so the first one in front of which a key stands is taken.
std::optional<Assignment> ReadAssignment(const CEntryList& list, const std::string& text, std::ostream& err) {
    if (text.find('=') == std::string::npos) {
        err << "brlv: " << text << ": expected KEY=VALUE\n";
        return std::nullopt;
    }
    for (size_t at = text.find('='); at != std::string::npos; at = text.find('=', at + 1)) {
        const std::string key = text.substr(0, at);
        const std::vector<size_t> found = FindKey(list, key);
        if (found.size() == 1) return Assignment{found[0], CString(text.c_str() + at + 1)};
        if (found.size() < 2) continue;
        err << "brlv: " << key << ": several records have this name:";
        for (const size_t i : found)
            err << " @" << i + 1;
        err << '\n';
        return std::nullopt;
    }
    err << "brlv: " << text.substr(0, text.find('=')) << ": no value of this name, see brlv tags\n";
    return std::nullopt;
}

// Brings the value into its record; false when it is refused.
bool TakeAssignment(ScriptDocument& script, const Assignment& assignment, std::ostream& err) {
    const CScriptEntry& entry = script.Entry(assignment.entry);
    const std::string name = RecordName(script.List(), assignment.entry);
    if (entry.textPos == nullptr) {
        err << "brlv: " << name << ": the value has no place in the script\n";
        return false;
    }
    const TypedValue taken = TakeTypedValue(entry, *script.Edit(assignment.entry), assignment.value);
    const ValueFault fault = FindValueFault(entry, assignment.value);
    if (!taken.error.IsEmpty() || fault != ValueFault::None) {
        const char* const why = taken.error.IsEmpty() ? ValueFaultText(fault) : taken.error.GetString();
        err << "brlv: " << name << ": " << OneLine(assignment.value) << ": " << why << '\n';
        return false;
    }
    if (!taken.notice.IsEmpty()) {
        err << "brlv: " << name << ": " << OneLine(assignment.value) << ": " << taken.notice << '\n';
    }
    return true;
}

// Decimals go into the script as their field spells them.
void ReportSpelling(const ScriptDocument& script, const NewValue& change, const CString& typed,
                    std::ostream& err) {
    if (script.Entry(change.entry).kind != KindNumEditF || typed == change.value) return;
    err << "brlv: " << RecordName(script.List(), change.entry) << ": " << typed << " is written as "
        << change.value << '\n';
}

}  // namespace

int RunSet(const std::string& file, const std::vector<std::string>& assignments, bool dryRun,
           Streams streams) {
    ScriptDocument script;
    if (const int failed = LoadScript(script, file, streams.err)) return failed;
    std::map<size_t, CString> typed;
    bool refused = false;
    for (const std::string& text : assignments) {
        const std::optional<Assignment> assignment = ReadAssignment(script.List(), text, streams.err);
        refused = !assignment || !TakeAssignment(script, *assignment, streams.err) || refused;
        if (assignment) typed[assignment->entry] = assignment->value;
    }
    if (refused) {
        streams.err << "brlv: " << file << ": nothing was written\n";
        return ExitUser;
    }
    const std::vector<NewValue> changes = script.ChangedValues();
    for (const NewValue& change : changes)
        ReportSpelling(script, change, typed[change.entry], streams.err);
    return WriteChanges(script, changes, file, dryRun, streams);
}
