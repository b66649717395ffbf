#pragma once

#include "afx_geometry.h"
#include "afx_window.h"

// The macros of message maps. A handler's arguments are taken out of the message here, in one place per
// message.

#define BEGIN_MESSAGE_MAP(theClass, baseClass) AFX_BEGIN_MAP(, theClass, baseClass)
// Of a class template with one parameter, a type. NOLINTBEGIN(bugprone-macro-parentheses): types take none.
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass) \
    AFX_BEGIN_MAP(template <class type_name>, theClass<type_name>, baseClass)
// NOLINTEND(bugprone-macro-parentheses)
#define AFX_BEGIN_MAP(head, theClass, baseClass)             \
    head const AFX_MSGMAP* theClass::GetMessageMap() const { \
        return GetThisMessageMap();                          \
    }                                                        \
    head const AFX_MSGMAP* theClass::GetThisMessageMap() {   \
        using ThisClass [[maybe_unused]] = theClass;         \
        using TheBaseClass = baseClass;                      \
        static const AFX_MSGMAP_ENTRY entries[] = {
#define END_MESSAGE_MAP()                                                      \
    { 0, 0, 0, 0, nullptr }                                                    \
    }                                                                          \
    ;                                                                          \
    static const AFX_MSGMAP map = {&TheBaseClass::GetThisMessageMap, entries}; \
    return &map;                                                               \
    }

// Runs BODY with `self` of this class, `m` the message and `handler` the member to call.
#define AFX_MAP_CALL(member, ...)                                            \
    [](CCmdTarget* target, [[maybe_unused]] const AFX_MESSAGE& m) -> BOOL {  \
        [[maybe_unused]] auto* const self = static_cast<ThisClass*>(target); \
        constexpr auto handler = member;                                     \
        __VA_ARGS__;                                                         \
        return TRUE;                                                         \
    }

#define AFX_MAP_WINDOW(message, member, ...) \
    {message, 0, 0, 0, AFX_MAP_CALL(&ThisClass::member, __VA_ARGS__)},

#define ON_MESSAGE(message, member) \
    {message, 0, 0, 0, AFX_MAP_CALL(member, *m.result = (self->*handler)(m.wParam, m.lParam))},

#define ON_CONTROL(code, id, member)                                                    \
    {WM_COMMAND, static_cast<WORD>(code), static_cast<WORD>(id), static_cast<WORD>(id), \
     AFX_MAP_CALL(member, (self->*handler)())},
#define ON_COMMAND(id, member) ON_CONTROL(0, id, member)
#define ON_BN_CLICKED(id, member) ON_CONTROL(BN_CLICKED, id, member)
#define ON_EN_CHANGE(id, member) ON_CONTROL(EN_CHANGE, id, member)
#define ON_CBN_SELCHANGE(id, member) ON_CONTROL(CBN_SELCHANGE, id, member)
#define ON_LBN_SELCHANGE(id, member) ON_CONTROL(LBN_SELCHANGE, id, member)
#define ON_LBN_DBLCLK(id, member) ON_CONTROL(LBN_DBLCLK, id, member)

#define ON_NOTIFY(code, id, member)                                 \
    {WM_NOTIFY, code, static_cast<WORD>(id), static_cast<WORD>(id), \
     AFX_MAP_CALL(member, (self->*handler)(reinterpret_cast<NMHDR*>(m.lParam), m.result))},

#define ON_CONTROL_REFLECT(code, member) \
    {WM_REFLECT_BASE + WM_COMMAND, static_cast<WORD>(code), 0, 0, AFX_MAP_CALL(member, (self->*handler)())},
#define ON_NOTIFY_REFLECT(code, member)       \
    {WM_REFLECT_BASE + WM_NOTIFY, code, 0, 0, \
     AFX_MAP_CALL(member, (self->*handler)(reinterpret_cast<NMHDR*>(m.lParam), m.result))},

#define AFX_MAP_POINT CPoint(static_cast<short>(LOWORD(m.lParam)), static_cast<short>(HIWORD(m.lParam)))
#define AFX_MAP_MOUSE(message, member) \
    AFX_MAP_WINDOW(message, member, (self->*handler)(static_cast<UINT>(m.wParam), AFX_MAP_POINT))
#define AFX_MAP_PLAIN(message, member) AFX_MAP_WINDOW(message, member, (self->*handler)())

#define ON_WM_CLOSE() AFX_MAP_PLAIN(WM_CLOSE, OnClose)
#define ON_WM_DESTROY() AFX_MAP_PLAIN(WM_DESTROY, OnDestroy)
#define ON_WM_NCDESTROY() AFX_MAP_PLAIN(WM_NCDESTROY, OnNcDestroy)
#define ON_WM_PAINT() AFX_MAP_PLAIN(WM_PAINT, OnPaint)
#define ON_WM_LBUTTONDOWN() AFX_MAP_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MAP_MOUSE(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_RBUTTONDOWN() AFX_MAP_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_MOUSEMOVE() AFX_MAP_MOUSE(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_SIZE()                                                                                 \
    AFX_MAP_WINDOW(WM_SIZE, OnSize,                                                                  \
                   (self->*handler)(static_cast<UINT>(m.wParam), static_cast<int>(LOWORD(m.lParam)), \
                                    static_cast<int>(HIWORD(m.lParam))))
#define ON_WM_MOVE()     \
    AFX_MAP_WINDOW(      \
        WM_MOVE, OnMove, \
        (self->*handler)(static_cast<short>(LOWORD(m.lParam)), static_cast<short>(HIWORD(m.lParam))))
#define ON_WM_SETFOCUS()                    \
    AFX_MAP_WINDOW(WM_SETFOCUS, OnSetFocus, \
                   (self->*handler)(CWnd::FromHandle(reinterpret_cast<HWND>(m.wParam))))
#define ON_WM_KILLFOCUS()                     \
    AFX_MAP_WINDOW(WM_KILLFOCUS, OnKillFocus, \
                   (self->*handler)(CWnd::FromHandle(reinterpret_cast<HWND>(m.wParam))))
// A bar of the window itself comes as a null pointer.
#define ON_WM_VSCROLL() \
    AFX_MAP_WINDOW(WM_VSCROLL, OnVScroll, (self->*handler)(LOWORD(m.wParam), HIWORD(m.wParam), nullptr))
#define ON_WM_HELPINFO() \
    AFX_MAP_WINDOW(WM_HELP, OnHelpInfo, *m.result = (self->*handler)(reinterpret_cast<HELPINFO*>(m.lParam)))
