#pragma once

#include <windef.h>

// Directories of the run-time library.

extern "C" {

// The current directory with its drive. Null with errno ERANGE when it does not fit into `size` bytes, its
// terminator included. Differs: the buffer may not be null (EINVAL).
WINBASEAPI char* _getcwd(char* buffer, int size);
// 0, or -1 with errno.
WINBASEAPI int _mkdir(const char* name);
WINBASEAPI int _chdir(const char* name);
}
