#include "afx_string_array.h"

#include <utility>

void CStringArray::SetSize(INT_PTR newSize) {
    if (newSize < 0) AfxThrowInvalidArgException();
    strings_.resize(static_cast<size_t>(newSize));
}

void CStringArray::RemoveAt(INT_PTR index, INT_PTR count) {
    if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index)
        AfxThrowInvalidArgException();
    strings_.erase(strings_.begin() + index, strings_.begin() + index + count);
}

INT_PTR CStringArray::Add(const CString& element) {
    strings_.push_back(element);
    return GetSize() - 1;
}

void CStringArray::InsertAt(INT_PTR index, const CString& element) {
    if (index < 0) AfxThrowInvalidArgException();
    // Copied first: it may be an entry of this array.
    CString copy(element);
    if (index > GetSize()) SetSize(index);
    strings_.insert(strings_.begin() + index, std::move(copy));
}

INT_PTR CStringArray::Append(const CStringArray& source) {
    if (this == &source) AfxThrowInvalidArgException();
    const INT_PTR first = GetSize();
    strings_.insert(strings_.end(), source.strings_.begin(), source.strings_.end());
    return first;
}
