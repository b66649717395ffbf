#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

// Names of files as the file dialog takes them. Separators are backslashes.

struct FileFilter {
    std::string label;
    std::vector<std::string> patterns;
};

// The pairs of label and patterns of an OPENFILENAME. Null gives none.
std::vector<FileFilter> ReadFileFilters(LPCSTR pairs);

std::vector<std::string> SplitPatterns(std::string_view patterns);

// A name seen from a folder: an absolute name, without "." and "..", and without a backslash at its end
// unless it is the root of a drive.
std::string ResolveName(const std::string& folder, std::string_view name);

// The parts of an absolute name: the folder, without a backslash at its end but for the root of a drive, and
// what stands behind it.
std::string FolderPart(const std::string& path);
std::string NamePart(const std::string& path);

bool HasWildcards(std::string_view name);
// A character that no file name may hold.
bool HasBadCharacters(std::string_view name);
bool IsFolder(const std::string& path);
bool Exists(const std::string& path);

// What a list of files shows of a folder: its folders, then the files that match; each sorted by name.
struct FolderContent {
    std::vector<std::string> folders;
    std::vector<std::string> files;
};
FolderContent ReadFolder(const std::string& folder, const std::vector<std::string>& patterns);
