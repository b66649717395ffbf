#include "scroll_bars.h"

#include <algorithm>

namespace {

bool IsBar(int bar) {
    return bar == SB_HORZ || bar == SB_VERT;
}

DWORD StyleOf(int bar) {
    return bar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
}

int LastPosition(const ScrollState& state) {
    return state.maximum - std::max(state.page - 1, 0);
}

// Keeps page and position in the range.
void Bring(ScrollState& state) {
    if (state.maximum < state.minimum) state.maximum = state.minimum;
    const int64_t room = static_cast<int64_t>(state.maximum) - state.minimum + 1;
    state.page = static_cast<int>(std::clamp<int64_t>(state.page, 0, room));
    state.position = std::max(std::min(state.position, LastPosition(state)), state.minimum);
}

struct BarParts {
    RECT up;
    RECT down;
    RECT shaft;
    RECT thumb;  // empty where there is nothing to scroll or no room
};

constexpr int kLeastThumb = 8;

BarParts PartsOf(const RECT& bar, const ScrollState& state, bool vertical) {
    BarParts parts = {bar, bar, bar, {}};
    LONG RECT::*const start = vertical ? &RECT::top : &RECT::left;
    LONG RECT::*const end = vertical ? &RECT::bottom : &RECT::right;
    const LONG length = bar.*end - bar.*start;
    const LONG arrow = std::min<LONG>(GetSystemMetrics(vertical ? SM_CXVSCROLL : SM_CYHSCROLL), length / 2);
    parts.up.*end = bar.*start + arrow;
    parts.down.*start = bar.*end - arrow;
    parts.shaft.*start = parts.up.*end;
    parts.shaft.*end = parts.down.*start;
    const int64_t room = parts.shaft.*end - parts.shaft.*start;
    const int64_t steps = static_cast<int64_t>(LastPosition(state)) - state.minimum;
    if (steps <= 0 || room < kLeastThumb) return parts;
    const int64_t span = static_cast<int64_t>(state.maximum) - state.minimum + 1;
    const int64_t thumb = state.page > 0 ? std::max<int64_t>(room * state.page / span, kLeastThumb)
                                         : std::min<int64_t>(arrow, room);
    parts.thumb = parts.shaft;
    parts.thumb.*start +=
        static_cast<LONG>((room - thumb) * (int64_t{state.position} - state.minimum) / steps);
    parts.thumb.*end = parts.thumb.*start + static_cast<LONG>(thumb);
    return parts;
}

void PaintArrow(HDC dc, RECT box, bool vertical, bool towards_start) {
    FillRect(dc, &box, GetSysColorBrush(COLOR_BTNFACE));
    DrawEdge(dc, &box, EDGE_RAISED, BF_RECT);
    const LONG x = (box.left + box.right) / 2;
    const LONG y = (box.top + box.bottom) / 2;
    for (LONG i = 0; i < 4; ++i) {
        const LONG along = towards_start ? i - 2 : 1 - i;
        const POINT from = vertical ? POINT{x - i, y + along} : POINT{x + along, y - i};
        const POINT to = vertical ? POINT{x + i + 1, y + along} : POINT{x + along, y + i + 1};
        MoveToEx(dc, from.x, from.y, nullptr);
        LineTo(dc, to.x, to.y);
    }
}

void PaintBar(HDC dc, const Window& window, int bar) {
    const RECT place = ScrollBarRect(window, bar);
    if (IsRectEmpty(&place)) return;
    const bool vertical = bar == SB_VERT;
    const BarParts parts = PartsOf(place, window.bars[bar], vertical);
    FillRect(dc, &parts.shaft, GetSysColorBrush(COLOR_SCROLLBAR));
    PaintArrow(dc, parts.up, vertical, true);
    PaintArrow(dc, parts.down, vertical, false);
    if (IsRectEmpty(&parts.thumb)) return;
    RECT thumb = parts.thumb;
    FillRect(dc, &thumb, GetSysColorBrush(COLOR_BTNFACE));
    DrawEdge(dc, &thumb, EDGE_RAISED, BF_RECT);
}

void RepaintBar(HWND handle) {
    const WindowRef window = FindWindowRef(handle);
    if (!window || !IsWindowVisible(handle)) return;
    if (const HDC dc = GetWindowDC(handle)) {
        PaintScrollBars(dc, *window);
        ReleaseDC(handle, dc);
    }
}

// A bar is there while there is something to scroll.
void ShowAsNeeded(HWND handle, int bar, const ScrollState& state) {
    const WindowRef window = FindWindowRef(handle);
    const bool show = LastPosition(state) > state.minimum;
    if (!window || ((window->style & StyleOf(bar)) != 0) == show) return;
    {
        const std::lock_guard lock(WindowMutex());
        window->style ^= StyleOf(bar);
    }
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

}  // namespace

RECT ScrollBarRect(const Window& window, int bar) {
    if (!(window.style & StyleOf(bar))) return {};
    RECT client = window.client;
    OffsetRect(&client, -window.rect.left, -window.rect.top);
    if (bar == SB_VERT)
        return {client.right, client.top, client.right + GetSystemMetrics(SM_CXVSCROLL), client.bottom};
    return {client.left, client.bottom, client.right, client.bottom + GetSystemMetrics(SM_CYHSCROLL)};
}

void PaintScrollBars(HDC dc, const Window& window) {
    PaintBar(dc, window, SB_VERT);
    PaintBar(dc, window, SB_HORZ);
    if ((window.style & (WS_VSCROLL | WS_HSCROLL)) != (WS_VSCROLL | WS_HSCROLL)) return;
    const RECT right = ScrollBarRect(window, SB_VERT);
    const RECT bottom = ScrollBarRect(window, SB_HORZ);
    const RECT corner = {right.left, bottom.top, right.right, bottom.bottom};
    FillRect(dc, &corner, GetSysColorBrush(COLOR_BTNFACE));
}

void PressScrollBar(HWND handle, int bar, POINT screen) {
    const WindowRef window = FindWindowRef(handle);
    if (!window) return;
    const POINT inside = {screen.x - window->rect.left, screen.y - window->rect.top};
    const BarParts parts = PartsOf(ScrollBarRect(*window, bar), window->bars[bar], bar == SB_VERT);
    const UINT message = bar == SB_VERT ? WM_VSCROLL : WM_HSCROLL;
    const LONG place = bar == SB_VERT ? inside.y : inside.x;
    const LONG thumb = bar == SB_VERT ? parts.thumb.top : parts.thumb.left;
    WPARAM code = place < thumb ? SB_PAGEUP : SB_PAGEDOWN;
    if (PtInRect(&parts.up, inside)) code = SB_LINEUP;
    if (PtInRect(&parts.down, inside)) code = SB_LINEDOWN;
    if (!PtInRect(&parts.thumb, inside)) SendMessageA(handle, message, code, 0);
    if (IsWindow(handle)) SendMessageA(handle, message, SB_ENDSCROLL, 0);
}

int WINAPI SetScrollInfo(HWND handle, int bar, const SCROLLINFO* info, BOOL redraw) {
    const WindowRef window = FindWindowRef(handle);
    if (!window || !info || !IsBar(bar)) return 0;
    ScrollState state;
    {
        const std::lock_guard lock(WindowMutex());
        ScrollState& kept = window->bars[bar];
        if (info->fMask & SIF_RANGE) {
            kept.minimum = info->nMin;
            kept.maximum = info->nMax;
        }
        if (info->fMask & SIF_PAGE) kept.page = static_cast<int>(std::min<UINT>(info->nPage, 0x7fffffff));
        if (info->fMask & SIF_POS) kept.position = info->nPos;
        Bring(kept);
        state = kept;
    }
    if (info->fMask & (SIF_RANGE | SIF_PAGE) && !(info->fMask & SIF_DISABLENOSCROLL))
        ShowAsNeeded(handle, bar, state);
    if (redraw) RepaintBar(handle);
    return state.position;
}

BOOL WINAPI GetScrollInfo(HWND handle, int bar, LPSCROLLINFO info) {
    const WindowRef window = FindWindowRef(handle);
    if (!window || !info || !IsBar(bar)) return FALSE;
    const std::lock_guard lock(WindowMutex());
    const ScrollState& state = window->bars[bar];
    if (info->fMask & SIF_RANGE) {
        info->nMin = state.minimum;
        info->nMax = state.maximum;
    }
    if (info->fMask & SIF_PAGE) info->nPage = static_cast<UINT>(state.page);
    if (info->fMask & SIF_POS) info->nPos = state.position;
    if (info->fMask & SIF_TRACKPOS) info->nTrackPos = state.position;
    return (info->fMask & SIF_ALL) != 0;
}

int WINAPI SetScrollPos(HWND window, int bar, int position, BOOL redraw) {
    const int former = GetScrollPos(window, bar);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = position;
    SetScrollInfo(window, bar, &info, redraw);
    return former;
}

int WINAPI GetScrollPos(HWND window, int bar) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    return GetScrollInfo(window, bar, &info) ? info.nPos : 0;
}

BOOL WINAPI SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw) {
    if (!IsWindow(window)) return FALSE;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE;
    info.nMin = minimum;
    info.nMax = maximum;
    SetScrollInfo(window, bar, &info, redraw);
    return TRUE;
}

BOOL WINAPI GetScrollRange(HWND window, int bar, int* minimum, int* maximum) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE;
    if (!GetScrollInfo(window, bar, &info)) return FALSE;
    if (minimum) *minimum = info.nMin;
    if (maximum) *maximum = info.nMax;
    return TRUE;
}
