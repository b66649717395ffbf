#pragma once

#include <windows.h>

// The published error code for what a POSIX call has left in errno.
DWORD ErrorFromErrno(int code);
// And what the run-time library leaves in errno for a published error code.
int ErrnoFromError(DWORD error);

// For a call that fails: sets the error, the result is FALSE.
inline BOOL Fail(DWORD error) {
    SetLastError(error);
    return FALSE;
}
