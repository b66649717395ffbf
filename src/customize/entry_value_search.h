#pragma once

#include "customize/script_entry.h"
#include "customize/script_token.h"

// Finds the value of a code line: the first token behind an equals sign, or the first quoted string before
// any semicolon. The line's first token is never looked at. Fills `value`, `textPos` and `textLen` with the
// token as it stands in the text, quotes included. 1 when the search came to its end (perhaps without a
// value), 0 when it failed.
int FindEntryValue(CScriptEntry& entry, CLex& lex, const char* line, int length,
                   TokenFailure* failure = nullptr);

// Takes the double quotes of a quoted value off it and off its place; false when it has none.
bool StripQuotes(CScriptEntry& entry);

// The same for angle brackets; white space inside them leaves the value but not its place.
bool StripBrackets(CScriptEntry& entry);
