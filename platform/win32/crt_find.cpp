#include <io.h>
#include <windows.h>

#include <cerrno>
#include <cstring>

#include "errors.h"
#include "file_time.h"

namespace {

constexpr DWORD kToldAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_ARCHIVE;
static_assert(_A_RDONLY == FILE_ATTRIBUTE_READONLY && _A_SUBDIR == FILE_ATTRIBUTE_DIRECTORY &&
              _A_ARCH == FILE_ATTRIBUTE_ARCHIVE);

void Fill(_finddata_t& found, const WIN32_FIND_DATAA& data) {
    found.attrib = data.dwFileAttributes & kToldAttributes;
    found.time_create = ToTimespec(data.ftCreationTime).tv_sec;
    found.time_access = ToTimespec(data.ftLastAccessTime).tv_sec;
    found.time_write = ToTimespec(data.ftLastWriteTime).tv_sec;
    found.size = data.nFileSizeLow;
    std::memcpy(found.name, data.cFileName, sizeof found.name);
}

int FailWith(int code) {
    errno = code;
    return -1;
}

int FailWithLastError() {
    return FailWith(ErrnoFromError(GetLastError()));
}

}  // namespace

intptr_t _findfirst(const char* pattern, _finddata_t* found) {
    if (!found) return FailWith(EINVAL);
    WIN32_FIND_DATAA data;
    const HANDLE search = FindFirstFileA(pattern, &data);
    if (search == INVALID_HANDLE_VALUE) return FailWithLastError();
    Fill(*found, data);
    return reinterpret_cast<intptr_t>(search);
}

int _findnext(intptr_t search, _finddata_t* found) {
    if (!found) return FailWith(EINVAL);
    WIN32_FIND_DATAA data;
    if (!FindNextFileA(reinterpret_cast<HANDLE>(search), &data)) return FailWithLastError();
    Fill(*found, data);
    return 0;
}

int _findclose(intptr_t search) {
    return FindClose(reinterpret_cast<HANDLE>(search)) ? 0 : FailWithLastError();
}
