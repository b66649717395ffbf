#pragma once

#include <windows.h>

#include <algorithm>
#include <optional>

// Where a scroll message leads, without a window: pixels from the top, in the range 0 to `limit`.

inline constexpr int kScrollPage = 32;
inline constexpr int kScrollLine = 16;

// `code` is that of WM_VSCROLL, `thumb` its position. Nothing for codes that do not scroll.
inline std::optional<int> ScrolledPosition(UINT code, int thumb, int position, int limit) {
    switch (code) {
        case SB_LINEUP: position -= kScrollLine; break;
        case SB_LINEDOWN: position += kScrollLine; break;
        case SB_PAGEUP: position -= kScrollPage; break;
        case SB_PAGEDOWN: position += kScrollPage; break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK: position = thumb; break;
        default: return std::nullopt;
    }
    return std::min(std::max(position, 0), limit);
}
