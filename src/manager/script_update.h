#pragma once

#include <afx.h>

#include <vector>

#include "customize/carry_values.h"
#include "customize/script_document.h"

// Brings the template's file in the place of the project's copy and the values of that copy into it, by their
// ids.

enum class UpdateResult {
    Updated,
    SideFileStale,  // updated, but the side file could not be written and tells the old values
    // From here on the project's copy is as it was.
    CopyNotReadable,
    TemplateNotReadable,
    LineTooLong,    // in one of the two, so that its values are not known
    WouldBreak,     // the template would no longer read as before with these values in it
    ValuesNotKept,  // the side file, which is written before anything is replaced, could not be
    NotReplaced,    // the copy could not be deleted, or the template's file did not arrive
    ValuesNotWritten,
    CopyLost,  // that one is not: neither could the template's file be brought in nor the old one put back
};

// A sentence without its full stop.
const char* UpdateResultText(UpdateResult result);

struct ScriptUpdate {
    UpdateResult result = UpdateResult::Updated;
    ScriptDocument before;              // the project's copy as it was
    ScriptDocument original;            // the template, with its own values
    std::vector<SavedValue> saved;      // the values of `before` that have an id
    std::vector<CarriedValue> carried;  // where they went in `original`
    std::vector<NewValue> changes;      // what differs from `original` in the project's new copy
};

// For the include name of a script that the project has a copy of, without questions. The values are kept in
// the side file before the copy is replaced. Messages of the replacement itself are shown.
ScriptUpdate UpdateScript(const CString& include);

// The places in `before` of values without an id, which no update carries, as far as the new script does not
// have the same value under the same label.
std::vector<size_t> FindLostValues(const CEntryList& before, const CEntryList& after);
