#pragma once

#include <cstdint>
#include <ctime>

#include <windef.h>

// Directory search of the run-time library. The rules are those of FindFirstFileA.

#define _A_RDONLY 0x01
#define _A_SUBDIR 0x10
#define _A_ARCH 0x20

typedef uint32_t _fsize_t;

struct _finddata_t {
    unsigned attrib;
    time_t time_create;
    time_t time_access;
    time_t time_write;
    _fsize_t size;
    char name[MAX_PATH];
};

extern "C" {

// A handle for the two others, or -1 with errno ENOENT or EINVAL.
WINBASEAPI intptr_t _findfirst(const char* pattern, struct _finddata_t* found);
// 0, or -1 with errno.
WINBASEAPI int _findnext(intptr_t search, struct _finddata_t* found);
WINBASEAPI int _findclose(intptr_t search);
}
