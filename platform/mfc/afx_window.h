#pragma once

#include "afx_cmd_target.h"
#include "afx_gdi.h"
#include "afx_geometry.h"
#include "afx_module.h"
#include "afx_string.h"

#define afx_msg

#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    const AFX_MSGMAP* GetMessageMap() const override;

// Messages of a control that come back to it from its parent.
#define WM_REFLECT_BASE 0xBC00u

class CScrollBar;
class CDataExchange;

// A window. The object is permanent for a window that it made or was attached to: messages of that window go
// through it, on the thread that attached it. For other windows FromHandle gives a temporary object.
class CWnd : public CCmdTarget {
public:
    CWnd() = default;
    // Destroys the window, if there still is one.
    ~CWnd() override;

    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }

    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    // Null for null. A temporary object lives until this thread is idle.
    static CWnd* FromHandle(HWND window);
    static CWnd* FromHandlePermanent(HWND window);
    BOOL Attach(HWND window);
    HWND Detach();
    // Attaches, and takes over the messages of the window.
    BOOL SubclassWindow(HWND window);

    BOOL Create(LPCSTR className, LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL CreateEx(DWORD extendedStyle, LPCSTR className, LPCSTR text, DWORD style, const RECT& rect,
                  CWnd* parent, UINT id, LPVOID parameter = nullptr);
    virtual BOOL DestroyWindow();

    // ---- Plain calls on the window. ----
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    DWORD GetStyle() const;
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT flags = 0);
    int GetDlgCtrlID() const;
    CWnd* GetParent() const;
    CWnd* GetDlgItem(int id) const;
    void SetDlgItemText(int id, LPCSTR text);
    void SetWindowText(LPCSTR text);
    void GetWindowText(CString& text) const;
    CFont* GetFont() const;
    void SetFont(CFont* font, BOOL redraw = TRUE);
    void GetWindowRect(LPRECT rect) const;
    void GetClientRect(LPRECT rect) const;
    void ScreenToClient(LPRECT rect) const;
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE);
    void MoveWindow(LPCRECT rect, BOOL repaint = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    BOOL ShowWindow(int how);
    BOOL EnableWindow(BOOL enable = TRUE);
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    static CWnd* WindowFromPoint(POINT point);
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect);
    void UpdateWindow();
    void ScrollWindow(int dx, int dy, LPCRECT rect = nullptr, LPCRECT clip = nullptr);
    // True; the system's call tells a position and no success.
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    int GetScrollPos(int bar) const;
    int SetScrollPos(int bar, int position, BOOL redraw = TRUE);
    void SetScrollRange(int bar, int minimum, int maximum, BOOL redraw = TRUE);
    // The last position that the bar can reach.
    int GetScrollLimit(int bar);
    int MessageBox(LPCSTR text, LPCSTR caption = nullptr, UINT type = MB_OK);
    // Over the owner, or in the middle of the screen, and never beyond its edges.
    void CenterWindow();

    // Brings values between a dialog's controls and its fields, by DoDataExchange. Always true: no exchange
    // that is provided can fail.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    // Sees messages from the queue before they are dispatched; true when it has dealt with one.
    virtual BOOL PreTranslateMessage(MSG* message);
    // Asks all permanent windows from the message's own up to `stop`, or to the top.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);

protected:
    // Every message of the window comes here.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    // A message of this control that its parent has got.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual void DoDataExchange(CDataExchange* exchange);
    // The last call after the window has gone; the object may delete itself here.
    virtual void PostNcDestroy();

    // Processes the message at hand as if there were no handler.
    LRESULT Default();

    afx_msg void OnClose() { Default(); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnNcDestroy();
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return static_cast<BOOL>(Default()); }

    DECLARE_MESSAGE_MAP()

private:
    friend class AfxTemporaryObjects;
    friend LRESULT AfxCallWndProc(CWnd* object, UINT message, WPARAM wParam, LPARAM lParam);

    explicit CWnd(HWND window) : m_hWnd(window) {}
    BOOL ReflectToChild(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);

    WNDPROC m_super = nullptr;  // the procedure that this object stands in front of
};

// Until the matching AfxUnhookWindowCreate the next window that this thread creates belongs to `window`.
// AfxUnhookWindowCreate tells whether one came.
void AfxHookWindowCreate(CWnd* window);
BOOL AfxUnhookWindowCreate();
