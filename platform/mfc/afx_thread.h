#pragma once

#include "afx_cmd_target.h"
#include "afx_module.h"

class CWnd;

// A thread with a message loop. The object of a thread that was started by CreateThread deletes itself at the
// thread's end, unless m_bAutoDelete is cleared.
class CWinThread : public CCmdTarget {
public:
    CWinThread() = default;
    ~CWinThread() override;

    // Starts the thread: InitInstance, then Run, then ExitInstance. It returns once the thread runs. The
    // stack size and the flags must be 0.
    BOOL CreateThread(DWORD flags = 0, UINT stackSize = 0, LPSECURITY_ATTRIBUTES security = nullptr);

    // False ends the thread by ExitInstance at once.
    virtual BOOL InitInstance();
    // The message loop; gives the exit code.
    virtual int Run();
    virtual int ExitInstance();
    // Takes one message and dispatches it; false for WM_QUIT.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG* message);
    // Called while the queue is empty; true asks for another call with a count one higher.
    virtual BOOL OnIdle(LONG count);
    // False for messages that change nothing of what OnIdle looks at.
    virtual BOOL IsIdleMessage(MSG* message);
    // What a modal dialog without a parent is shown on: the main window, or the thread's active window.
    virtual CWnd* GetMainWnd();
    virtual void Delete();

    CWnd* m_pMainWnd = nullptr;
    CWnd* m_pActiveWnd = nullptr;
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;

private:
    POINT m_lastMousePlace = {};
    UINT m_lastMouseMessage = 0;
};

// The application: one static object in a module. A program calls InitInstance and Run itself. In a library
// that links mfc_library, InitInstance is called at its loading and ExitInstance at its unloading.
class CWinApp : public CWinThread {
public:
    CWinApp();
    ~CWinApp() override;

    BOOL InitInstance() override;
    int Run() override;
    HICON LoadIcon(UINT id) const;

    HINSTANCE m_hInstance;
};

CWinApp* AfxGetApp();
// This thread's object; on a thread that the framework did not start the application.
CWinThread* AfxGetThread();
CWnd* AfxGetMainWnd();

// Ends this thread and does not return. With `deleteObject` set the thread's object is deleted.
[[noreturn]] void AfxEndThread(UINT exitCode, BOOL deleteObject = TRUE);

// Takes one message from the queue and dispatches it, for loops outside of a CWinThread.
BOOL AfxPumpMessage();
// Lets go of the temporary objects of this thread.
void AfxDeleteTemporaryObjects();
