// The keyboard in dialogs.

#include <vector>

#include "dialog_state.h"

namespace {

bool CanTabTo(HWND control) {
    const auto style = static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE));
    return style & WS_TABSTOP && style & WS_VISIBLE && !(style & WS_DISABLED);
}

bool IsContainer(HWND control) {
    const auto style = static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE));
    return GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_CONTROLPARENT && style & WS_VISIBLE &&
           !(style & WS_DISABLED);
}

// All controls in their order, those of children that are made of controls themselves included.
void Collect(HWND parent, std::vector<HWND>& controls) {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (IsContainer(child))
            Collect(child, controls);
        else
            controls.push_back(child);
    }
}

// The control of the dialog that holds a window, such as the edit in a combo box.
HWND ControlOf(HWND dialog, HWND window) {
    while (window && window != dialog) {
        const HWND parent = GetAncestor(window, GA_PARENT);
        if (parent == dialog || IsContainer(parent)) return window;
        window = parent;
    }
    return nullptr;
}

template <typename Fits>
HWND NextInRing(const std::vector<HWND>& ring, HWND from, bool previous, Fits fits) {
    const size_t count = ring.size();
    size_t at = previous ? 0 : count - 1;
    for (size_t i = 0; i < count; ++i)
        if (ring[i] == from) at = i;
    for (size_t step = 1; step <= count; ++step) {
        const size_t index = previous ? (at + count - step % count) % count : (at + step) % count;
        if (fits(ring[index])) return ring[index];
    }
    return nullptr;
}

bool Held(int key) {
    return GetKeyState(key) < 0;
}

void Command(HWND dialog, int id) {
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void Press(HWND dialog, int id) {
    const HWND button = GetDlgItem(dialog, id);
    if (!button || IsWindowEnabled(button)) Command(dialog, id);
}

// Return means the button with the focus, else the dialog's default, else IDOK.
void PressDefault(HWND dialog) {
    const HWND focus = GetFocus();
    if (focus && IsChild(dialog, focus) && SendMessageA(focus, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) {
        Press(dialog, GetDlgCtrlID(focus));
        return;
    }
    const LRESULT id = SendMessageA(dialog, DM_GETDEFID, 0, 0);
    Press(dialog, HIWORD(id) == DC_HASDEFID ? LOWORD(id) : IDOK);
}

void MoveInGroup(HWND dialog, HWND from, bool previous) {
    const HWND next = GetNextDlgGroupItem(dialog, from, previous);
    if (next && next != from) SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
}

// True when the key was for the dialog.
bool Key(HWND dialog, const MSG& message, LRESULT wanted) {
    switch (message.wParam) {
        case VK_TAB:
            if (wanted & DLGC_WANTTAB) return false;
            SendMessageA(dialog, WM_NEXTDLGCTL, Held(VK_SHIFT), FALSE);
            return true;
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
            if (wanted & DLGC_WANTARROWS) return false;
            MoveInGroup(dialog, message.hwnd, message.wParam == VK_LEFT || message.wParam == VK_UP);
            return true;
        case VK_ESCAPE: Command(dialog, IDCANCEL); return true;
        case VK_RETURN: PressDefault(dialog); return true;
        default: return false;
    }
}

}  // namespace

HWND WINAPI GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
    std::vector<HWND> controls;
    Collect(dialog, controls);
    if (controls.empty()) return nullptr;
    const HWND from = control ? ControlOf(dialog, control) : nullptr;
    const HWND next = NextInRing(controls, from, previous != FALSE, CanTabTo);
    return next ? next : from;
}

// A group begins with a control of the style WS_GROUP.
HWND WINAPI GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
    std::vector<HWND> group;
    bool inside = false;
    const HWND from = ControlOf(dialog, control);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (GetWindowLongA(child, GWL_STYLE) & WS_GROUP) {
            if (inside) break;
            group.clear();
        }
        group.push_back(child);
        if (child == from) inside = true;
    }
    if (!inside) return nullptr;
    const auto usable = [](HWND window) { return IsWindowVisible(window) && IsWindowEnabled(window); };
    return NextInRing(group, from, previous != FALSE, usable);
}

BOOL WINAPI IsDialogMessageA(HWND dialog, LPMSG message) {
    if (!IsWindow(dialog) || !message || !message->hwnd) return FALSE;
    if (message->hwnd != dialog && !IsChild(dialog, message->hwnd)) return FALSE;
    if (message->message == WM_KEYDOWN) {
        const LRESULT wanted =
            SendMessageA(message->hwnd, WM_GETDLGCODE, message->wParam, reinterpret_cast<LPARAM>(message));
        if (!(wanted & DLGC_WANTALLKEYS) && Key(dialog, *message, wanted)) return TRUE;
    }
    TranslateMessage(message);
    DispatchMessageA(message);
    return TRUE;
}
