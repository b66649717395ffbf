#include "afx_controls.h"

namespace {

LPARAM TextParam(LPCSTR text) {
    return reinterpret_cast<LPARAM>(text);
}

// The text of an item, by the messages of its list that tell length and text.
void GetItemText(const CWnd& list, UINT lengthMessage, UINT textMessage, int index, CString& text) {
    text.Empty();
    const LRESULT length = list.SendMessage(lengthMessage, static_cast<WPARAM>(index));
    if (length < 0) return;
    char* const buffer = text.GetBuffer(static_cast<int>(length));
    list.SendMessage(textMessage, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(buffer));
    text.ReleaseBuffer(static_cast<int>(length));
}

}  // namespace

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("EDIT", nullptr, style, rect, parent, id);
}

BOOL CButton::Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("BUTTON", caption, style, rect, parent, id);
}

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("LISTBOX", nullptr, style, rect, parent, id);
}

int CListBox::AddString(LPCSTR text) {
    return static_cast<int>(SendMessage(LB_ADDSTRING, 0, TextParam(text)));
}

int CListBox::DeleteString(UINT index) {
    return static_cast<int>(SendMessage(LB_DELETESTRING, index));
}

int CListBox::GetCount() const {
    return static_cast<int>(SendMessage(LB_GETCOUNT));
}

int CListBox::GetCurSel() const {
    return static_cast<int>(SendMessage(LB_GETCURSEL));
}

int CListBox::SetCurSel(int index) {
    return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(index)));
}

void CListBox::GetText(int index, CString& text) const {
    GetItemText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, text);
}

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create("COMBOBOX", nullptr, style, rect, parent, id);
}

int CComboBox::AddString(LPCSTR text) {
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, TextParam(text)));
}

int CComboBox::DeleteString(UINT index) {
    return static_cast<int>(SendMessage(CB_DELETESTRING, index));
}

int CComboBox::GetCount() const {
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}

int CComboBox::GetCurSel() const {
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CComboBox::SetCurSel(int index) {
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(index)));
}

int CComboBox::FindStringExact(int start, LPCSTR text) const {
    return static_cast<int>(SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(start), TextParam(text)));
}

void CComboBox::GetLBText(int index, CString& text) const {
    GetItemText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, text);
}
