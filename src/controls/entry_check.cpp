#include "controls/entry_check.h"

#include <algorithm>
#include <cstring>

namespace {
constexpr UINT kButtonId = 1021;
constexpr int kBoxMargin = 8;
}  // namespace

BEGIN_MESSAGE_MAP(CEntryCheck, CEntryWnd)
ON_BN_CLICKED(kButtonId, &CEntryCheck::OnClicked)
END_MESSAGE_MAP()

void CEntryCheck::CreateParts() {
    const SIZE sample = MeasureText(kSampleMixed, kSampleMixedLength);
    height_ = sample.cy + 2;
    // Far wider than the caption: a whole sample per character.
    const size_t width = label_ ? std::strlen(label_) * static_cast<size_t>(sample.cx) : 0;
    const RECT place = {0, 0, static_cast<LONG>(std::min<size_t>(width, kLongestSide)) + kBoxMargin, height_};
    button_.Create(label_ ? label_ : "", WS_VISIBLE | BS_CHECKBOX, place, this, kButtonId);
    GiveFont(button_);
}

void CEntryCheck::SetValue(const char* text) {
    value_.SetValue(text);
    ShowBox();
}

const char* CEntryCheck::GetValue() {
    ReadBox();
    return value_.GetValue();
}

void CEntryCheck::DisplayValue(const char* text) {
    value_.DisplayValue(text);
    ShowBox();
}

BOOL CEntryCheck::OwnsWindow(CWnd* window) {
    return window == this || window == &button_;
}

BOOL CEntryCheck::IsChanged() {
    ReadBox();
    return value_.IsChanged();
}

void CEntryCheck::ReadBox() {
    if (button_.m_hWnd) value_.Show(button_.SendMessage(BM_GETCHECK, 0, 0) != BST_UNCHECKED);
}

void CEntryCheck::ShowBox() {
    if (button_.m_hWnd) button_.SendMessage(BM_SETCHECK, value_.Shown() ? BST_CHECKED : BST_UNCHECKED, 0);
}

// The box has no state of its own making.
void CEntryCheck::OnClicked() {
    ReadBox();
    value_.Show(!value_.Shown());
    ShowBox();
}
