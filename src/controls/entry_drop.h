#pragma once

#include "controls/entry_value.h"
#include "controls/entry_wnd.h"

// A label and under it a drop-down list. The panel adds the value itself as the first item, which stays
// selected.
class CEntryDrop : public CEntryWnd {
public:
    // With `unique` set a text that is there already, in any case, is left out.
    void AddItem(const char* text, BOOL unique);

    void SetValue(const char* text) override;
    const char* GetValue() override;
    BOOL OwnsWindow(CWnd* window) override;
    BOOL IsChanged() override;

protected:
    void CreateParts() override;

    DECLARE_MESSAGE_MAP()

private:
    void ReadList();

    CComboBox list_;
    DropValue value_;
};
