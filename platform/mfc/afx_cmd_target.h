#pragma once

#include "afx_base.h"

// Roots of the framework's classes.
class CObject {
public:
    virtual ~CObject();
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

protected:
    CObject() = default;
};

class CCmdTarget;

// A message on its way to a handler. For commands and notifications wParam and lParam are those of WM_COMMAND
// and WM_NOTIFY.
struct AFX_MESSAGE {
    WPARAM wParam;
    LPARAM lParam;
    LRESULT* result;
};

// One row of a message map: a window message, or a command or notification with its code and ids. Handlers
// are called through a function that knows their class and their arguments. False lets the message go on.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    BOOL (*call)(CCmdTarget* target, const AFX_MESSAGE& message);
};

struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;  // ends with a row without a call
};

// A class with a message map.
class CCmdTarget : public CObject {
public:
    ~CCmdTarget() override;

    // Hands a command or a notification to the handler that the map has for it. False without one.
    virtual BOOL OnCmdMsg(UINT message, UINT id, UINT code, const AFX_MESSAGE& body);

protected:
    CCmdTarget() = default;

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;

    // The first row for this message in the class's map, then in those of its bases; null without one.
    const AFX_MSGMAP_ENTRY* FindEntry(UINT message, UINT code, UINT id) const;
};
