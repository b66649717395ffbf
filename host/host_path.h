#pragma once

#include <string>
#include <string_view>

// Paths of a project file or of a user: written with backslashes or slashes, full or from a folder.

// The full path, with backslashes and without "." and ".." in it.
std::string PathFrom(std::string_view folder, std::string_view path);

// The same from the current folder, with a drive.
std::string FullPath(std::string_view path);
