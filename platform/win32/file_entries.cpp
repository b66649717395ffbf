#include <unistd.h>
#include <windows.h>

#include <cerrno>

#include "errors.h"
#include "lookup.h"

BOOL WINAPI DeleteFileA(LPCSTR name) {
    const LookedUp file = LookUp(name);
    if (file.error != NO_ERROR) return Fail(file.error);
    if (file.IsFolder() || file.IsReadOnly()) return Fail(ERROR_ACCESS_DENIED);
    if (file.endsInSeparator) return Fail(ERROR_INVALID_NAME);
    return unlink(file.path.c_str()) == 0 || Fail(ErrorFromErrno(errno));
}

DWORD WINAPI GetFileAttributesA(LPCSTR name) {
    const LookedUp entry = LookUp(name);
    if (entry.error != NO_ERROR) {
        SetLastError(entry.error);
        return INVALID_FILE_ATTRIBUTES;
    }
    return Attributes(entry.status);
}
