#pragma once

#include <memory>
#include <span>
#include <vector>

#include "controls/entry_value.h"
#include "customize/script_entry.h"
#include "customize/script_text.h"
#include "customize/side_file.h"
#include "customize/splice.h"
#include "customize/tag_observer.h"

enum class LoadResult {
    Loaded,
    CannotOpen,
    LineTooLong,  // the text is there, but a line of 1024 bytes or more keeps its tags from being read
};

enum class SaveResult {
    Saved,
    CannotOpen,           // nothing was touched
    CannotWrite,          // the old script is back
    CannotRestore,        // the old script could not be put back
    CannotWriteSideFile,  // the script itself is saved
};

// A script with its records and one value object per record: what a panel shows, without a window. Only the
// values that were asked for by Edit take part in a save, so that a script changes in nothing but what was
// set.
class ScriptDocument {
public:
    // Reads a file in place of what was loaded. An empty file has no records.
    LoadResult Load(const char* path, TagObserver* observer = nullptr);

    const CString& Path() const { return path_; }
    const ScriptText& Text() const { return text_; }
    const ScriptHeader& Header() const { return header_; }
    const CEntryList& List() const { return list_; }
    const CScriptEntry& Entry(size_t index) const { return list_.entries[index]; }

    // Index of the first line that is too long, -1 when there is none.
    int LongLine() const { return long_line_; }

    // The value of a record, to be changed; null for a record that has none, such as a title.
    EntryValue* Edit(size_t index);

    // The edited values that differ from the script's, in the order of the list.
    std::vector<NewValue> ChangedValues();

    // The values of all records with a number, for the side file or for another version of the script.
    std::vector<SavedValue> NumberedValues();

    // Writes the text that `changes` were spliced into and then the side file. When the script can't be
    // written, file and document stay as they were.
    SaveResult Save(std::span<const NewValue> changes);

private:
    CString path_;
    ScriptText text_;
    ScriptHeader header_;
    CEntryList list_;
    int long_line_ = -1;
    std::vector<std::unique_ptr<EntryValue>> values_;
    std::vector<bool> edited_;
};

// A value object as a panel sets it up from a record: the script's value, its limits or items. The names that
// a host offers for entities and paths are not among them. Null for a record without a value.
std::unique_ptr<EntryValue> MakeValueOf(const CScriptEntry& entry);
