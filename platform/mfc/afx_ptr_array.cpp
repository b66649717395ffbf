#include "afx_ptr_array.h"

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr INT_PTR kLargestSize = std::numeric_limits<INT_PTR>::max() / static_cast<INT_PTR>(sizeof(void*));
constexpr INT_PTR kSmallestStep = 4;

}  // namespace

void CPtrArray::SetSize(INT_PTR newSize, INT_PTR growBy) {
    if (newSize < 0) AfxThrowInvalidArgException();
    if (newSize == 0) {
        std::free(m_pData);
        m_pData = nullptr;
        m_nMaxSize = 0;
    } else if (newSize > m_nMaxSize) {
        Reallocate(RoomFor(newSize, growBy >= 0 ? growBy : m_nGrowBy));
    }
    if (growBy >= 0) m_nGrowBy = growBy;
    if (newSize > m_nSize) std::fill(m_pData + m_nSize, m_pData + newSize, nullptr);
    m_nSize = newSize;
}

// The entries to allocate for `newSize` of them. Without a step of its own the array grows by half, so that
// filling it takes linear time.
INT_PTR CPtrArray::RoomFor(INT_PTR newSize, INT_PTR growBy) const {
    const INT_PTR step = growBy > 0 ? growBy : std::max(kSmallestStep, m_nMaxSize / 2);
    return std::max(newSize, m_nMaxSize > kLargestSize - step ? newSize : m_nMaxSize + step);
}

void CPtrArray::GrowFor(INT_PTR index) {
    if (index >= kLargestSize) throw std::bad_alloc();
    SetSize(index + 1);
}

void CPtrArray::FreeExtra() {
    if (m_nSize == m_nMaxSize) return;
    if (m_nSize == 0) {
        SetSize(0);
    } else {
        Reallocate(m_nSize);
    }
}

// Large blocks are moved by their pages, which is what makes growing in small steps cheap.
void CPtrArray::Reallocate(INT_PTR newMaxSize) {
    if (newMaxSize > kLargestSize) throw std::bad_alloc();
    void* moved = std::realloc(m_pData, static_cast<size_t>(newMaxSize) * sizeof(void*));
    if (!moved) throw std::bad_alloc();
    m_pData = static_cast<void**>(moved);
    m_nMaxSize = newMaxSize;
}

void CPtrArray::RemoveAt(INT_PTR index, INT_PTR count) {
    if (index < 0 || count < 0 || index > m_nSize || count > m_nSize - index) AfxThrowInvalidArgException();
    std::copy(m_pData + index + count, m_pData + m_nSize, m_pData + index);
    m_nSize -= count;
}
