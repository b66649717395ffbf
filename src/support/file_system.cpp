#include <direct.h>
#include <io.h>

#include <cstdio>
#include <cstring>
#include <string_view>

#include "support/file_objects.h"
#include "support/path_limit.h"

namespace {

// The current directory without a backslash at its end; empty when there is none or it is too long.
std::string_view CurrentDirectory(char (&buffer)[kPathSize]) {
    if (!_getcwd(buffer, kPathSize)) return {};
    std::string_view directory = buffer;
    if (directory.ends_with('\\')) directory.remove_suffix(1);
    return directory;
}

void Append(CString& text, std::string_view tail) {
    text.Append(tail.data(), static_cast<int>(tail.size()));
}

CString Joined(std::string_view head, const char* middle, std::string_view tail) {
    CString text;
    Append(text, head);
    text += middle;
    Append(text, tail);
    return text;
}

// Where the folders to be made begin: behind the drive's backslash, or behind the first character. Null when
// nothing stands there.
const char* FirstFolder(const char* path) {
    const char* start = std::strchr(path, ':') ? std::strchr(path, '\\') : path;
    return start && start[0] && start[1] ? start + 1 : nullptr;
}

}  // namespace

bool file_t::FileExist(const char* fileName, fileinfo_t* info) {
    if (!IsUsablePath(fileName)) return false;
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(fileName, &found);
    if (search == INVALID_HANDLE_VALUE) return false;
    FindClose(search);
    if (!info) return true;
    const CString absolute = AbsPath(fileName);
    if (!IsUsablePath(absolute)) return false;
    std::memset(info->name, 0, sizeof info->name);
    CopyPath(info->name, absolute, sizeof info->name - 1);
    info->time = found.ftLastWriteTime;
    info->sizeHigh = found.nFileSizeHigh;
    info->sizeLow = found.nFileSizeLow;
    return true;
}

bool file_t::DirExist(const char* dirName) {
    if (!IsUsablePath(dirName)) return false;
    _finddata_t found;
    const intptr_t search = _findfirst(dirName, &found);
    if (search == -1) return false;
    bool isFolder;
    do {
        isFolder = (found.attrib & _A_SUBDIR) && std::strcmp(found.name, ".") != 0;
    } while (!isFolder && _findnext(search, &found) == 0);
    _findclose(search);
    return isFolder;
}

void file_t::MakeDir(const char* path) {
    if (!IsUsablePath(path) || DirExist(path)) return;
    const char* rest = FirstFolder(path);
    if (!rest) return;
    char prefix[kPathSize] = {};
    for (const char* end = std::strchr(rest, '\\'); end && end[1]; end = std::strchr(end + 1, '\\')) {
        std::memcpy(prefix, path, static_cast<size_t>(end - path));
        _mkdir(prefix);
    }
    _mkdir(path);
}

CString file_t::AbsPath(const char* fileName) {
    std::string_view name = fileName ? fileName : "";
    if (name.size() > 1 && name[1] == ':') return fileName;
    char buffer[kPathSize];
    std::string_view directory = CurrentDirectory(buffer);
    if (directory.empty()) return fileName;
    if (name.starts_with('\\')) return Joined(directory.substr(0, 1), ":", name);
    while (name.starts_with("..\\")) {
        const size_t last = directory.rfind('\\');
        if (last == std::string_view::npos) return fileName;
        directory = directory.substr(0, last);
        name.remove_prefix(3);
    }
    return Joined(directory, "\\", name);
}

CString file_t::ConvertFileTime(const FILETIME* time) {
    WORD date = 0;
    WORD clock = 0;
    FileTimeToDosDateTime(time, &date, &clock);
    char text[32];
    std::snprintf(text, sizeof text, "%02d.%02d.%04d  %02d:%02d", date & 31, (date >> 5) & 15,
                  (date >> 9) + 1980, clock >> 11, (clock >> 5) & 63);
    return text;
}

bool file_t::get_file_time(const char* fileName, FILETIME* time) {
    if (!IsUsablePath(fileName)) return false;
    const HANDLE file = CreateFileA(fileName, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    FILETIME lastWrite;
    if (GetFileTime(file, nullptr, nullptr, &lastWrite) && time) *time = lastWrite;
    CloseHandle(file);
    return true;
}

bool file_t::set_file_time(const char* fileName, FILETIME* time) {
    if (!IsUsablePath(fileName) || !time) return false;
    const HANDLE file = CreateFileA(fileName, GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    SetFileTime(file, time, time, time);
    CloseHandle(file);
    return true;
}
