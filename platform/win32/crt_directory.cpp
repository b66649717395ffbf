#include <direct.h>
#include <sys/stat.h>
#include <unistd.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>

#include "drives.h"
#include "errors.h"
#include "lookup.h"

namespace {

int FailWith(int code) {
    errno = code;
    return -1;
}

}  // namespace

char* _getcwd(char* buffer, int size) {
    const auto place = buffer ? FindCurrentPlace() : std::nullopt;
    if (!place) {
        errno = buffer ? ENOENT : EINVAL;
        return nullptr;
    }
    std::string path{place->drive, ':'};
    path += place->rest.empty() ? "/" : place->rest;
    std::replace(path.begin(), path.end(), '/', '\\');
    if (size <= 0 || path.size() >= static_cast<size_t>(size)) {
        errno = ERANGE;
        return nullptr;
    }
    return static_cast<char*>(std::memcpy(buffer, path.c_str(), path.size() + 1));
}

int _mkdir(const char* name) {
    const LookedUp place = LookUp(name);
    if (place.error == NO_ERROR) return FailWith(EEXIST);
    if (place.error != ERROR_FILE_NOT_FOUND) return FailWith(ErrnoFromError(place.error));
    return mkdir(place.path.c_str(), 0777);
}

int _chdir(const char* name) {
    if (!name || !*name) return FailWith(EINVAL);
    const LookedUp place = LookUp(name);
    if (place.error != NO_ERROR) return FailWith(ErrnoFromError(place.error));
    return place.IsFolder() ? chdir(place.path.c_str()) : FailWith(EINVAL);
}
