#include "message_box_icon.h"

#include <cmath>
#include <initializer_list>

namespace {

constexpr int kSize = kMessageBoxIconSize;
constexpr COLORREF kRed = RGB(192, 0, 0);
constexpr COLORREF kYellow = RGB(255, 208, 0);
constexpr COLORREF kBlue = RGB(0, 64, 192);
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);

// A row of the sign, from the middle to both sides.
void FillRow(HDC dc, HBRUSH brush, int x, int y, int half) {
    const RECT row = {x + kSize / 2 - half, y, x + kSize / 2 + half, y + 1};
    FillRect(dc, &row, brush);
}

void FillDisc(HDC dc, COLORREF color, int x, int y) {
    const HBRUSH brush = CreateSolidBrush(color);
    const double radius = kSize / 2.0;
    for (int row = 0; row < kSize; ++row) {
        const double height = row + 0.5 - radius;
        FillRow(dc, brush, x, y + row, static_cast<int>(std::sqrt(radius * radius - height * height)));
    }
    DeleteObject(brush);
}

void FillTriangle(HDC dc, COLORREF color, int x, int y) {
    const HBRUSH brush = CreateSolidBrush(color);
    for (int row = 0; row < kSize; ++row)
        FillRow(dc, brush, x, y + row, row / 2 + 1);
    DeleteObject(brush);
}

void DrawCross(HDC dc, int x, int y) {
    constexpr int kInset = 10;
    constexpr int kWidth = 4;
    const HBRUSH brush = CreateSolidBrush(kWhite);
    for (int i = kInset; i < kSize - kInset; ++i)
        for (const int row : {i, kSize - 1 - i}) {
            const RECT dash = {x + i - kWidth / 2, y + row, x + i + kWidth / 2, y + row + 1};
            FillRect(dc, &dash, brush);
        }
    DeleteObject(brush);
}

void DrawSign(HDC dc, char sign, COLORREF color, int x, int y) {
    LOGFONTA font = {};
    font.lfHeight = -kSize * 3 / 4;
    font.lfWeight = FW_BOLD;
    const HFONT bold = CreateFontIndirectA(&font);
    const HGDIOBJ former_font = SelectObject(dc, bold);
    const COLORREF former_color = SetTextColor(dc, color);
    const int former_mode = SetBkMode(dc, TRANSPARENT);
    RECT place = {x, y, x + kSize, y + kSize};
    DrawTextA(dc, &sign, 1, &place, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    SetBkMode(dc, former_mode);
    SetTextColor(dc, former_color);
    SelectObject(dc, former_font);
    DeleteObject(bold);
}

}  // namespace

void DrawMessageBoxIcon(HDC dc, UINT icon, int x, int y) {
    switch (icon) {
        case MB_ICONHAND:
            FillDisc(dc, kRed, x, y);
            DrawCross(dc, x, y);
            return;
        case MB_ICONEXCLAMATION:
            FillTriangle(dc, kYellow, x, y);
            DrawSign(dc, '!', kBlack, x, y + 3);
            return;
        case MB_ICONQUESTION:
        case MB_ICONASTERISK:
            FillDisc(dc, kBlue, x, y);
            DrawSign(dc, icon == MB_ICONQUESTION ? '?' : 'i', kWhite, x, y);
            return;
        default: return;
    }
}
