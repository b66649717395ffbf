#pragma once

#include <windef.h>

#include <string>
#include <string_view>

// A name made absolute: drive and current directory put in, "." and ".." resolved by the text alone, slashes
// as separators.
struct FullName {
    std::string folder;  // of the drive
    std::string rest;    // "" or "/a/b", below that folder
    bool endsInSeparator = false;
};

inline bool IsSeparator(char ch) {
    return ch == '\\' || ch == '/';
}

// 0, or the error that a call with this name ends with.
DWORD MakeFullName(const char* name, FullName& full);

// The last part of a name, behind its last separator or its drive's colon, without the dots and blanks at its
// end that do not count. Points into `name`.
std::string_view LastPart(std::string_view name);
