#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "customize/script_document.h"

// Line and column of a byte, both from 1; columns count bytes.
struct TextPlace {
    long line;
    long column;
};

// Finds lines by offset in one text, which must outlive the object.
class LineIndex {
public:
    LineIndex(const char* text, long size);
    TextPlace PlaceOf(long offset) const;
    size_t LineOf(long offset) const;  // from 0
    size_t Count() const { return starts_.size(); }
    // The bytes of a line, its line end included.
    std::string Line(size_t index) const;

private:
    const char* text_;
    long size_;
    std::vector<long> starts_;
};

// Loads a script; on failure says so on `err` and gives the exit status.
int LoadScript(ScriptDocument& script, const std::string& file, std::ostream& err);

// "#12 Walk speed" or "@3 Walk speed": how a record is called in messages.
std::string RecordName(const CEntryList& list, size_t index);

// A value on one line, with C escapes for line ends, tabs and NUL.
std::string OneLine(const CString& value);

// Writes the changes into script and side file and shows the changed lines; a dry run shows a diff and writes
// nothing. Values after which the script would read differently elsewhere are refused. Gives the exit status.
int WriteChanges(ScriptDocument& script, const std::vector<NewValue>& changes, const std::string& file,
                 bool dryRun, Streams streams);
