#include <afxwin.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>

namespace {

constexpr UINT kDialog = 200;

// What a thread and its starter share.
struct Shared {
    std::atomic<HWND> window = nullptr;
    std::atomic<bool> gone = false;
    std::atomic<int> filtered = 0;
};

// A window thread with a loop of its own, which ends when its window has gone.
class WindowThread : public CWinThread {
public:
    explicit WindowThread(Shared& shared) : shared_(shared) { CreateThread(0, 0, nullptr); }
    ~WindowThread() override { shared_.gone = true; }

    BOOL InitInstance() override {
        if (!dialog_.Create(kDialog)) return FALSE;
        dialog_.shared = &shared_;
        m_pMainWnd = &dialog_;
        shared_.window = dialog_.m_hWnd;
        return TRUE;
    }

    int Run() override {
        for (;;) {
            if (!shared_.window) {
                m_pMainWnd = nullptr;
                AfxEndThread(0, TRUE);
            }
            if (!PumpMessage()) return ExitInstance();
        }
    }

private:
    class Window : public CDialog {
    public:
        Shared* shared = nullptr;

        BOOL PreTranslateMessage(MSG* message) override {
            if (message->message != WM_APP) return CDialog::PreTranslateMessage(message);
            ++shared->filtered;
            return TRUE;
        }

    protected:
        afx_msg void OnDestroy() {
            if (AfxGetThread()->m_pMainWnd == this) AfxGetThread()->m_pMainWnd = nullptr;
            CWnd::OnDestroy();
            shared->window = nullptr;
        }
        afx_msg void OnClose() { DestroyWindow(); }
        DECLARE_MESSAGE_MAP()
    };

    Shared& shared_;
    Window dialog_;
};

BEGIN_MESSAGE_MAP(WindowThread::Window, CDialog)
ON_WM_CLOSE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

template <typename Done>
void WaitUntil(Done done) {
    for (int i = 0; i < 2000 && !done(); ++i)
        Sleep(5);
    EXPECT_TRUE(done());
}

TEST(WinThread, TwoRunAtOnceAndEndWithTheirWindows) {
    Shared shared[2];
    for (Shared& each : shared) {
        new WindowThread(each);  // it deletes itself at its end
        WaitUntil([&each] { return each.window != nullptr; });
    }
    for (Shared& each : shared) {
        const HWND window = each.window;
        EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
        ::PostMessageA(::GetDlgItem(window, IDOK), WM_APP, 0, 0);
        char caption[16] = {};
        EXPECT_EQ(::GetWindowTextA(window, caption, sizeof caption), 5);
        ::PostMessageA(window, WM_CLOSE, 0, 0);
    }
    for (Shared& each : shared) {
        WaitUntil([&each] { return each.gone.load(); });
        EXPECT_EQ(each.filtered, 1);
    }
}

TEST(ModuleState, ComesBackWhenTheGuardGoes) {
    AFX_MODULE_STATE other;
    {
        AFX_MANAGE_STATE(&other)
        EXPECT_EQ(AfxGetModuleState(), &other);
    }
    EXPECT_EQ(AfxGetModuleState(), AfxGetStaticModuleState());
}

TEST(ModuleState, TakesItsWindowClassesWithIt) {
    const HINSTANCE instance = AfxGetInstanceHandle();
    WNDCLASSA record = {};
    record.lpfnWndProc = &::DefWindowProcA;
    record.hInstance = instance;
    record.lpszClassName = "OfTheModule";
    {
        AFX_MODULE_STATE module(instance);
        AFX_MANAGE_STATE(&module)
        EXPECT_TRUE(AfxRegisterClass(&record));
        EXPECT_TRUE(AfxRegisterClass(&record)) << "it is there already";
        EXPECT_TRUE(::GetClassInfoA(instance, "OfTheModule", &record));
    }
    EXPECT_FALSE(::GetClassInfoA(instance, "OfTheModule", &record));
}

}  // namespace
