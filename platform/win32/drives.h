#pragma once

#include <optional>
#include <string>

// Where a drive begins. The folder is absolute and has no slash at its end, so that the root is "".
std::optional<std::string> DriveFolder(char letter);

struct CurrentPlace {
    char drive;
    std::string folder;  // of the drive
    std::string rest;    // "" or "/a/b", below that folder
};

// Nothing when the current directory is gone or lies on no drive.
std::optional<CurrentPlace> FindCurrentPlace();
