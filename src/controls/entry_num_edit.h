#pragma once

#include "controls/entry_value.h"
#include "controls/entry_wnd.h"
#include "controls/num_edit.h"

// A label and a number field on one row.
template <class Edit>
class NumEntryOver : public CEntryWnd {
public:
    void SetValue(const char* text) override;
    const char* GetValue() override { return value_.GetValue(); }
    void DisplayValue(const char* text) override;
    BOOL OwnsWindow(CWnd* window) override;
    BOOL IsChanged() override { return value_.IsChanged(); }
    void SetLimits(int mode, const double* limits, const CStringArray& items) override;

protected:
    void CreateParts() override;

    DECLARE_MESSAGE_MAP()

private:
    NumericValue<typename Edit::Number> value_;
    Edit field_{value_.Field()};
};

extern template class NumEntryOver<WS_IntEdit>;
extern template class NumEntryOver<WS_FloatEdit>;
using CEntryNumEdit = NumEntryOver<WS_IntEdit>;
using CEntryNumEditF = NumEntryOver<WS_FloatEdit>;
