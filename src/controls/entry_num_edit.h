#pragma once

#include "controls/entry_value.h"
#include "controls/entry_wnd.h"
#include "controls/num_edit.h"

// A label and an integer field on one row.
class CEntryNumEdit : public CEntryWnd {
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
    IntValue value_;
    WS_IntEdit field_{value_.Field()};
};

// A label and a float field on one row.
class CEntryNumEditF : public CEntryWnd {
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
    FloatValue value_;
    WS_FloatEdit field_{value_.Field()};
};
