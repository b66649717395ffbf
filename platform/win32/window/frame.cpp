// The part of a window around its client area, in the classic look.

#include <algorithm>

#include "desktop.h"
#include "scroll_bars.h"
#include "window.h"
#include "wrapping.h"

namespace {

constexpr int kCaptionMargin = 2;

bool HasCaption(DWORD style) {
    return (style & WS_CAPTION) == WS_CAPTION;
}

// Of the outer frame, without caption and sunken edge.
int FrameWidth(DWORD style, DWORD extended_style) {
    const bool dialog = (extended_style & WS_EX_DLGMODALFRAME) != 0;
    int width = (extended_style & (WS_EX_STATICEDGE | WS_EX_DLGMODALFRAME)) == WS_EX_STATICEDGE ? 1 : 0;
    if (dialog || style & (WS_THICKFRAME | WS_DLGFRAME)) width += 2;
    if (style & WS_THICKFRAME) width += 1;
    if (dialog || style & (WS_BORDER | WS_DLGFRAME)) width += 1;
    return width;
}

RECT CaptionRect(const Window& window) {
    const int frame = FrameWidth(window.style, window.extended_style);
    return {frame, frame, window.rect.right - window.rect.left - frame,
            frame + GetSystemMetrics(SM_CYCAPTION) - 1};
}

RECT CloseBox(const Window& window) {
    const RECT caption = CaptionRect(window);
    const LONG side = caption.bottom - caption.top - 2 * kCaptionMargin;
    return {caption.right - side - kCaptionMargin, caption.top + kCaptionMargin,
            caption.right - kCaptionMargin, caption.top + kCaptionMargin + side};
}

void DrawCross(HDC dc, RECT box) {
    InflateRect(&box, -3, -3);
    const LONG side = std::min(box.right - box.left, box.bottom - box.top);
    for (int thick = 0; thick < 2; ++thick) {
        MoveToEx(dc, box.left + thick, box.top, nullptr);
        LineTo(dc, box.left + thick + side, box.top + side);
        MoveToEx(dc, box.left + thick, box.top + side - 1, nullptr);
        LineTo(dc, box.left + thick + side, box.top - 1);
    }
}

void PaintCaption(HDC dc, const Window& window) {
    RECT caption = CaptionRect(window);
    const bool active = window.active_frame;
    FillRect(dc, &caption, GetSysColorBrush(active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
    RECT text = caption;
    text.left += 2 * kCaptionMargin;
    if (window.style & WS_SYSMENU) {
        RECT box = CloseBox(window);
        text.right = box.left;
        FillRect(dc, &box, GetSysColorBrush(COLOR_BTNFACE));
        DrawEdge(dc, &box, EDGE_RAISED, BF_RECT);
        DrawCross(dc, box);
    }
    const HGDIOBJ former = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
    DrawTextA(dc, window.text.c_str(), static_cast<int>(window.text.size()), &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    SelectObject(dc, former);
}

void PaintBorder(HDC dc, RECT& area, const Window& window) {
    const int width = FrameWidth(window.style, window.extended_style);
    if (width == 0) return;
    if (width == 1) {
        FrameRect(dc, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&area, -1, -1);
        return;
    }
    DrawEdge(dc, &area, EDGE_RAISED, BF_RECT | BF_ADJUST);
    for (int i = 2; i < width; ++i) {
        FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
        InflateRect(&area, -1, -1);
    }
}

}  // namespace

RECT FrameInsets(DWORD style, DWORD extended_style) {
    const int frame = FrameWidth(style, extended_style);
    RECT insets = {frame, frame, frame, frame};
    if (HasCaption(style)) insets.top += GetSystemMetrics(SM_CYCAPTION);
    if (extended_style & WS_EX_CLIENTEDGE)
        for (LONG* const side : {&insets.left, &insets.top, &insets.right, &insets.bottom})
            *side += GetSystemMetrics(SM_CXEDGE);
    return insets;
}

RECT CalculateClient(const Window& window, const RECT& rect) {
    const RECT insets = FrameInsets(window.style, window.extended_style);
    RECT client = {Sum(rect.left, insets.left), Sum(rect.top, insets.top),
                   Difference(rect.right, insets.right), Difference(rect.bottom, insets.bottom)};
    if (window.style & WS_VSCROLL) client.right = Difference(client.right, GetSystemMetrics(SM_CXVSCROLL));
    if (window.style & WS_HSCROLL) client.bottom = Difference(client.bottom, GetSystemMetrics(SM_CYHSCROLL));
    client.right = std::max(client.right, client.left);
    client.bottom = std::max(client.bottom, client.top);
    return client;
}

BOOL WINAPI AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL, DWORD extendedStyle) {
    if (!rect) return FALSE;
    const RECT insets = FrameInsets(style, extendedStyle);
    *rect = {Difference(rect->left, insets.left), Difference(rect->top, insets.top),
             Sum(rect->right, insets.right), Sum(rect->bottom, insets.bottom)};
    return TRUE;
}

void PaintFrame(HWND handle) {
    const WindowRef window = FindWindowRef(handle);
    const HDC dc = window ? GetWindowDC(handle) : nullptr;
    if (!dc) return;
    RECT area = {0, 0, window->rect.right - window->rect.left, window->rect.bottom - window->rect.top};
    PaintBorder(dc, area, *window);
    if (HasCaption(window->style)) {
        PaintCaption(dc, *window);
        area.top += GetSystemMetrics(SM_CYCAPTION);
        const RECT line = {area.left, area.top - 1, area.right, area.top};
        FillRect(dc, &line, GetSysColorBrush(COLOR_BTNFACE));
    }
    if (window->extended_style & WS_EX_CLIENTEDGE) DrawEdge(dc, &area, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    PaintScrollBars(dc, *window);
    ReleaseDC(handle, dc);
}

LRESULT HitTest(const Window& window, POINT screen) {
    if (!PtInRect(&window.rect, screen)) return HTNOWHERE;
    if (PtInRect(&window.client, screen)) return HTCLIENT;
    const POINT inside = {screen.x - window.rect.left, screen.y - window.rect.top};
    for (const int bar : {SB_VERT, SB_HORZ}) {
        const RECT place = ScrollBarRect(window, bar);
        if (PtInRect(&place, inside)) return bar == SB_VERT ? HTVSCROLL : HTHSCROLL;
    }
    if (!HasCaption(window.style)) return HTBORDER;
    const RECT caption = CaptionRect(window);
    const RECT close = CloseBox(window);
    if (window.style & WS_SYSMENU && PtInRect(&close, inside)) return HTCLOSE;
    return PtInRect(&caption, inside) ? HTCAPTION : HTBORDER;
}

// There is no dragging: a press does at once what it is for.
void FrameButtonDown(HWND handle, WPARAM hit, POINT screen) {
    if (hit == HTCLOSE) {
        SendMessageA(handle, WM_SYSCOMMAND, SC_CLOSE, MAKELPARAM(screen.x, screen.y));
    } else if (hit == HTVSCROLL || hit == HTHSCROLL) {
        PressScrollBar(handle, hit == HTVSCROLL ? SB_VERT : SB_HORZ, screen);
    } else if (hit == HTCAPTION) {
        SetActiveWindow(handle);
    }
}
