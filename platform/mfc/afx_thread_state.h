#pragma once

#include <memory>
#include <unordered_map>

#include "afx_gdi.h"
#include "afx_window.h"

class CWinThread;

// Objects that were made for handles of others. They live until their thread is idle.
class AfxTemporaryObjects {
public:
    AfxTemporaryObjects() = default;
    AfxTemporaryObjects(const AfxTemporaryObjects&) = delete;
    AfxTemporaryObjects& operator=(const AfxTemporaryObjects&) = delete;
    ~AfxTemporaryObjects() { Clear(); }

    CWnd* Window(HWND window);
    CFont* Font(HFONT font);
    // Their handles stay alive.
    void Clear();

private:
    std::unordered_map<HWND, std::unique_ptr<CWnd>> windows_;
    std::unordered_map<HFONT, std::unique_ptr<CFont>> fonts_;
};

// What the framework keeps for each thread.
struct AfxThreadData {
    std::unordered_map<HWND, CWnd*> permanent;
    AfxTemporaryObjects temporary;
    CWinThread* thread = nullptr;
    // The object that the next window to be created belongs to, and the hook that waits for it.
    CWnd* creating = nullptr;
    HHOOK creationHook = nullptr;
    // The message that came from the queue last.
    MSG pumped = {};
    // The message that a window procedure is at, for Default.
    MSG current = {};
    AFX_MODULE_STATE* module = nullptr;
};

AfxThreadData& AfxThreadState();
