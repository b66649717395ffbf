#pragma once

#include <span>
#include <vector>

#include "customize/script_entry.h"
#include "customize/script_text.h"

// A value that goes into the script, without quotes or brackets: those stand outside its place and stay. An
// `enable` entry takes "0" to comment its line out and anything else to make it live.
struct NewValue {
    size_t entry;  // index in the list
    CString value;
};

// One run of bytes that was put in the place of another; offsets in the old and in the new text.
struct SpliceEdit {
    long oldPos;
    long oldLen;
    long newPos;
    long newLen;
};

// The script with its new values, and where the values of all entries now stand.
struct SplicedScript {
    struct Place {
        const char* textPos;
        int textLen;
    };

    ScriptText text;
    std::vector<Place> places;  // one per entry of the list
    std::vector<SpliceEdit> edits;
};

// Makes the new text in one pass; no byte outside the values' places is changed. The changes are given in the
// order of the list. An entry without a place in the text is left alone.
SplicedScript SpliceValues(const ScriptText& text, const CEntryList& list, std::span<const NewValue> changes);

// Moves a list's entries to where they stand in the new text, with their new values.
void ApplySplice(const SplicedScript& spliced, std::span<const NewValue> changes, CEntryList& list);

// Makes the new text the present one, so that the next change starts from what was written.
void TakeSplice(SplicedScript&& spliced, std::span<const NewValue> changes, ScriptText& text,
                CEntryList& list);
