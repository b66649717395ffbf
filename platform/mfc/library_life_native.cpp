#include "afx_thread.h"

namespace {

// The only object of a library file that is linked behind all others: it is made when the static objects of
// the module are there, and goes before them.
class LibraryLife {
public:
    LibraryLife() {
        CWinApp* const app = AfxGetStaticModuleState()->app;
        if (!app) return;
        running_ = app->InitInstance();
        if (!running_) app->ExitInstance();
    }
    LibraryLife(const LibraryLife&) = delete;
    LibraryLife& operator=(const LibraryLife&) = delete;
    ~LibraryLife() {
        CWinApp* const app = AfxGetStaticModuleState()->app;
        if (running_ && app) app->ExitInstance();
    }

private:
    BOOL running_ = FALSE;
};

const LibraryLife life;

}  // namespace

// What the linker looks for, so that this file is taken.
extern "C" const int AfxLibraryLife = 1;
