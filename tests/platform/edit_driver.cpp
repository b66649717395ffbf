#include "edit_driver.h"

namespace {

struct NamedInput {
    std::string_view name;
    UINT message;
    int word;
};

const NamedInput kInputs[] = {
    {"Left", WM_KEYDOWN, VK_LEFT},    {"Right", WM_KEYDOWN, VK_RIGHT},   {"Up", WM_KEYDOWN, VK_UP},
    {"Down", WM_KEYDOWN, VK_DOWN},    {"Home", WM_KEYDOWN, VK_HOME},     {"End", WM_KEYDOWN, VK_END},
    {"PageUp", WM_KEYDOWN, VK_PRIOR}, {"PageDown", WM_KEYDOWN, VK_NEXT}, {"Delete", WM_KEYDOWN, VK_DELETE},
    {"Back", WM_CHAR, '\b'},          {"Enter", WM_CHAR, '\r'},          {"Tab", WM_CHAR, '\t'},
};

}  // namespace

void EditDriver::Do(std::string_view input) const {
    Modifiers modifiers;
    std::string_view name = input;
    for (; name.size() > 1 && (name[0] == '+' || name[0] == '^'); name.remove_prefix(1)) {
        (name[0] == '+' ? modifiers.shift : modifiers.control) = true;
    }
    for (const NamedInput& known : kInputs) {
        if (known.name != name) continue;
        if (known.message == WM_KEYDOWN) {
            PressKey(window_, known.word, modifiers);
        } else {
            Send(known.message, static_cast<WPARAM>(known.word));
        }
        return;
    }
    for (const char c : input)
        Send(WM_CHAR, static_cast<unsigned char>(c), 1);
}

std::string EditDriver::Shown() const {
    DWORD start = 0;
    DWORD end = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    std::string text = TextOf(window_);
    if (start > text.size() || end > text.size()) return text + " with a selection outside";
    if (start == end) {
        text.insert(start, "|");
    } else {
        text.insert(end, "]");
        text.insert(start, "[");
    }
    for (size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n"))
        text.replace(at, 2, "/");
    return text;
}

size_t EditDriver::SelectionStart() const {
    DWORD start = 0;
    Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    return start;
}

POINT EditDriver::PlaceOf(int position) const {
    const LRESULT place = Send(EM_POSFROMCHAR, static_cast<WPARAM>(position));
    return {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
}
