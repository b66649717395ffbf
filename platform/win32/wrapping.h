#pragma once

#include <windef.h>

// Sums of coordinates that wrap, as the system's do, whatever a caller gives.
inline LONG Sum(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<DWORD>(a) + static_cast<DWORD>(b));
}
inline LONG Difference(LONG a, LONG b) {
    return static_cast<LONG>(static_cast<DWORD>(a) - static_cast<DWORD>(b));
}
