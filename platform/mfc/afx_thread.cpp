#include "afx_thread.h"

#include <process.h>

#include "afx_thread_state.h"
#include "afx_window.h"

namespace {

constexpr UINT kSystemTimer = 0x0118;  // the caret's blinking, for one

// Between CreateThread and the new thread: each waits for the other once.
struct Startup {
    CWinThread* thread;
    AFX_MODULE_STATE* module;
    HANDLE running;  // the thread is there
    HANDLE go_on;    // the object's members are written
};

unsigned WINAPI ThreadEntry(void* argument) {
    auto* const startup = static_cast<Startup*>(argument);
    CWinThread* const thread = startup->thread;
    AfxThreadState().thread = thread;
    AfxThreadState().module = startup->module;
    const HANDLE go_on = startup->go_on;
    SetEvent(startup->running);  // the record is the other thread's again
    WaitForSingleObject(go_on, INFINITE);
    CloseHandle(go_on);
    const int exitCode = thread->InitInstance() ? thread->Run() : thread->ExitInstance();
    AfxEndThread(static_cast<UINT>(exitCode));
}

BOOL Pump(CWinThread* thread) {
    MSG message = {};
    const BOOL goes_on = ::GetMessageA(&message, nullptr, 0, 0);
    if (goes_on && (!thread || !thread->PreTranslateMessage(&message))) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    // Handlers may have pumped others meanwhile.
    AfxThreadState().pumped = message;
    return goes_on;
}

}  // namespace

CWinThread::~CWinThread() {
    if (m_hThread) CloseHandle(m_hThread);
    if (AfxThreadState().thread == this) AfxThreadState().thread = nullptr;
}

BOOL CWinThread::CreateThread(DWORD flags, UINT stackSize, LPSECURITY_ATTRIBUTES) {
    ASSERT(!m_hThread);
    Startup startup = {this, AfxGetModuleState(), CreateEventA(nullptr, TRUE, FALSE, nullptr),
                       CreateEventA(nullptr, TRUE, FALSE, nullptr)};
    unsigned id = 0;
    const uintptr_t thread = _beginthreadex(nullptr, stackSize, &ThreadEntry, &startup, flags, &id);
    if (thread == 0) {
        CloseHandle(startup.running);
        CloseHandle(startup.go_on);
        return FALSE;
    }
    m_hThread = reinterpret_cast<HANDLE>(thread);
    m_nThreadID = id;
    WaitForSingleObject(startup.running, INFINITE);
    CloseHandle(startup.running);
    // From here on the object may go at any time.
    SetEvent(startup.go_on);
    return TRUE;
}

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::Run() {
    MSG next = {};
    bool idle = true;
    LONG count = 0;
    for (;;) {
        while (idle && !::PeekMessageA(&next, nullptr, 0, 0, PM_NOREMOVE))
            if (!OnIdle(count++)) idle = false;
        do {
            if (!PumpMessage()) return ExitInstance();
            if (IsIdleMessage(&AfxThreadState().pumped)) {
                idle = true;
                count = 0;
            }
        } while (::PeekMessageA(&next, nullptr, 0, 0, PM_NOREMOVE));
    }
}

int CWinThread::ExitInstance() {
    return static_cast<int>(AfxThreadState().pumped.wParam);
}

BOOL CWinThread::PumpMessage() {
    return Pump(this);
}

BOOL CWinThread::PreTranslateMessage(MSG* message) {
    // A message of the thread itself has no window to ask.
    if (!message->hwnd) return FALSE;
    CWnd* const main = AfxGetMainWnd();
    if (CWnd::WalkPreTranslateTree(main ? main->GetSafeHwnd() : nullptr, message)) return TRUE;
    // A modeless dialog beside the main window leaves its keys to that one.
    if (!main || ::GetAncestor(message->hwnd, GA_ROOT) == main->GetSafeHwnd()) return FALSE;
    return main->PreTranslateMessage(message);
}

BOOL CWinThread::OnIdle(LONG count) {
    if (count > 0) AfxDeleteTemporaryObjects();
    return count < 1;
}

BOOL CWinThread::IsIdleMessage(MSG* message) {
    if (message->message == WM_MOUSEMOVE || message->message == WM_NCMOUSEMOVE) {
        const bool same = message->message == m_lastMouseMessage && message->pt.x == m_lastMousePlace.x &&
                          message->pt.y == m_lastMousePlace.y;
        m_lastMousePlace = message->pt;
        m_lastMouseMessage = message->message;
        return !same;
    }
    return message->message != WM_PAINT && message->message != kSystemTimer;
}

CWnd* CWinThread::GetMainWnd() {
    if (m_pActiveWnd) return m_pActiveWnd;
    return m_pMainWnd ? m_pMainWnd : CWnd::FromHandle(::GetActiveWindow());
}

void CWinThread::Delete() {
    if (m_bAutoDelete) delete this;
}

CWinApp::CWinApp() : m_hInstance(AfxGetInstanceHandle()) {
    m_bAutoDelete = FALSE;
    m_nThreadID = GetCurrentThreadId();
    AfxGetStaticModuleState()->app = this;
}

CWinApp::~CWinApp() {
    AfxGetStaticModuleState()->app = nullptr;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::Run() {
    return CWinThread::Run();
}

HICON CWinApp::LoadIcon(UINT id) const {
    return ::LoadIconA(AfxGetResourceHandle(), MAKEINTRESOURCEA(id));
}

CWinApp* AfxGetApp() {
    return AfxGetModuleState()->app;
}

CWinThread* AfxGetThread() {
    CWinThread* const thread = AfxThreadState().thread;
    return thread ? thread : AfxGetApp();
}

CWnd* AfxGetMainWnd() {
    CWinThread* const thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

void AfxEndThread(UINT exitCode, BOOL deleteObject) {
    AfxThreadData& state = AfxThreadState();
    CWinThread* const thread = state.thread;
    if (thread && deleteObject) thread->Delete();
    state.thread = nullptr;
    state.temporary.Clear();
    _endthreadex(exitCode);
}

BOOL AfxPumpMessage() {
    return Pump(AfxGetThread());
}

void AfxDeleteTemporaryObjects() {
    AfxThreadState().temporary.Clear();
}
