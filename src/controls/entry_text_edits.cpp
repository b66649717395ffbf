#include "controls/entry_text_edits.h"

#include <algorithm>

namespace {

constexpr UINT kEditId = 1010;
constexpr DWORD kOneLine = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL;
constexpr DWORD kManyLines = kOneLine | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN;
constexpr int kDefaultColumns = 40;
constexpr int kGap = 4;

// A size from a tag may be any number.
LONG Pixels(int count, LONG each) {
    return static_cast<LONG>(std::min<int64_t>(static_cast<int64_t>(count) * each, kLongestSide));
}

}  // namespace

BOOL CEntryEdit::PreTranslateMessage(MSG* message) {
    if (message->message == WM_KEYDOWN) {
        if (message->wParam == VK_ESCAPE) return TRUE;
        if (message->wParam == VK_RETURN && !(GetStyle() & ES_MULTILINE)) return TRUE;
    }
    return CEdit::PreTranslateMessage(message);
}

CString CEntryEdit::Text() const {
    CString text;
    GetWindowText(text);
    return text;
}

BEGIN_MESSAGE_MAP(CEntryStrEdit, CEntryWnd)
ON_WM_PAINT()
ON_WM_SIZE()
END_MESSAGE_MAP()

void CEntryStrEdit::CreateParts() {
    const LONG line = MeasureText(kSampleMixed, kSampleMixedLength).cy;
    const LONG edit_height = line + kGap;
    PlaceEdit(kOneLine, line + 1, width_, edit_height);
    height_ = line + 1 + edit_height + kGap;
}

void CEntryStrEdit::PlaceEdit(DWORD style, LONG top, LONG width, LONG height) {
    edit_place_ = {0, top, width, top + height};
    CreateEdit(edit_, style, edit_place_, kEditId);
}

void CEntryStrEdit::SetValue(const char* text) {
    value_.SetValue(text);
    edit_.SetWindowText(text);
}

const char* CEntryStrEdit::GetValue() {
    value_.Show(edit_.Text());
    return value_.GetValue();
}

void CEntryStrEdit::DisplayValue(const char* text) {
    edit_.SetWindowText(text);
}

BOOL CEntryStrEdit::OwnsWindow(CWnd* window) {
    return window == this || window == &edit_;
}

BOOL CEntryStrEdit::IsChanged() {
    value_.Show(edit_.Text());
    return value_.IsChanged();
}

void CEntryStrEdit::OnSize(UINT type, int width, int height) {
    CEntryWnd::OnSize(type, width, height);
    if (!edit_.m_hWnd || width_ <= 0 || !FollowsWidth()) return;
    edit_place_.right = width_;
    edit_.MoveWindow(&edit_place_, TRUE);
}

void CEntryTextEdit::SetSize(int columns, int rows) {
    columns_ = columns;
    rows_ = rows;
}

void CEntryTextEdit::CreateParts() {
    const SIZE sample = MeasureText(kSampleWide, kSampleWideLength);
    const LONG column = (sample.cx + 4) / 8;  // an eighth, rounded
    const LONG width = Pixels(columns_ < 1 ? kDefaultColumns : columns_, column);
    const LONG height = rows_ > 1 ? Pixels(rows_, sample.cy + 1) + kGap : sample.cy + kGap;
    PlaceEdit(rows_ > 1 ? kManyLines : kOneLine, sample.cy + 1, width, height);
    // On top of the height at creation, unlike the other controls.
    height_ += height + kGap;
}
