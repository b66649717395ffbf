#pragma once

#include "controls/entry_value.h"
#include "controls/entry_wnd.h"

// A check box.
class CEntryCheck : public CEntryWnd {
public:
    void SetValue(const char* text) override;
    const char* GetValue() override;
    void DisplayValue(const char* text) override;
    BOOL OwnsWindow(CWnd* window) override;
    BOOL IsChanged() override;

protected:
    void CreateParts() override;

    afx_msg void OnClicked();
    DECLARE_MESSAGE_MAP()

private:
    void ReadBox();
    void ShowBox();

    CButton button_;
    CheckValue value_;
};
