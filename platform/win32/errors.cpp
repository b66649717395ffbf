#include "errors.h"

#include <cerrno>

namespace {
thread_local DWORD lastError = NO_ERROR;
}

DWORD WINAPI GetLastError() {
    return lastError;
}

void WINAPI SetLastError(DWORD error) {
    lastError = error;
}

DWORD ErrorFromErrno(int code) {
    switch (code) {
        case ENOENT: return ERROR_FILE_NOT_FOUND;
        case ENOTDIR: return ERROR_PATH_NOT_FOUND;
        case EACCES:
        case EISDIR:
        case EPERM: return ERROR_ACCESS_DENIED;
        case EROFS: return ERROR_WRITE_PROTECT;
        case EEXIST: return ERROR_ALREADY_EXISTS;
        case EMFILE:
        case ENFILE: return ERROR_TOO_MANY_OPEN_FILES;
        case ENAMETOOLONG: return ERROR_FILENAME_EXCED_RANGE;
        case ENOMEM: return ERROR_NOT_ENOUGH_MEMORY;
        case EDQUOT:
        case EFBIG:
        case ENOSPC: return ERROR_DISK_FULL;
        case EINVAL: return ERROR_INVALID_PARAMETER;
        default: return ERROR_GEN_FAILURE;
    }
}

int ErrnoFromError(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_NO_MORE_FILES:
        case ERROR_FILENAME_EXCED_RANGE: return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT: return EACCES;
        case ERROR_ALREADY_EXISTS: return EEXIST;
        case ERROR_TOO_MANY_OPEN_FILES: return EMFILE;
        case ERROR_NOT_ENOUGH_MEMORY: return ENOMEM;
        case ERROR_DISK_FULL: return ENOSPC;
        default: return EINVAL;
    }
}
