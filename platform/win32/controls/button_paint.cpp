#include "button_paint.h"

namespace {

constexpr int kCheckSize = 13;
constexpr int kCheckGap = 4;
constexpr int kFocusInset = 4;
constexpr int kCaptionIndent = 8;

void PaintText(HDC dc, const ButtonLook& look, RECT area, UINT format) {
    SetBkMode(dc, TRANSPARENT);
    if (look.enabled) {
        DrawTextA(dc, look.text.data(), static_cast<int>(look.text.size()), &area, format);
    } else {
        PaintGreyText(dc, look.text, area, format);
    }
}

SIZE TextSize(HDC dc, const std::string& text) {
    RECT area = {};
    DrawTextA(dc, text.data(), static_cast<int>(text.size()), &area, DT_SINGLELINE | DT_CALCRECT);
    return {area.right, area.bottom};
}

// A ring of one pixel, lit from above and the left; the area shrinks to what is inside.
void PaintRing(HDC dc, RECT& area, int light, int dark) {
    const RECT sides[] = {{area.left, area.top, area.right - 1, area.top + 1},
                          {area.left, area.top, area.left + 1, area.bottom - 1},
                          {area.left, area.bottom - 1, area.right, area.bottom},
                          {area.right - 1, area.top, area.right, area.bottom}};
    for (const RECT& side : sides)
        FillRect(dc, &side, GetSysColorBrush(&side - sides < 2 ? light : dark));
    InflateRect(&area, -1, -1);
}

// A tick of three pixels' thickness in a box of kCheckSize.
void PaintTick(HDC dc, int x, int y, COLORREF color) {
    static constexpr int kTops[] = {5, 6, 7, 6, 5, 4, 3};
    const HPEN pen = CreatePen(PS_SOLID, 1, color);
    const HGDIOBJ former = SelectObject(dc, pen);
    int column = x + 3;
    for (const int top : kTops) {
        MoveToEx(dc, column, y + top, nullptr);
        LineTo(dc, column, y + top + 3);
        ++column;
    }
    SelectObject(dc, former);
    DeleteObject(pen);
}

}  // namespace

void PaintGreyText(HDC dc, const std::string& text, RECT area, UINT format) {
    const auto length = static_cast<int>(text.size());
    SetBkMode(dc, TRANSPARENT);
    OffsetRect(&area, 1, 1);
    SetTextColor(dc, GetSysColor(COLOR_BTNHIGHLIGHT));
    DrawTextA(dc, text.data(), length, &area, format);
    OffsetRect(&area, -1, -1);
    SetTextColor(dc, GetSysColor(COLOR_BTNSHADOW));
    DrawTextA(dc, text.data(), length, &area, format);
}

void PaintPushButton(HDC dc, const ButtonLook& look) {
    RECT area = look.area;
    if (look.is_default) {
        FrameRect(dc, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&area, -1, -1);
    }
    FillRect(dc, &area, GetSysColorBrush(COLOR_BTNFACE));
    RECT text = area;
    if (look.pushed) {
        FrameRect(dc, &area, GetSysColorBrush(COLOR_BTNSHADOW));
        OffsetRect(&text, 1, 1);
    } else {
        PaintRing(dc, area, COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW);
        PaintRing(dc, area, COLOR_3DLIGHT, COLOR_BTNSHADOW);
    }
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    PaintText(dc, look, text, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    if (look.focused) {
        RECT focus = look.area;
        InflateRect(&focus, -kFocusInset, -kFocusInset);
        DrawFocusRect(dc, &focus);
    }
}

void PaintCheckBox(HDC dc, const ButtonLook& look) {
    FillRect(dc, &look.area, look.background);
    const LONG top = (look.area.top + look.area.bottom - kCheckSize) / 2;
    RECT box = {look.area.left, top, look.area.left + kCheckSize, top + kCheckSize};
    const bool grey = look.pushed || !look.enabled;
    FillRect(dc, &box, GetSysColorBrush(grey ? COLOR_BTNFACE : COLOR_WINDOW));
    RECT edge = box;
    DrawEdge(dc, &edge, EDGE_SUNKEN, BF_RECT);
    if (look.checked) {
        PaintTick(dc, box.left, box.top, GetSysColor(look.enabled ? COLOR_WINDOWTEXT : COLOR_BTNSHADOW));
    }
    RECT text = look.area;
    text.left = box.right + kCheckGap;
    PaintText(dc, look, text, DT_SINGLELINE | DT_VCENTER);
    if (look.focused && !look.text.empty()) {
        const SIZE size = TextSize(dc, look.text);
        RECT focus = {text.left, (text.top + text.bottom - size.cy) / 2, text.left + size.cx, 0};
        focus.bottom = focus.top + size.cy;
        InflateRect(&focus, 1, 1);
        DrawFocusRect(dc, &focus);
    }
}

void PaintGroupBox(HDC dc, const ButtonLook& look) {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    RECT frame = look.area;
    frame.top += metrics.tmHeight / 2;
    DrawEdge(dc, &frame, EDGE_ETCHED, BF_RECT);
    if (look.text.empty()) return;
    const SIZE size = TextSize(dc, look.text);
    RECT caption = {look.area.left + kCaptionIndent, look.area.top, 0, look.area.top + size.cy};
    caption.right = caption.left + size.cx;
    RECT gap = caption;
    InflateRect(&gap, 2, 0);
    FillRect(dc, &gap, look.background);
    PaintText(dc, look, caption, DT_SINGLELINE);
}
