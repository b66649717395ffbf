#pragma once

#include <windows.h>

#include <algorithm>
#include <array>

// What this process has of the system.
struct ResourceCount {
    DWORD windows;
    DWORD objects;

    friend bool operator==(const ResourceCount&, const ResourceCount&) = default;
};

// Wine's counters are always 0. It gives freed handles away again before new ones, so that objects which
// nobody freed push up the highest of many.
inline DWORD HighestHandle() {
    std::array<HBRUSH, 512> brushes;
    std::generate(brushes.begin(), brushes.end(), [] { return CreateSolidBrush(0); });
    DWORD highest = 0;
    for (const HBRUSH brush : brushes) {
        highest = std::max<DWORD>(highest, LOWORD(reinterpret_cast<UINT_PTR>(brush)));
        DeleteObject(brush);
    }
    return highest;
}

inline BOOL CALLBACK CountOne(HWND, LPARAM counted) {
    ++*reinterpret_cast<DWORD*>(counted);
    return TRUE;
}

inline DWORD CountThreadWindows() {
    DWORD count = 0;
    EnumThreadWindows(GetCurrentThreadId(), &CountOne, reinterpret_cast<LPARAM>(&count));
    return count;
}

inline ResourceCount CountResources() {
    const ResourceCount told = {GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS),
                                GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)};
    return told.objects ? told : ResourceCount{CountThreadWindows(), HighestHandle()};
}
