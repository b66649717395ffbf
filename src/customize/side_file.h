#pragma once

#include <afx.h>

#include <span>
#include <string>
#include <vector>

#include "customize/script_entry.h"

// The side file keeps a script's numbered values beside it, under the script's whole name with ".brlv" behind
// it, so that they can be carried over into a newer version of the script. Lines end in LF:
//
//     1            format number          12           id of the entry, 1 or more
//     104          the script's version   11           kind of the entry
//     -1           the script's date      10           value
//     (empty)                             (empty)      and so on, one block per value
//
// A reader takes lines of at most 511 bytes. A value that does not fit into one, or that holds a line end or
// a NUL, is written in numbered pieces that a reader of plain records steps over in pairs of lines:
//
//     -12 18 1/2   minus the id, the kind, the number of this piece and of all
//     first line\n...        up to 500 bytes, with \n, \r, \0 and \\ for LF, CR, NUL and the backslash
//     -12 18 2/2
//     ...

// What went wrong, numbered as the messages number it.
enum class SideFileCode : int {
    Ok = 0,
    CannotWrite = 2701,
    CannotRead = 2801,
    NoFormat = 2802,
    NoVersion = 2803,
    NoDate = 2804,
    NoKind = 2807,
    NoValue = 2808,
};

// The message for the user; an empty text for Ok.
const char* SideFileMessage(SideFileCode code);

struct SavedValue {
    int id;
    int kind;
    CString value;
};

// What could be read, in the file's order; values in front of a fault are kept.
struct SideFile {
    SideFileCode code = SideFileCode::Ok;
    std::vector<SavedValue> values;
};

// The name of the side file of a script.
CString SideFileName(const char* scriptPath);

std::string FormatSideFile(const ScriptHeader& header, std::span<const SavedValue> values);
SideFile ParseSideFile(const char* text, size_t size);

// Both take the side file's own name.
SideFileCode WriteSideFile(const char* path, const ScriptHeader& header, std::span<const SavedValue> values);
SideFile ReadSideFile(const char* path);
