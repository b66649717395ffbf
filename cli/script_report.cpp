#include "cli/script_report.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "cli/unified_diff.h"
#include "customize/value_check.h"

namespace {

// Says what went wrong at a save and gives the exit status.
int ReportSave(SaveResult result, const std::string& file, std::ostream& err) {
    switch (result) {
        case SaveResult::Saved: return ExitOk;
        case SaveResult::CannotOpen: err << "brlv: " << file << ": can't be opened for writing\n"; break;
        case SaveResult::CannotWrite:
            err << "brlv: " << file
                << ": can't be written (disk full?), the old script is back in its place\n";
            break;
        case SaveResult::CannotRestore:
            err << "brlv: " << file << ": can't be written, and the old script could not be put back\n";
            break;
        case SaveResult::CannotWriteSideFile:
            err << "brlv: " << file << ".brlv: can't be written; the script itself is saved\n";
            break;
    }
    return ExitFiles;
}

// Shows the changed lines of a script, each marked with its number.
void ShowChangedLines(const ScriptText& before, const SplicedScript& spliced, std::ostream& out) {
    const LineIndex old_lines(before.Data(), before.Size());
    const LineIndex new_lines(spliced.text.Data(), spliced.text.Size());
    for (const LineChange& change : ChangedLines(old_lines, new_lines, spliced.edits)) {
        const auto show = [&out](char mark, const LineIndex& lines, size_t first, size_t count) {
            for (size_t i = first; i < first + count; ++i) {
                std::string line = lines.Line(i);
                while (!line.empty() && (line.back() == '\n' || line.back() == '\r'))
                    line.pop_back();
                out << i + 1 << ' ' << mark << ' ' << line << '\n';
            }
        };
        show('-', old_lines, change.oldFirst, change.oldCount);
        show('+', new_lines, change.newFirst, change.newCount);
    }
}

}  // namespace

LineIndex::LineIndex(const char* text, long size) : text_(text), size_(size), starts_{0} {
    const char* const end = text + size;
    const char* at = text;
    while (at < end) {
        at = static_cast<const char*>(std::memchr(at, '\n', static_cast<size_t>(end - at)));
        if (at == nullptr || ++at == end) break;
        starts_.push_back(static_cast<long>(at - text));
    }
}

size_t LineIndex::LineOf(long offset) const {
    return static_cast<size_t>(std::upper_bound(starts_.begin(), starts_.end(), offset) - starts_.begin()) -
           1;
}

TextPlace LineIndex::PlaceOf(long offset) const {
    const size_t line = LineOf(offset);
    return {static_cast<long>(line) + 1, offset - starts_[line] + 1};
}

std::string LineIndex::Line(size_t index) const {
    const long end = index + 1 < starts_.size() ? starts_[index + 1] : size_;
    return {text_ + starts_[index], static_cast<size_t>(end - starts_[index])};
}

int LoadScript(ScriptDocument& script, const std::string& file, std::ostream& err) {
    switch (script.Load(file.c_str())) {
        case LoadResult::Loaded: return ExitOk;
        case LoadResult::CannotOpen: err << "brlv: " << file << ": can't be read\n"; return ExitFiles;
        case LoadResult::LineTooLong:
            err << "brlv: " << file << ":" << script.LongLine() + 1 << ": a line of 1024 bytes or more, "
                << "no tag of this script is read\n";
            return ExitUser;
    }
    return ExitFiles;
}

std::string RecordName(const CEntryList& list, size_t index) {
    const CScriptEntry& entry = list.entries[index];
    std::string name = entry.id > 0 ? "#" + std::to_string(entry.id) : "@" + std::to_string(index + 1);
    if (!entry.label.IsEmpty()) name += " " + OneLine(entry.label);
    return name;
}

std::string OneLine(const CString& value) {
    std::string line;
    for (int i = 0; i < value.GetLength(); ++i) {
        switch (const char ch = value.GetAt(i)) {
            case '\n': line += "\\n"; break;
            case '\r': line += "\\r"; break;
            case '\t': line += "\\t"; break;
            case '\0': line += "\\0"; break;
            default: line += ch; break;
        }
    }
    return line;
}

int WriteChanges(ScriptDocument& script, const std::vector<NewValue>& changes, const std::string& file,
                 bool dryRun, Streams streams) {
    if (changes.empty()) {
        if (!dryRun) streams.out << file << ": nothing to change\n";
        return ExitOk;
    }
    const SplicedScript spliced = SpliceValues(script.Text(), script.List(), changes);
    CEntryList expected = script.List();
    ApplySplice(spliced, changes, expected);
    if (!ReadsBack(spliced.text, expected)) {
        streams.err << "brlv: " << file << ": with these values the script would no longer read as before, "
                    << "nothing was written\n";
        return ExitUser;
    }
    if (dryRun) {
        WriteUnifiedDiff(file, script.Text(), spliced, streams.out);
        return ExitOk;
    }
    std::ostringstream lines;
    ShowChangedLines(script.Text(), spliced, lines);
    if (const int failed = ReportSave(script.Save(changes), file, streams.err)) return failed;
    streams.out << file << ": " << changes.size() << (changes.size() == 1 ? " value" : " values")
                << " changed\n"
                << lines.str();
    return ExitOk;
}
