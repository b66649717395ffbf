#include "afx_gdi.h"

#include <utility>

#include "afx_thread_state.h"
#include "afx_window.h"

CGdiObject::~CGdiObject() {
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ object) {
    ASSERT(!m_hObject);
    m_hObject = object;
    return object != nullptr;
}

HGDIOBJ CGdiObject::Detach() {
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::DeleteObject() {
    const HGDIOBJ object = Detach();
    return object && ::DeleteObject(object);
}

CFont* CFont::FromHandle(HFONT font) {
    return font ? AfxThreadState().temporary.Font(font) : nullptr;
}

BOOL CFont::CreateFontIndirect(const LOGFONTA* font) {
    return Attach(::CreateFontIndirectA(font));
}

CDC::~CDC() = default;

CFont* CDC::SelectObject(CFont* font) {
    const HGDIOBJ former = font ? ::SelectObject(m_hDC, font->GetSafeHandle()) : nullptr;
    return CFont::FromHandle(static_cast<HFONT>(former));
}

void CDC::FillSolidRect(const RECT* rect, COLORREF color) {
    ::SetBkColor(m_hDC, color);
    ::ExtTextOutA(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

CClientDC::CClientDC(CWnd* window) : m_hWnd(window->GetSafeHwnd()) {
    m_hDC = ::GetDC(m_hWnd);
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, m_hDC);
}

CPaintDC::CPaintDC(CWnd* window) : m_hWnd(window->GetSafeHwnd()) {
    m_hDC = ::BeginPaint(m_hWnd, &m_ps);
}

CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
}
