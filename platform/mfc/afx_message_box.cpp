#include "afx_message_box.h"

#include <string>
#include <string_view>

#include "afx_thread.h"
#include "afx_window.h"

#ifndef _WIN32
#include <dlfcn.h>
#endif

namespace {

#ifdef _WIN32
std::string ModulePath() {
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    char path[MAX_PATH] = {};
    if (GetModuleHandleExA(flags, reinterpret_cast<LPCSTR>(&AfxMessageBox), &module))
        GetModuleFileNameA(module, path, MAX_PATH - 1);
    return path;
}
#else
std::string ModulePath() {
    Dl_info info = {};
    const bool found = dladdr(reinterpret_cast<void*>(&AfxMessageBox), &info) != 0;
    return found && info.dli_fname ? info.dli_fname : "";
}
#endif

std::string ModuleName() {
    const std::string path = ModulePath();
    std::string_view name = path;
    name.remove_prefix(name.find_last_of("\\/") + 1);
    return std::string(name.substr(0, name.rfind('.')));
}

// A question stands over what the thread shows, which must not go while it waits.
HWND QuestionOwner() {
    if (const HWND active = ::GetActiveWindow()) return active;
    const CWnd* const main = AfxGetMainWnd();
    return main ? ::GetAncestor(main->GetSafeHwnd(), GA_ROOT) : nullptr;
}

}  // namespace

int AfxMessageBox(LPCSTR text, UINT type, UINT) {
    return MessageBoxA(QuestionOwner(), text, AfxGetAppName(), type);
}

LPCSTR AfxGetAppName() {
    static const std::string name = ModuleName();
    return name.c_str();
}
