#pragma once

#include <cstdint>

// Published under this name for calls that a system library exports.
#define WINBASEAPI __attribute__((visibility("default")))
#define WINAPI

#define MAX_PATH 260
#define FALSE 0
#define TRUE 1

// LONG and DWORD have 32 bits everywhere; `long` has 64 here.
typedef int BOOL;
typedef unsigned char BYTE;
typedef uint16_t WORD;
typedef uint32_t DWORD;
typedef int32_t LONG;
typedef int INT;
typedef unsigned int UINT;
typedef char CHAR;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;

typedef void* HANDLE;
typedef void* LPVOID;
typedef const void* LPCVOID;
typedef CHAR* LPSTR;
typedef const CHAR* LPCSTR;
typedef LPSTR LPTSTR;
typedef LPCSTR LPCTSTR;
typedef WORD* LPWORD;
typedef DWORD* LPDWORD;
typedef LONG* PLONG;

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1)))

// 100-nanosecond steps since the start of 1601, UTC.
typedef struct _FILETIME {
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
} FILETIME, *LPFILETIME;

// For arguments that take a null pointer only.
typedef struct _OVERLAPPED* LPOVERLAPPED;
typedef struct _SECURITY_ATTRIBUTES* LPSECURITY_ATTRIBUTES;
