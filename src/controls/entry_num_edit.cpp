#include "controls/entry_num_edit.h"

namespace {

constexpr UINT kFieldId = 1009;
// The field is this many times as wide as it is high.
constexpr int kFieldProportion = 5;

// At the right end of the parent, not of the control, whose edge cuts the last pixels off.
RECT FieldPlace(int parent_width, int height) {
    const int width = kFieldProportion * height;
    return {parent_width - width, 0, parent_width, height};
}

}  // namespace

BEGIN_MESSAGE_MAP(CEntryNumEdit, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CEntryNumEdit::CreateParts() {
    height_ = MeasureLabel(kSampleMixed, kSampleMixedLength).cy + 4;
    const RECT place = FieldPlace(ParentWidth(), height_);
    field_.Create(this, kFieldId, &place, 0, WS_EX_CLIENTEDGE);
    GiveFont(field_);
}

void CEntryNumEdit::SetValue(const char* text) {
    value_.SetValue(text);
    field_.Refresh();
}

void CEntryNumEdit::DisplayValue(const char* text) {
    value_.DisplayValue(text);
    field_.Refresh();
}

BOOL CEntryNumEdit::OwnsWindow(CWnd* window) {
    return window == this || field_.OwnsWindow(window);
}

void CEntryNumEdit::SetLimits(int, const double* limits, const CStringArray&) {
    value_.SetLimits(limits[0], limits[1], limits[2]);
}

BEGIN_MESSAGE_MAP(CEntryNumEditF, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CEntryNumEditF::CreateParts() {
    height_ = MeasureLabel(kSampleMixed, kSampleMixedLength).cy + 4;
    const RECT place = FieldPlace(ParentWidth(), height_);
    field_.Create(this, kFieldId, &place, 0, WS_EX_CLIENTEDGE);
    GiveFont(field_);
}

void CEntryNumEditF::SetValue(const char* text) {
    value_.SetValue(text);
    field_.Refresh();
}

void CEntryNumEditF::DisplayValue(const char* text) {
    value_.DisplayValue(text);
    field_.Refresh();
}

BOOL CEntryNumEditF::OwnsWindow(CWnd* window) {
    return window == this || field_.OwnsWindow(window);
}

void CEntryNumEditF::SetLimits(int, const double* limits, const CStringArray&) {
    value_.SetLimits(limits[0], limits[1], limits[2]);
}
