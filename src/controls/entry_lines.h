#pragma once

#include "controls/entry_wnd.h"

// The entries that show a line of text and have no value.

// A bold line.
class CEntryTitle : public CEntryWnd {
protected:
    void CreateParts() override;
    void MakeFont() override;

    DECLARE_MESSAGE_MAP()
};

// A line of normal weight.
class CEntryText : public CEntryWnd {
protected:
    void CreateParts() override;
    void MakeFont() override;

    DECLARE_MESSAGE_MAP()
};

// A bold heading with an etched line under it; without a label the line alone.
class CEntrySection : public CEntryWnd {
protected:
    void CreateParts() override;
    void MakeFont() override;

    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    int text_height_ = 0;
};
