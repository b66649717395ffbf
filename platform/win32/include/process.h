#pragma once

#include <winbase.h>

// Threads of the run-time library.

extern "C" {

typedef unsigned(WINAPI* _beginthreadex_proc_type)(void*);

// A handle for CloseHandle, or 0 with errno. Differs: `stackSize` and `flags` must be 0.
WINBASEAPI uintptr_t _beginthreadex(void* security, unsigned stackSize, _beginthreadex_proc_type start,
                                    void* argument, unsigned flags, unsigned* id);
// Ends this thread; does not return. Objects on its stack are not destroyed.
[[noreturn]] WINBASEAPI void _endthreadex(unsigned exitCode);
}
