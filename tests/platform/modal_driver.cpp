#include "modal_driver.h"

#include <gtest/gtest.h>

namespace {

constexpr char kClassName[] = "ModalDriver";
constexpr UINT kGoOn = WM_APP + 1;
constexpr DWORD kPatience = 10000;  // milliseconds

}  // namespace

ModalDriver::ModalDriver(std::vector<Step> steps) : steps_(std::move(steps)) {
    WNDCLASSA record = {};
    record.lpfnWndProc = &Procedure;
    record.lpszClassName = kClassName;
    record.cbWndExtra = sizeof(LONG_PTR);
    record.hInstance = GetModuleHandleA(nullptr);
    RegisterClassA(&record);
    window_ =
        CreateWindowExA(0, kClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, record.hInstance, nullptr);
    SetWindowLongPtrA(window_, 0, reinterpret_cast<LONG_PTR>(this));
    waiting_since_ = GetTickCount();
    PostMessageA(window_, kGoOn, 0, 0);
}

ModalDriver::~ModalDriver() {
    EXPECT_EQ(next_, steps_.size()) << "the dialogs ended before the last step";
    DestroyWindow(window_);
}

LRESULT CALLBACK ModalDriver::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kGoOn) return DefWindowProcA(window, message, wParam, lParam);
    reinterpret_cast<ModalDriver*>(GetWindowLongPtrA(window, 0))->Next();
    return 0;
}

void ModalDriver::Next() {
    if (GetTickCount() - waiting_since_ > kPatience) return GiveUp();
    if (next_ == steps_.size()) return;
    const HWND dialog = UsableDialog(steps_[next_].caption);
    // A step may show a dialog of its own: the message for the one behind it is under way before.
    const bool act = dialog != nullptr;
    const size_t now = next_;
    if (act) {
        ++next_;
        waiting_since_ = GetTickCount();
    }
    if (!act) Sleep(1);
    PostMessageA(window_, kGoOn, 0, 0);
    if (act) steps_[now].act(dialog);
}

// A dialog that nobody answers would stop the tests for ever.
void ModalDriver::GiveUp() {
    ADD_FAILURE() << "no dialog for step " << next_;
    while (const HWND dialog = UsableDialog("")) {
        waiting_since_ = GetTickCount();
        PostMessageA(window_, kGoOn, 0, 0);
        EndDialog(dialog, -1);
        return;
    }
}

namespace {

struct Search {
    std::string caption;
    HWND found;
};

BOOL CALLBACK Look(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    char name[32] = {};
    GetClassNameA(window, name, sizeof name);
    if (std::string(name) != "#32770" || !IsWindowEnabled(window)) return TRUE;
    if (!search.caption.empty() && TextOf(window) != search.caption) return TRUE;
    search.found = window;
    return FALSE;
}

}  // namespace

HWND UsableDialog(const std::string& caption) {
    Search search = {caption, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), &Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::string TextOf(HWND window) {
    char text[512] = {};
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

std::string ItemText(HWND dialog, int id) {
    return TextOf(GetDlgItem(dialog, id));
}

void Click(HWND dialog, int id) {
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}
