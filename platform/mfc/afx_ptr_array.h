#pragma once

#include "afx_base.h"
#include "afx_exceptions.h"

// A growing array of pointers that it does not own. An index out of range, a negative size and a negative
// count raise CInvalidArgException; memory that runs out is std::bad_alloc, and the array is as before.
class CPtrArray {
public:
    CPtrArray() = default;
    CPtrArray(const CPtrArray&) = delete;
    CPtrArray& operator=(const CPtrArray&) = delete;
    ~CPtrArray() { std::free(m_pData); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    bool IsEmpty() const { return m_nSize == 0; }

    // New entries are null. `growBy` is the number of entries by which the array grows from now on; 0 leaves
    // the step to the array, -1 leaves it as it is. A size of 0 frees the memory.
    void SetSize(INT_PTR newSize, INT_PTR growBy = -1);
    // Gives back what growing has taken beyond the size.
    void FreeExtra();
    void RemoveAll() { SetSize(0); }
    void RemoveAt(INT_PTR index, INT_PTR count = 1);

    void* GetAt(INT_PTR index) const { return m_pData[Checked(index)]; }
    void SetAt(INT_PTR index, void* element) { m_pData[Checked(index)] = element; }
    void* operator[](INT_PTR index) const { return m_pData[Checked(index)]; }
    void*& operator[](INT_PTR index) { return m_pData[Checked(index)]; }

    void SetAtGrow(INT_PTR index, void* element) {
        if (index == m_nSize && index < m_nMaxSize) {
            ++m_nSize;
        } else if (index >= m_nSize) {
            GrowFor(index);
        }
        SetAt(index, element);
    }
    // The result is the index of the new entry.
    INT_PTR Add(void* element) {
        SetAtGrow(m_nSize, element);
        return m_nSize - 1;
    }

    // The entries in one run, null while there is no memory; valid until the size changes.
    void** GetData() { return m_pData; }
    const void* const* GetData() const { return m_pData; }

private:
    INT_PTR Checked(INT_PTR index) const {
        if (index < 0 || index >= m_nSize) AfxThrowInvalidArgException();
        return index;
    }
    void GrowFor(INT_PTR index);
    INT_PTR RoomFor(INT_PTR newSize, INT_PTR growBy) const;
    void Reallocate(INT_PTR newMaxSize);

    void** m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};
