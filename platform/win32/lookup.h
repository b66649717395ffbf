#pragma once

#include <sys/stat.h>
#include <windef.h>

#include <string>

// What a name leads to.
struct LookedUp {
    // 0 when it is there; ERROR_FILE_NOT_FOUND when only its folder is, so that it can be made under `path`;
    // any other error when nothing can be.
    DWORD error;
    std::string path;    // as the file system spells it
    struct stat status;  // only when it is there
    bool endsInSeparator;
    bool isDriveRoot;

    bool IsFolder() const { return S_ISDIR(status.st_mode); }
    bool IsReadOnly() const { return !(status.st_mode & S_IWUSR); }
};

LookedUp LookUp(const char* name);

// FILE_ATTRIBUTE_ bits of an entry.
DWORD Attributes(const struct stat& status);
