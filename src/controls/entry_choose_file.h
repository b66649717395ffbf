#pragma once

#include "controls/entry_text_edits.h"

// A label, and under it a file name with a button that asks for another one.
class CEntryChooseFile : public CEntryWnd {
public:
    void SetValue(const char* text) override;
    const char* GetValue() override;
    void DisplayValue(const char* text) override;
    BOOL OwnsWindow(CWnd* window) override;
    BOOL IsChanged() override;

protected:
    void CreateParts() override;

    afx_msg void OnChooseFile();
    DECLARE_MESSAGE_MAP()

private:
    void ReadEdit();
    void ShowText();

    CEntryEdit edit_;
    CButton button_;
    TextValue value_;
};

// The filter of the file dialog for a value: by what stands behind its last point, in any case.
const char* FileFilterFor(const CString& value);
