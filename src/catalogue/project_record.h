#pragma once

#include <afx.h>

#include "support/lex.h"

// What a project has installed: the include run of its main script, read from the file each time. Nothing is
// kept here and nothing shows a message.
//
// A script is rewritten only as a whole: its new text is complete before the file is opened, and when a write
// fails the old text goes back.

// Appends the names of the include run of a script. Always true: a file that can't be read, is empty or has a
// line of 1024 bytes or more adds nothing.
bool GetIncludes(const char* path, CStringArray& names);

// Appends the names that a script needs by its own comments; the result is the number of them, 0 for a file
// that can't be read.
int GetScriptNeeds(const char* path, CStringArray& names);

enum class RecordChange {
    Unchanged,  // there was nothing to change
    Written,
    NotWritten,  // the file is as it was: it can't be opened or written
};

// Adds include lines to the main script, whose text `lex` holds, for the script and what it needs, as far as
// they are not there. Only the needs that the script itself tells count, and they come in front of it. A
// script of the main script's own file name is never added.
RecordChange ChangeByAdding(CLex& lex, const char* mainPath, const char* scriptPath);
// The same; true when there was something to add, written or not.
bool AddIncludes(CLex& lex, const char* mainPath, const char* scriptPath);

// Takes the first include of `name` out of the main script that the host names, and tells the host.
RecordChange ChangeByRemoving(const char* name);
// The same; true when there was such an include, written or not.
bool RemoveInclude(const char* name);
