#pragma once

#include "controls/entry_value.h"
#include "controls/entry_wnd.h"

// An edit in which Return, if it has one line, and Escape do nothing.
class CEntryEdit : public CEdit {
public:
    BOOL PreTranslateMessage(MSG* message) override;

    CString Text() const;
};

// A label and under it a text of one line, as wide as the panel.
class CEntryStrEdit : public CEntryWnd {
public:
    void SetValue(const char* text) override;
    const char* GetValue() override;
    void DisplayValue(const char* text) override;
    BOOL OwnsWindow(CWnd* window) override;
    BOOL IsChanged() override;

protected:
    void CreateParts() override;
    virtual bool FollowsWidth() const { return true; }
    // Makes the edit under the label, `width` by `height`, and the control high enough for it.
    void PlaceEdit(DWORD style, LONG top, LONG width, LONG height);

    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    RECT edit_place_ = {};
    CEntryEdit edit_;
    TextValue value_;
};

// A label and under it a text of so many columns and rows.
class CEntryTextEdit : public CEntryStrEdit {
public:
    // To be called before Create. Below 1 columns stand for 40, which then follow the panel's width if they
    // are 0; up to 1 row makes an edit of one line.
    void SetSize(int columns, int rows);

protected:
    void CreateParts() override;
    bool FollowsWidth() const override { return columns_ == 0; }

private:
    int columns_ = 0;
    int rows_ = 0;
};
