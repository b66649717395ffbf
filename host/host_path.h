#pragma once

#include <string>
#include <string_view>

// Paths of a project file: written with backslashes or slashes, full or from the file's own folder.

// The full path, with backslashes and without "." and ".." in it.
std::string PathFrom(std::string_view folder, std::string_view path);
