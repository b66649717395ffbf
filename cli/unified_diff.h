#pragma once

#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "customize/splice.h"

class LineIndex;

// Lines (counted from 0) of the old text that stand differently in the new one.
struct LineChange {
    size_t oldFirst;
    size_t oldCount;
    size_t newFirst;
    size_t newCount;
};

// The lines that a list of edits touches, in order; edits of one line come together.
std::vector<LineChange> ChangedLines(const LineIndex& oldLines, const LineIndex& newLines,
                                     std::span<const SpliceEdit> edits);

// Writes what saving would do to the file as a unified diff with three lines of context. The old text is told
// as it is on disk, without the closing bytes that loading added to it.
void WriteUnifiedDiff(const std::string& file, const ScriptText& before, const SplicedScript& spliced,
                      std::ostream& out);
