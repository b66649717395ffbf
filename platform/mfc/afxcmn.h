#pragma once

// The class framework's header of the common controls.

#include "afxwin.h"
// behind the header of windows
#include <commctrl.h>

class CTabCtrl : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // The place that the tab got, or -1.
    LONG InsertItem(int index, LPCSTR text);
    int GetCurSel() const;
    int SetCurSel(int index);
};

// The arrows beside a number.
class CSpinButtonCtrl : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    CWnd* SetBuddy(CWnd* buddy);
};
