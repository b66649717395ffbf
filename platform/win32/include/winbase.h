#pragma once

#include <windef.h>

// Modules, resources, threads and waiting.

#define INFINITE 0xffffffffu
#define WAIT_OBJECT_0 0u
#define WAIT_TIMEOUT 0x102u
#define WAIT_FAILED 0xffffffffu

extern "C" {

// Null stands for the main program. Differs: no module has a name.
WINBASEAPI HMODULE WINAPI GetModuleHandleA(LPCSTR name);

// A library by the name of its file. Freed as often as it was loaded, it goes.
WINBASEAPI HMODULE WINAPI LoadLibraryA(LPCSTR name);
WINBASEAPI FARPROC WINAPI GetProcAddress(HMODULE module, LPCSTR name);
WINBASEAPI BOOL WINAPI FreeLibrary(HMODULE module);

// Resources of a module; type and name are numbers made by MAKEINTRESOURCE.
WINBASEAPI HRSRC WINAPI FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
WINBASEAPI HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
WINBASEAPI LPVOID WINAPI LockResource(HGLOBAL resource);
WINBASEAPI DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);

WINBASEAPI DWORD WINAPI GetCurrentThreadId();
WINBASEAPI DWORD WINAPI GetCurrentProcessId();
WINBASEAPI HANDLE WINAPI GetCurrentProcess();
WINBASEAPI DWORD WINAPI GetTickCount();
WINBASEAPI void WINAPI Sleep(DWORD milliseconds);

// Events and threads are closed by CloseHandle.
WINBASEAPI HANDLE WINAPI CreateEventA(LPSECURITY_ATTRIBUTES security, BOOL manual, BOOL set, LPCSTR name);
WINBASEAPI BOOL WINAPI SetEvent(HANDLE event);
WINBASEAPI DWORD WINAPI WaitForSingleObject(HANDLE object, DWORD milliseconds);
WINBASEAPI BOOL WINAPI GetExitCodeThread(HANDLE thread, LPDWORD code);
}
