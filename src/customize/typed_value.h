#pragma once

#include <afx.h>

#include "controls/entry_value.h"
#include "customize/script_entry.h"

// What became of a text that somebody typed for a value.
struct TypedValue {
    CString error;   // why it is refused, empty when it was taken
    CString notice;  // how it was changed to fit, empty when it stands as typed
};

// Brings a typed text into a record's value object as the record's control would: numbers are read and forced
// into their limits, a switch takes on and off in several spellings, a list takes one of its items. Text that
// is no number at all is refused instead of counting as 0. The object stays as it was when the text is
// refused.
TypedValue TakeTypedValue(const CScriptEntry& entry, EntryValue& value, const CString& text);
