#include <dirent.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "ascii_case.h"
#include "errors.h"
#include "file_time.h"
#include "full_name.h"
#include "handle_table.h"
#include "lookup.h"
#include "pattern.h"

static_assert(sizeof(WIN32_FIND_DATAA) == 320);

namespace {

// Names found, told one by one.
struct Search {
    std::string folder;  // with a slash at its end
    std::vector<std::string> names;
    size_t next = 0;
};

HandleTable<Search>& Searches() {
    static auto& table = *new HandleTable<Search>(kFirstSearchHandle);
    return table;
}

void Fill(WIN32_FIND_DATAA& data, const std::string& name, const struct stat& status) {
    data = {};
    data.dwFileAttributes = Attributes(status);
    data.ftLastWriteTime = ToFileTime(status.st_mtim);
    data.ftLastAccessTime = ToFileTime(status.st_atim);
    data.ftCreationTime = data.ftLastWriteTime;
    if (!S_ISDIR(status.st_mode)) {
        data.nFileSizeHigh = static_cast<DWORD>(static_cast<uint64_t>(status.st_size) >> 32);
        data.nFileSizeLow = static_cast<DWORD>(status.st_size);
    }
    std::memcpy(data.cFileName, name.c_str(), std::min<size_t>(name.size(), MAX_PATH - 1));
}

// The next name that still leads somewhere.
bool TellNext(Search& search, WIN32_FIND_DATAA& data) {
    while (search.next < search.names.size()) {
        const std::string& name = search.names[search.next++];
        struct stat status;
        if (stat((search.folder + name).c_str(), &status) != 0) continue;
        Fill(data, name, status);
        return true;
    }
    return false;
}

bool ComesFirst(const std::string& a, const std::string& b) {
    const int order = CompareAsciiCaseless(a, b);
    return order != 0 ? order < 0 : a < b;
}

// One entry by its name.
DWORD FindEntry(const char* name, Search& search) {
    const LookedUp entry = LookUp(name);
    if (entry.error != NO_ERROR) return entry.error;
    if (entry.isDriveRoot) return ERROR_FILE_NOT_FOUND;  // it has no name
    const size_t slash = entry.path.rfind('/');
    search.folder = entry.path.substr(0, slash + 1);
    search.names.push_back(entry.path.substr(slash + 1));
    return NO_ERROR;
}

// All entries of a folder that fit.
DWORD FindFitting(std::string_view folderName, std::string_view pattern, Search& search) {
    const LookedUp folder = LookUp((std::string(folderName) + '.').c_str());
    if (folder.error == ERROR_FILE_NOT_FOUND || (folder.error == NO_ERROR && !folder.IsFolder()))
        return ERROR_PATH_NOT_FOUND;
    if (folder.error != NO_ERROR) return folder.error;
    DIR* directory = opendir(folder.path.c_str());
    if (!directory) return ErrorFromErrno(errno);
    while (const dirent* entry = readdir(directory)) {
        const std::string_view entryName = entry->d_name;
        if (folder.isDriveRoot && (entryName == "." || entryName == "..")) continue;
        if (FitsPattern(entryName, pattern)) search.names.emplace_back(entryName);
    }
    closedir(directory);
    std::sort(search.names.begin(), search.names.end(), ComesFirst);
    search.folder = folder.path + '/';
    return NO_ERROR;
}

DWORD Start(const char* pattern, Search& search) {
    const std::string_view name = pattern ? pattern : "";
    if (name.empty()) return ERROR_PATH_NOT_FOUND;
    if (name.size() >= MAX_PATH) return ERROR_FILENAME_EXCED_RANGE;
    const std::string_view last = LastPart(name);
    if (last.empty()) return ERROR_FILE_NOT_FOUND;
    if (last.find_first_of("*?") == std::string_view::npos) return FindEntry(pattern, search);
    return FindFitting(name.substr(0, static_cast<size_t>(last.data() - name.data())), last, search);
}

}  // namespace

HANDLE WINAPI FindFirstFileA(LPCSTR pattern, LPWIN32_FIND_DATAA found) {
    const auto search = std::make_shared<Search>();
    DWORD error = found ? Start(pattern, *search) : ERROR_INVALID_PARAMETER;
    if (error == NO_ERROR && !TellNext(*search, *found)) error = ERROR_FILE_NOT_FOUND;
    if (error == NO_ERROR) return Searches().Add(search);
    SetLastError(error);
    return INVALID_HANDLE_VALUE;
}

BOOL WINAPI FindNextFileA(HANDLE handle, LPWIN32_FIND_DATAA found) {
    const auto search = Searches().Get(handle);
    if (!search) return Fail(ERROR_INVALID_HANDLE);
    if (!found) return Fail(ERROR_INVALID_PARAMETER);
    return TellNext(*search, *found) || Fail(ERROR_NO_MORE_FILES);
}

BOOL WINAPI FindClose(HANDLE handle) {
    return Searches().Remove(handle) != nullptr || Fail(ERROR_INVALID_HANDLE);
}
