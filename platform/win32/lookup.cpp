#include "lookup.h"

#include <dirent.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string_view>

#include "ascii_case.h"
#include "errors.h"
#include "full_name.h"

namespace {

// The entry of the folder that equals `name` but for case, the first in order of the bytes when there are
// several; empty when there is none.
std::string FindCaseless(const std::string& folder, std::string_view name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(folder.empty() ? "/" : folder.c_str()),
                                                        closedir);
    std::string best;
    if (!directory) return best;
    while (const dirent* entry = readdir(directory.get())) {
        const std::string_view candidate = entry->d_name;
        if (CompareAsciiCaseless(candidate, name) != 0) continue;
        if (best.empty() || candidate < best) best = candidate;
    }
    return best;
}

// Adds one part to the path, in the spelling of the file system where it is there.
bool StepInto(std::string& path, std::string_view part, struct stat& status) {
    const size_t folderLength = path.size();
    path.append("/").append(part);
    if (stat(path.c_str(), &status) == 0) return true;
    const std::string other = FindCaseless(path.substr(0, folderLength), part);
    if (other.empty()) return false;
    path.replace(folderLength + 1, std::string::npos, other);
    return stat(path.c_str(), &status) == 0;
}

void Walk(const FullName& full, LookedUp& result) {
    result.path = full.folder;
    std::string_view left = full.rest;
    while (!left.empty()) {
        const size_t end = std::min(left.find('/', 1), left.size());
        const bool found = StepInto(result.path, left.substr(1, end - 1), result.status);
        left.remove_prefix(end);
        const bool usable = left.empty() ? found : found && result.IsFolder();
        if (usable) continue;
        result.error = left.empty() ? ERROR_FILE_NOT_FOUND : ERROR_PATH_NOT_FOUND;
        return;
    }
}

}  // namespace

LookedUp LookUp(const char* name) {
    FullName full;
    LookedUp result{};
    result.error = MakeFullName(name, full);
    if (result.error != NO_ERROR) return result;
    result.endsInSeparator = full.endsInSeparator;
    result.isDriveRoot = full.rest.empty();
    result.path = full.folder + full.rest;
    if (result.path.empty()) result.path = "/";
    // Mostly the name is spelled as it is, and one call answers.
    if (stat(result.path.c_str(), &result.status) == 0) return result;
    if (errno == ENOENT || errno == ENOTDIR) {
        Walk(full, result);
    } else {
        result.error = ErrorFromErrno(errno);
    }
    return result;
}

DWORD Attributes(const struct stat& status) {
    const DWORD kind = S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_ARCHIVE;
    return status.st_mode & S_IWUSR ? kind : kind | FILE_ATTRIBUTE_READONLY;
}
