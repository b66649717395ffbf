#include "control_host.h"

namespace {

const char* CommandName(int code, bool edit) {
    if (!edit) return code == BN_CLICKED ? "clicked" : "";
    switch (code) {
        case EN_SETFOCUS: return "focus";
        case EN_KILLFOCUS: return "blur";
        case EN_CHANGE: return "change";
        case EN_UPDATE: return "update";
        case EN_MAXTEXT: return "full";
        default: return "";
    }
}

bool IsEdit(HWND window) {
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, "Edit") == 0;
}

}  // namespace

ControlHost::ControlHost() {
    static const char kName[] = "ControlHost";
    const HINSTANCE module = GetModuleHandleA(nullptr);
    WNDCLASSA record = {};
    record.lpfnWndProc = Procedure;
    record.hInstance = module;
    record.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    record.lpszClassName = kName;
    RegisterClassA(&record);
    const DWORD style = WS_OVERLAPPED | WS_CAPTION | WS_VISIBLE;
    window_ = CreateWindowExA(0, kName, "", style, 20, 20, 500, 400, nullptr, nullptr, module, nullptr);
    SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    PumpMessages();
    SetFocus(window_);
}

HWND ControlHost::Add(const char* class_name, const char* text, DWORD style, int width, int height, int id) {
    const auto word = static_cast<INT_PTR>(id);
    const HWND child =
        CreateWindowExA(0, class_name, text, WS_CHILD | WS_VISIBLE | style, 10, 10, width, height, window_,
                        reinterpret_cast<HMENU>(word), GetModuleHandleA(nullptr), nullptr);
    PumpMessages();
    told_.clear();
    return child;
}

std::string ControlHost::Told() {
    PumpMessages();
    std::string told;
    told.swap(told_);
    return told;
}

void ControlHost::Note(UINT message, WPARAM wParam, LPARAM lParam) {
    std::string word;
    if (message == WM_COMMAND) {
        word = CommandName(HIWORD(wParam), IsEdit(reinterpret_cast<HWND>(lParam)));
    } else if (message == WM_NOTIFY) {
        const auto& step = *reinterpret_cast<NMUPDOWN*>(lParam);
        if (step.hdr.code != UDN_DELTAPOS) return;
        word =
            "delta " + std::to_string(step.iPos) + (step.iDelta < 0 ? "" : "+") + std::to_string(step.iDelta);
    } else if (message == WM_VSCROLL) {
        const bool end = LOWORD(wParam) == SB_ENDSCROLL;
        word = (end ? "end " : "scroll ") + std::to_string(static_cast<short>(HIWORD(wParam)));
    }
    if (word.empty()) return;
    if (!told_.empty()) told_ += ' ';
    told_ += word;
}

LRESULT CALLBACK ControlHost::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* host = reinterpret_cast<ControlHost*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (!host) return DefWindowProcA(window, message, wParam, lParam);
    host->Note(message, wParam, lParam);
    if (host->on_message) {
        if (const LRESULT answer = host->on_message(message, wParam, lParam)) return answer;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}
