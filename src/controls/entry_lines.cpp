#include "controls/entry_lines.h"

#include <cstring>

#include "controls/toolkit_gdi.h"

namespace {
constexpr int kEtchedLineHeight = 2;
}

BEGIN_MESSAGE_MAP(CEntryTitle, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CEntryTitle::CreateParts() {
    height_ = MeasureLabel(kSampleShort, kSampleShortLength).cy + 1;
}

void CEntryTitle::MakeFont() {
    MakeFontOfWeight(FW_BOLD);
}

BEGIN_MESSAGE_MAP(CEntryText, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CEntryText::CreateParts() {
    height_ = MeasureLabel(kSampleShort, kSampleShortLength).cy + 1;
}

void CEntryText::MakeFont() {
    MakeFontOfWeight(FW_NORMAL);
}

BEGIN_MESSAGE_MAP(CEntrySection, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CEntrySection::CreateParts() {
    text_height_ = label_ ? MeasureText(label_, static_cast<int>(std::strlen(label_))).cy + 1 : 0;
    height_ = text_height_ + kEtchedLineHeight;
}

void CEntrySection::MakeFont() {
    MakeFontOfWeight(FW_BOLD);
}

void CEntrySection::OnPaint() {
    CPaintDC dc(this);
    PaintLabel(dc);
    DrawEtchedLine(dc, text_height_, 0, width_);
}
