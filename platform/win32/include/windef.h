#pragma once

#include <cstdint>

// Published under this name for calls that a system library exports.
#define WINBASEAPI __attribute__((visibility("default")))
#define WINUSERAPI WINBASEAPI
#define WINGDIAPI WINBASEAPI
#define WINAPI
#define CALLBACK
#define APIENTRY

#define MAX_PATH 260
#define FALSE 0
#define TRUE 1

// LONG and DWORD have 32 bits everywhere; `long` has 64 here.
typedef int BOOL;
typedef unsigned char BYTE;
typedef int16_t SHORT;
typedef uint16_t WORD;
typedef uint16_t USHORT;
typedef uint32_t DWORD;
typedef int32_t LONG;
typedef uint32_t ULONG;
typedef int INT;
typedef unsigned int UINT;
typedef char CHAR;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;
typedef intptr_t LONG_PTR;
typedef uintptr_t ULONG_PTR;
typedef uintptr_t DWORD_PTR;
typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef WORD ATOM;
typedef DWORD COLORREF;

typedef void* HANDLE;
typedef void* HGDIOBJ;
typedef struct HWND__* HWND;
typedef struct HDC__* HDC;
typedef struct HBITMAP__* HBITMAP;
typedef struct HBRUSH__* HBRUSH;
typedef struct HPEN__* HPEN;
typedef struct HFONT__* HFONT;
typedef struct HRGN__* HRGN;
typedef struct HICON__* HICON;
typedef struct HICON__* HCURSOR;
typedef struct HMENU__* HMENU;
typedef struct HHOOK__* HHOOK;
typedef struct HINSTANCE__* HINSTANCE;
typedef HINSTANCE HMODULE;
typedef INT_PTR(WINAPI* FARPROC)();
typedef struct HRSRC__* HRSRC;
typedef HANDLE HGLOBAL;
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

typedef struct tagPOINT {
    LONG x;
    LONG y;
} POINT, *LPPOINT;

typedef struct tagSIZE {
    LONG cx;
    LONG cy;
} SIZE, *LPSIZE;

typedef struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT, *LPRECT;
typedef const RECT* LPCRECT;

#define LOWORD(value) (static_cast<WORD>(static_cast<DWORD_PTR>(value) & 0xffff))
#define HIWORD(value) (static_cast<WORD>((static_cast<DWORD_PTR>(value) >> 16) & 0xffff))
#define MAKELONG(low, high) \
    (static_cast<LONG>((static_cast<DWORD>(static_cast<WORD>(high)) << 16) | static_cast<WORD>(low)))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(MAKELONG(low, high)))
#define MAKELRESULT(low, high) (static_cast<LRESULT>(MAKELONG(low, high)))
