#include "afx_module.h"

#include <mutex>
#include <utility>

#include "afx_thread_state.h"

#ifndef _WIN32
#include <dlfcn.h>
#endif

namespace {

// The module that this code was linked into.
HINSTANCE OwnModule() {
#ifdef _WIN32
    HMODULE module = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&AfxGetStaticModuleState), &module);
    return module;
#else
    // The stand-in knows a module by where it was loaded.
    Dl_info info = {};
    dladdr(reinterpret_cast<void*>(&AfxGetStaticModuleState), &info);
    return static_cast<HINSTANCE>(info.dli_fbase);
#endif
}

}  // namespace

AFX_MODULE_STATE::~AFX_MODULE_STATE() {
    for (const std::string& name : classes)
        UnregisterClassA(name.c_str(), instance);
}

AFX_MODULE_STATE* AfxGetStaticModuleState() {
    static AFX_MODULE_STATE state(OwnModule());
    return &state;
}

AFX_MODULE_STATE* AfxGetModuleState() {
    AFX_MODULE_STATE* const state = AfxThreadState().module;
    return state ? state : AfxGetStaticModuleState();
}

AFX_MAINTAIN_STATE2::AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* state)
    : m_previous(std::exchange(AfxThreadState().module, state)) {}

AFX_MAINTAIN_STATE2::~AFX_MAINTAIN_STATE2() {
    AfxThreadState().module = m_previous;
}

HINSTANCE AfxGetInstanceHandle() {
    return AfxGetModuleState()->instance;
}

HINSTANCE AfxGetResourceHandle() {
    return AfxGetModuleState()->instance;
}

BOOL AfxRegisterClass(WNDCLASSA* windowClass) {
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    WNDCLASSA known = {};
    if (GetClassInfoA(windowClass->hInstance, windowClass->lpszClassName, &known)) return TRUE;
    if (!RegisterClassA(windowClass)) return FALSE;
    AfxGetModuleState()->classes.emplace_back(windowClass->lpszClassName);
    return TRUE;
}
