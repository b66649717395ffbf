#pragma once

#include "customize/script_entry.h"
#include "customize/tag_observer.h"
#include "support/lex.h"

// The grammar of the tags: a tag is a comment line whose first word is a keyword.
//
//     // entry: Walk speed         begins a record; the word behind the slashes in any case, the colon
//     optional
//     // help: Quants per tick.    help, id and cntl add to the record, above or below the tag that begins it
//     // id: 12
//     // cntl: spin 0 x 5
//     var speed = 10;              the value line finishes it: the first token behind "=", or the first
//     string
//
//     // enable: Shadows           an on/off record for the next line, which is live or a comment
//     // use_shadows();
//
// A blank line, a code line without a value or another tag drops a record that is still waiting for its
// value. title, image, text and section are whole records by themselves.

// A comment line whose first word is a keyword, taken apart.
struct TagLine {
    int keyword = KindNone;          // -1 for a plain comment
    const char* slashes = nullptr;   // the "//", null when the line is no comment
    const char* argument = nullptr;  // from behind the keyword to the line's end
    int argumentLen = 0;
};
TagLine ReadTagLine(const char* line, int length);

// Brings the argument behind a keyword into the record, by kind.
void ApplyTag(CScriptEntry& entry, int kind, const char* text, int length);

// Begins a record of this kind; a record that was begun already is dropped.
void BeginEntry(CScriptEntry& entry, int kind, const char* text, int length);

// The number of a `ver` or `date` tag; -1 without an argument.
int ParseTagInt(const char* text, int length);

// Reads all tags of the text of `lex`, from its present line on, into the list and the header. The text must
// be in the closing form of ScriptText, so that no value lies in its last line. The observer may be null.
// Always 1.
int ParseScriptTags(ScriptHeader& header, CEntryList& list, CLex& lex, TagObserver* observer = nullptr);
