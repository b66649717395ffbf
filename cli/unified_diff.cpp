#include "cli/unified_diff.h"

#include <algorithm>

#include "cli/script_report.h"

namespace {

constexpr size_t kContext = 3;
constexpr long kClosingSize = 3;

// Changes whose context touches, shown under one heading.
struct Hunk {
    std::span<const LineChange> changes;
    size_t oldFirst;
    size_t oldEnd;
    size_t newFirst;
    size_t newEnd;
};

void WriteLine(char mark, const std::string& line, std::ostream& out) {
    out << mark << line;
    if (line.empty() || line.back() != '\n') out << "\n\\ No newline at end of file\n";
}

void WriteRange(size_t first, size_t end, std::ostream& out) {
    const size_t count = end - first;
    out << (count == 0 ? first : first + 1);
    if (count != 1) out << ',' << count;
}

std::vector<Hunk> MakeHunks(std::span<const LineChange> changes, size_t oldLineCount) {
    std::vector<Hunk> hunks;
    for (size_t i = 0; i < changes.size();) {
        size_t last = i;
        while (last + 1 < changes.size() &&
               changes[last + 1].oldFirst <= changes[last].oldFirst + changes[last].oldCount + 2 * kContext) {
            ++last;
        }
        const size_t before = std::min(kContext, changes[i].oldFirst);
        const size_t changed_end = changes[last].oldFirst + changes[last].oldCount;
        const size_t after = std::min(kContext, oldLineCount - changed_end);
        hunks.push_back({changes.subspan(i, last - i + 1), changes[i].oldFirst - before, changed_end + after,
                         changes[i].newFirst - before,
                         changes[last].newFirst + changes[last].newCount + after});
        i = last + 1;
    }
    return hunks;
}

void WriteHunk(const Hunk& hunk, const LineIndex& oldLines, const LineIndex& newLines, std::ostream& out) {
    out << "@@ -";
    WriteRange(hunk.oldFirst, hunk.oldEnd, out);
    out << " +";
    WriteRange(hunk.newFirst, hunk.newEnd, out);
    out << " @@\n";
    size_t at = hunk.oldFirst;
    for (const LineChange& change : hunk.changes) {
        for (; at < change.oldFirst; ++at)
            WriteLine(' ', oldLines.Line(at), out);
        for (; at < change.oldFirst + change.oldCount; ++at)
            WriteLine('-', oldLines.Line(at), out);
        for (size_t i = 0; i < change.newCount; ++i)
            WriteLine('+', newLines.Line(change.newFirst + i), out);
    }
    for (; at < hunk.oldEnd; ++at)
        WriteLine(' ', oldLines.Line(at), out);
}

}  // namespace

std::vector<LineChange> ChangedLines(const LineIndex& oldLines, const LineIndex& newLines,
                                     std::span<const SpliceEdit> edits) {
    std::vector<LineChange> changes;
    for (const SpliceEdit& edit : edits) {
        const size_t old_first = oldLines.LineOf(edit.oldPos);
        const size_t old_end = oldLines.LineOf(edit.oldPos + edit.oldLen) + 1;
        const size_t new_first = newLines.LineOf(edit.newPos);
        const size_t new_end = newLines.LineOf(edit.newPos + edit.newLen) + 1;
        if (!changes.empty() && changes.back().oldFirst + changes.back().oldCount > old_first) {
            LineChange& same = changes.back();
            same.oldCount = std::max(same.oldCount, old_end - same.oldFirst);
            same.newCount = std::max(same.newCount, new_end - same.newFirst);
        } else {
            changes.push_back({old_first, old_end - old_first, new_first, new_end - new_first});
        }
    }
    return changes;
}

void WriteUnifiedDiff(const std::string& file, const ScriptText& before, const SplicedScript& spliced,
                      std::ostream& out) {
    const long file_size = before.WasClosed() ? before.Size() : before.Size() - kClosingSize;
    const LineIndex old_lines(before.Data(), file_size);
    const LineIndex new_lines(spliced.text.Data(), spliced.text.Size());
    std::vector<LineChange> changes = ChangedLines(old_lines, new_lines, spliced.edits);
    if (!before.WasClosed()) {
        const bool ends_in_line = file_size > 0 && before.Data()[file_size - 1] == '\n';
        const size_t first = ends_in_line ? old_lines.Count() : old_lines.Count() - 1;
        const size_t new_first = new_lines.Count() - 2;
        const LineChange closing{first, old_lines.Count() - first, new_first, 2};
        const bool joins = !changes.empty() && changes.back().oldFirst + changes.back().oldCount > first;
        if (joins) {
            changes.back().newCount = new_lines.Count() - changes.back().newFirst;
        } else {
            changes.push_back(closing);
        }
    }
    if (changes.empty()) return;
    out << "--- " << file << "\n+++ " << file << '\n';
    for (const Hunk& hunk : MakeHunks(changes, old_lines.Count()))
        WriteHunk(hunk, old_lines, new_lines, out);
}
