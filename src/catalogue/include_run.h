#pragma once

#include <afx.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "support/lex.h"

// The include lines of a script, as functions over its text.
//
// An include line is one whose first token begins with "include"; it names a script when the next token,
// which may stand on a later line, is put in angle brackets. What a project has installed is the include run
// of its main script: the first unbroken run of include lines, wherever it begins. A blank line or a comment
// ends the run. Names compare without regard to the case of ASCII letters.

// Appends the names of the include run, in its order. `lex` stands at the start of its text.
void ReadIncludes(CLex& lex, CStringArray& names);

// Takes out of `names` every name that the include run holds. The result is the place in the text of `lex`
// where new include lines belong: behind the run, or, without one, in front of the first line that is no
// comment. Where the run ends with the text, it is the start of the last include line. Null in a text that is
// all comment. `lex` stands at the start of its text.
const char* FindInsertPoint(CLex& lex, CStringArray& names);

// The text with an include line for each name in front of the byte at `place`.
std::string WithIncludes(std::string_view text, size_t place, const CStringArray& names);

// The text without its first include line of that name, inside the include run or not; nothing when there is
// none. An include that is split over lines takes all of them along. When only the last line of the text
// stands behind it, that one loses up to two CR at its end.
std::optional<std::string> WithoutInclude(std::string_view text, std::string_view name);
