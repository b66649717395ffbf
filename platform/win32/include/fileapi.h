#pragma once

#include <windef.h>

// Files and directory searches. Names take backslashes and slashes; drive_map.h tells where a drive lies. A
// name is looked up without regard to the case of ASCII letters: the exact spelling goes first, and a new
// file keeps the spelling it is given. Differs: there are no network, device and short 8.3 names.

#define GENERIC_READ 0x80000000u
#define GENERIC_WRITE 0x40000000u

#define FILE_SHARE_READ 0x1u
#define FILE_SHARE_WRITE 0x2u

#define CREATE_ALWAYS 2u
#define OPEN_EXISTING 3u
#define OPEN_ALWAYS 4u

#define FILE_FLAG_SEQUENTIAL_SCAN 0x08000000u

#define FILE_ATTRIBUTE_READONLY 0x1u
#define FILE_ATTRIBUTE_DIRECTORY 0x10u
#define FILE_ATTRIBUTE_ARCHIVE 0x20u
#define FILE_ATTRIBUTE_NORMAL 0x80u
#define INVALID_FILE_ATTRIBUTES 0xffffffffu

#define FILE_BEGIN 0u
#define FILE_CURRENT 1u
#define FILE_END 2u
#define INVALID_SET_FILE_POINTER 0xffffffffu
#define INVALID_FILE_SIZE 0xffffffffu

typedef struct _WIN32_FIND_DATAA {
    DWORD dwFileAttributes;
    FILETIME ftCreationTime;
    FILETIME ftLastAccessTime;
    FILETIME ftLastWriteTime;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    DWORD dwReserved0;
    DWORD dwReserved1;
    CHAR cFileName[MAX_PATH];
    CHAR cAlternateFileName[14];
} WIN32_FIND_DATAA, *LPWIN32_FIND_DATAA;

extern "C" {

// Finds one entry by its name, or with * and ? in the last part of `pattern` all that match, sorted by name;
// "." and ".." are among them but in a drive's root. A trailing backslash matches nothing. A file is
// read-only when its owner may not write. Differs: a ? stands for exactly one character, never for none.
// Creation is told as the last write.
WINBASEAPI HANDLE WINAPI FindFirstFileA(LPCSTR pattern, LPWIN32_FIND_DATAA found);
WINBASEAPI BOOL WINAPI FindNextFileA(HANDLE search, LPWIN32_FIND_DATAA found);
WINBASEAPI BOOL WINAPI FindClose(HANDLE search);

// A read-only file is refused for writing whoever asks. Differs: share modes and flags have no effect, and
// only the three ways of opening above are taken.
WINBASEAPI HANDLE WINAPI CreateFileA(LPCSTR name, DWORD access, DWORD shareMode,
                                     LPSECURITY_ATTRIBUTES security, DWORD disposition, DWORD flags,
                                     HANDLE templateFile);
WINBASEAPI BOOL WINAPI CloseHandle(HANDLE object);

// Differs: files are never overlapped, a non-null last argument is refused.
WINBASEAPI BOOL WINAPI ReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD got, LPOVERLAPPED overlapped);
WINBASEAPI BOOL WINAPI WriteFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                                 LPOVERLAPPED overlapped);

WINBASEAPI DWORD WINAPI SetFilePointer(HANDLE file, LONG distance, PLONG distanceHigh, DWORD method);
WINBASEAPI BOOL WINAPI SetEndOfFile(HANDLE file);
WINBASEAPI DWORD WINAPI GetFileSize(HANDLE file, LPDWORD sizeHigh);

// Differs: creation is told as the last write, and setting it has no effect.
WINBASEAPI BOOL WINAPI GetFileTime(HANDLE file, LPFILETIME creation, LPFILETIME access, LPFILETIME write);
WINBASEAPI BOOL WINAPI SetFileTime(HANDLE file, const FILETIME* creation, const FILETIME* access,
                                   const FILETIME* write);
// From 1980 to 2107; seconds are halved.
WINBASEAPI BOOL WINAPI FileTimeToDosDateTime(const FILETIME* time, LPWORD dosDate, LPWORD dosTime);

// A read-only file stays. Differs: an open file goes too, its handles stay good.
WINBASEAPI BOOL WINAPI DeleteFileA(LPCSTR name);
WINBASEAPI DWORD WINAPI GetFileAttributesA(LPCSTR name);
}
