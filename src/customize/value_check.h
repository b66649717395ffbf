#pragma once

#include "customize/script_entry.h"
#include "customize/script_text.h"

// What a value would do to the script around it.
enum class ValueFault {
    None,
    QuoteInside,    // a double quote would end the string early
    LineEndInside,  // a line end in a value of one line
    BracketInside,  // an angle bracket would end the file name early
    NulInside,
    NotOneWord,  // the value stands without quotes, so blanks and marks would end it early
};

// The fault in words, as a sentence without its full stop.
const char* ValueFaultText(ValueFault fault);

// Looks at the value alone. Line ends are let through only for the text of an entry with several rows.
ValueFault FindValueFault(const CScriptEntry& entry, const CString& value);

// Parses the text anew and compares: true when it gives just these entries at just these places. This is the
// last word on whether new values leave the script readable.
bool ReadsBack(const ScriptText& text, const CEntryList& expected);
