#pragma once

#include "afx_string.h"
#include "afx_window.h"

// The controls that windows have by themselves.

class CStatic : public CWnd {};

class CEdit : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
};

class CButton : public CWnd {
public:
    BOOL Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);
};

class CListBox : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int AddString(LPCSTR text);
    int DeleteString(UINT index);
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int index);
    // Empty for an index that is none.
    void GetText(int index, CString& text) const;
};

class CComboBox : public CWnd {
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int AddString(LPCSTR text);
    int DeleteString(UINT index);
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int index);
    int FindStringExact(int start, LPCSTR text) const;
    // Empty for an index that is none.
    void GetLBText(int index, CString& text) const;
};
