#pragma once

#include <afx.h>

#include "support/lex.h"

// What a script tells of itself in comment lines, as functions over its text: "// ver: 12", "// date:
// 20240118",
// "// needs: tools.brl, sound.brl". Keys are separated from what follows by blanks, colons, commas or
// semicolons and are known in any case. A comment behind code tells nothing.

// Version and date as they are written. Nothing orders them: they are compared for being equal.
struct ScriptInfo {
    CString ver = "-1";  // "-1" when the script has none
    CString date = "-1";
};

// Of several comments of one kind the last counts. A value is one word: it ends at white space or a comma,
// and it begins 5 bytes behind the start of "ver" and 6 behind that of "date", whatever stands there.
ScriptInfo ReadScriptInfo(CLex& lex);

// Appends the names of all needs comments, in their order. The result is the number of them.
int ReadNeeds(CLex& lex, CStringArray& names);
