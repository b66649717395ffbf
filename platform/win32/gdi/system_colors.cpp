#include <winuser.h>

#include <array>

#include "objects.h"

namespace {

// The classic look, by COLOR_...
constexpr std::array<uint32_t, kSystemColors> kColors = {
    0xd4d0c8,  // scroll bar
    0x3a6ea5,  // desktop
    0x0a246a,  // active caption
    0x808080,  // inactive caption
    0xd4d0c8,  // menu
    0xffffff,  // window
    0x000000,  // window frame
    0x000000,  // menu text
    0x000000,  // window text
    0xffffff,  // caption text
    0xd4d0c8,  // active border
    0xd4d0c8,  // inactive border
    0x808080,  // application workspace
    0x0a246a,  // highlight
    0xffffff,  // highlighted text
    0xd4d0c8,  // button face
    0x808080,  // button shadow
    0x808080,  // grey text
    0x000000,  // button text
    0xd4d0c8,  // inactive caption text
    0xffffff,  // button highlight
    0x404040,  // dark shadow
    0xd4d0c8,  // light
    0x000000,  // tool tip text
    0xffffe1,  // tool tip
    0xb5b5b5,  // alternate face
    0x000080,  // hot light
    0xa6caf0,  // active caption's second colour
    0xc0c0c0,  // inactive caption's second colour
    0x0a246a,  // menu highlight
    0xd4d0c8,  // menu bar
};

bool Known(int index) {
    return index >= 0 && index < kSystemColors;
}

}  // namespace

uint32_t SystemColor(int index) {
    return kColors[static_cast<size_t>(index)];
}

DWORD WINAPI GetSysColor(int index) {
    return Known(index) ? ToColorRef(SystemColor(index)) : 0;
}

HBRUSH WINAPI GetSysColorBrush(int index) {
    if (!Known(index)) return nullptr;
    const std::lock_guard lock(DrawingMutex());
    return static_cast<HBRUSH>(ObjectTable::Instance().SystemBrush(index).handle);
}
