#include "control_host.h"

namespace {

const char* ListName(int code) {
    switch (code) {
        case LBN_SELCHANGE: return "select";
        case LBN_DBLCLK: return "double";
        case LBN_SETFOCUS: return "focus";
        case LBN_KILLFOCUS: return "blur";
        default: return "";
    }
}

const char* ComboName(int code) {
    switch (code) {
        case CBN_SELCHANGE: return "select";
        case CBN_SETFOCUS: return "focus";
        case CBN_KILLFOCUS: return "blur";
        case CBN_EDITCHANGE: return "change";
        case CBN_EDITUPDATE: return "update";
        case CBN_DROPDOWN: return "open";
        case CBN_CLOSEUP: return "close";
        case CBN_SELENDOK: return "taken";
        case CBN_SELENDCANCEL: return "given-up";
        default: return "";
    }
}

const char* EditName(int code) {
    switch (code) {
        case EN_SETFOCUS: return "focus";
        case EN_KILLFOCUS: return "blur";
        case EN_CHANGE: return "change";
        case EN_UPDATE: return "update";
        case EN_MAXTEXT: return "full";
        default: return "";
    }
}

const char* CommandName(HWND sender, int code) {
    char name[16] = "";
    GetClassNameA(sender, name, sizeof name);
    if (std::strcmp(name, "Edit") == 0) return EditName(code);
    if (std::strcmp(name, "ListBox") == 0) return ListName(code);
    if (std::strcmp(name, "ComboBox") == 0) return ComboName(code);
    return code == BN_CLICKED ? "clicked" : "";
}

std::string NotificationName(const NMHDR& header) {
    if (header.code == static_cast<UINT>(TCN_SELCHANGING)) return "changing";
    if (header.code == static_cast<UINT>(TCN_SELCHANGE)) return "changed";
    if (header.code != static_cast<UINT>(UDN_DELTAPOS)) return "";
    const auto& step = reinterpret_cast<const NMUPDOWN&>(header);
    return "delta " + std::to_string(step.iPos) + (step.iDelta < 0 ? "" : "+") + std::to_string(step.iDelta);
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
        word = CommandName(reinterpret_cast<HWND>(lParam), HIWORD(wParam));
    } else if (message == WM_NOTIFY) {
        word = NotificationName(*reinterpret_cast<const NMHDR*>(lParam));
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
