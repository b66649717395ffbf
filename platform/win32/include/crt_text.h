#pragma once

#include <cstddef>
#include <cstdio>

#include <windef.h>

// What the Windows run-time library has in <stdio.h>, <stdlib.h> and <string.h> beyond the standard.

extern "C" {

// Null with errno when the file can't be opened. Differs: modes without b are refused (EINVAL), as no text is
// translated here, and the share mode has no effect. A read-only file is refused for writing whoever asks.
WINBASEAPI FILE* _fsopen(const char* name, const char* mode, int shareMode);

// Case means the ASCII letters, which compare as small ones. Null pointers give INT_MAX.
WINBASEAPI int _stricmp(const char* a, const char* b);
WINBASEAPI int _strnicmp(const char* a, const char* b, size_t count);
// In place.
WINBASEAPI char* _strlwr(char* text);
}
