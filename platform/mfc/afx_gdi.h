#pragma once

#include "afx_cmd_target.h"

class CWnd;

// A drawing object that owns its handle, if it has one.
class CGdiObject : public CObject {
public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    BOOL Attach(HGDIOBJ object);
    HGDIOBJ Detach();
    BOOL DeleteObject();

    HGDIOBJ m_hObject = nullptr;
};

class CFont : public CGdiObject {
public:
    // An object for a font that belongs to somebody else; it lives until this thread is idle. Null for null.
    static CFont* FromHandle(HFONT font);

    BOOL CreateFontIndirect(const LOGFONTA* font);
};

// A device context. It is released by the derived classes that got it.
class CDC : public CObject {
public:
    CDC() = default;
    ~CDC() override;

    HDC GetSafeHdc() const { return m_hDC; }

    CFont* SelectObject(CFont* font);
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    BOOL TextOut(int x, int y, LPCSTR text, int length) { return ::TextOutA(m_hDC, x, y, text, length); }
    // Changes the background colour.
    void FillSolidRect(const RECT* rect, COLORREF color);

    HDC m_hDC = nullptr;
};

class CClientDC : public CDC {
public:
    explicit CClientDC(CWnd* window);
    ~CClientDC() override;

private:
    HWND m_hWnd;
};

// For the handler of WM_PAINT.
class CPaintDC : public CDC {
public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {};

private:
    HWND m_hWnd;
};
