#pragma once

#include <string>
#include <vector>

#include "afx_base.h"

class CWinApp;

// What the framework knows of the module (program or library) that it is linked into.
struct AFX_MODULE_STATE {
    HINSTANCE instance = nullptr;
    CWinApp* app = nullptr;
    // What AfxRegisterClass registered: it goes with the module, whose code its windows run.
    std::vector<std::string> classes;

    AFX_MODULE_STATE() = default;
    explicit AFX_MODULE_STATE(HINSTANCE module) : instance(module) {}
    AFX_MODULE_STATE(const AFX_MODULE_STATE&) = delete;
    AFX_MODULE_STATE& operator=(const AFX_MODULE_STATE&) = delete;
    ~AFX_MODULE_STATE();
};

// The state of the module that holds this code.
AFX_MODULE_STATE* AfxGetStaticModuleState();
// The state in force on this thread.
AFX_MODULE_STATE* AfxGetModuleState();

// Puts a module's state in force on this thread for as long as it lives. Every function that a host calls
// begins with one.
class AFX_MAINTAIN_STATE2 {
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state);
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;
    ~AFX_MAINTAIN_STATE2();

private:
    AFX_MODULE_STATE* m_previous;
};

#define AFX_MANAGE_STATE(state) const AFX_MAINTAIN_STATE2 maintainedState(state);

HINSTANCE AfxGetInstanceHandle();
HINSTANCE AfxGetResourceHandle();

// Registers a window class until the module goes, unless it has one of that name. Any thread may ask.
BOOL AfxRegisterClass(WNDCLASSA* windowClass);
