#include <algorithm>

#include "cli/carried_report.h"
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
