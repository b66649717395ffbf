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

BEGIN_TEMPLATE_MESSAGE_MAP(NumEntryOver, Edit, CEntryWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

template <class Edit>
void NumEntryOver<Edit>::CreateParts() {
    height_ = MeasureLabel(kSampleMixed, kSampleMixedLength).cy + 4;
    const RECT place = FieldPlace(ParentWidth(), height_);
    field_.Create(this, kFieldId, &place, 0, WS_EX_CLIENTEDGE);
    GiveFont(field_);
}

template <class Edit>
void NumEntryOver<Edit>::SetValue(const char* text) {
    value_.SetValue(text);
    field_.Refresh();
}

template <class Edit>
void NumEntryOver<Edit>::DisplayValue(const char* text) {
    value_.DisplayValue(text);
    field_.Refresh();
}

template <class Edit>
BOOL NumEntryOver<Edit>::OwnsWindow(CWnd* window) {
    return window == this || field_.OwnsWindow(window);
}

template <class Edit>
void NumEntryOver<Edit>::SetLimits(int, const double* limits, const CStringArray&) {
    value_.SetLimits(limits[0], limits[1], limits[2]);
}

template class NumEntryOver<WS_IntEdit>;
template class NumEntryOver<WS_FloatEdit>;
