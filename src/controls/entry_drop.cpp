#include "controls/entry_drop.h"

namespace {

constexpr UINT kListId = 1014;
constexpr int kGap = 4;
constexpr int kOpenRows = 12;

}  // namespace

BEGIN_MESSAGE_MAP(CEntryDrop, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CEntryDrop::CreateParts() {
    const SIZE sample = MeasureText(kSampleMixed, kSampleMixedWhole);
    const LONG top = sample.cy + 1;
    // The height at creation is that of the open list; the system gives the closed one its own.
    const RECT place = {0, top, 4 * sample.cx, top + kOpenRows * (sample.cy + kGap)};
    list_.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_VSCROLL | CBS_DROPDOWNLIST, place, this, kListId);
    GiveFont(list_);
    RECT real = {};
    list_.GetWindowRect(&real);
    height_ = top + (real.bottom - real.top) + kGap;
}

void CEntryDrop::AddItem(const char* text, BOOL unique) {
    const size_t former = value_.Items().size();
    value_.AddItem(text, unique != FALSE);
    if (value_.Items().size() == former) return;
    list_.AddString(text);
    list_.SetCurSel(0);
}

void CEntryDrop::SetValue(const char* text) {
    value_.SetValue(text);
    list_.SetWindowText(text);
}

const char* CEntryDrop::GetValue() {
    ReadList();
    return value_.GetValue();
}

// Windows within the list, such as its open part's edit, count as well.
BOOL CEntryDrop::OwnsWindow(CWnd* window) {
    if (!window) return FALSE;
    return window == this || window == &list_ || window->GetParent() == &list_;
}

BOOL CEntryDrop::IsChanged() {
    ReadList();
    return value_.IsChanged();
}

void CEntryDrop::ReadList() {
    value_.Select(list_.GetCurSel());
}
