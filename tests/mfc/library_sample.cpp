// A library with an application object, for the test of loading and unloading.

#include <afxwin.h>

namespace {

class SampleApp : public CWinApp {
public:
    BOOL InitInstance() override { return started_ = CWinApp::InitInstance(); }
    int ExitInstance() override {
        if (ends) ++*ends;
        return CWinApp::ExitInstance();
    }

    bool Started() const { return started_; }

    int* ends = nullptr;

private:
    // Made by the constructor, which has to come before InitInstance.
    BOOL started_ = FALSE;
};

SampleApp app;

}  // namespace

// The library's own instance handle, null while the application has not been started. Its end will be
// counted.
extern "C" AFX_EXT_CLASS HINSTANCE SampleInstance(int* ends) {
    AFX_MANAGE_STATE(AfxGetStaticModuleState())
    app.ends = ends;
    return AfxGetApp() == &app && app.Started() ? AfxGetInstanceHandle() : nullptr;
}
