#pragma once

#include <vector>

#include "afx_base.h"
#include "afx_exceptions.h"
#include "afx_string.h"

// A growing array of strings. An index out of range, a negative size and a negative count raise
// CInvalidArgException. References stand until the size changes.
class CStringArray {
public:
    CStringArray() = default;
    CStringArray(const CStringArray&) = delete;
    CStringArray& operator=(const CStringArray&) = delete;

    INT_PTR GetSize() const { return static_cast<INT_PTR>(strings_.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    bool IsEmpty() const { return strings_.empty(); }

    // New entries are empty strings. How much the array takes beyond its size is its own affair.
    void SetSize(INT_PTR newSize);
    void RemoveAll() { strings_.clear(); }
    void RemoveAt(INT_PTR index, INT_PTR count = 1);

    const CString& GetAt(INT_PTR index) const { return strings_[Checked(index)]; }
    CString& ElementAt(INT_PTR index) { return strings_[Checked(index)]; }
    const CString& operator[](INT_PTR index) const { return GetAt(index); }
    CString& operator[](INT_PTR index) { return ElementAt(index); }
    void SetAt(INT_PTR index, const CString& element) { strings_[Checked(index)] = element; }

    // The result is the index of the new entry, which may be a copy of one of this array's own.
    INT_PTR Add(const CString& element);
    // In front of the entry at `index`; an index behind the end fills the gap with empty strings.
    void InsertAt(INT_PTR index, const CString& element);
    // The result is the index of the first new entry. An array can't be appended to itself: that raises.
    INT_PTR Append(const CStringArray& source);
    void Copy(const CStringArray& source) { strings_ = source.strings_; }

private:
    size_t Checked(INT_PTR index) const {
        if (index < 0 || index >= GetSize()) AfxThrowInvalidArgException();
        return static_cast<size_t>(index);
    }

    std::vector<CString> strings_;
};
