#include "afx_thread.h"

namespace {

BOOL Start(CWinApp* app) {
    if (app->InitInstance()) return TRUE;
    app->ExitInstance();
    return FALSE;
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID process_ends) {
    CWinApp* const app = AfxGetStaticModuleState()->app;
    if (!app) return TRUE;
    if (reason == DLL_PROCESS_ATTACH) return Start(app);
    // With the process its threads are gone already: nothing is left to end, and no wait for it would.
    if (reason == DLL_PROCESS_DETACH && !process_ends) app->ExitInstance();
    return TRUE;
}
