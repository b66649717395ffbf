// The open list of a combo box, and the keys and clicks that choose from it.

#include <algorithm>

#include "combo_box.h"

bool MovesSelection(WPARAM key) {
    return key == VK_UP || key == VK_DOWN || key == VK_PRIOR || key == VK_NEXT;
}

bool ClosesList(WPARAM key) {
    return key == VK_RETURN || key == VK_ESCAPE;
}

// The text becomes that of the item that it begins, if there is one.
void ComboBox::SelectFound() {
    const int found = FindTyped();
    List(LB_SETCURSEL, static_cast<WPARAM>(found));
    if (found != -1) ShowSelectedText();
}

void ComboBox::Open() {
    if (Dropped()) return;
    Notify(CBN_DROPDOWN);
    if (edit_) SelectFound();
    const RECT place = ListPlace();
    SetWindowPos(list_, HWND_TOPMOST, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Redraw();
}

void ComboBox::Close(bool taken) {
    if (!Dropped()) return;
    Notify(taken ? CBN_SELENDOK : CBN_SELENDCANCEL);
    ShowWindow(list_, SW_HIDE);
    Notify(CBN_CLOSEUP);
    Redraw();
}

int ComboBox::MovedBy(WPARAM key, int at, int last) const {
    const RECT place = ListPlace();
    const int rows = static_cast<int>((place.bottom - place.top - 2) / List(LB_GETITEMHEIGHT));
    switch (key) {
        case VK_UP:
        case VK_LEFT: return at - 1;
        case VK_PRIOR: return at - rows + 1;
        case VK_NEXT: return at + rows - 1;
        case VK_HOME: return 0;
        case VK_END: return last;
        default: return at + 1;
    }
}

void ComboBox::Move(WPARAM key) {
    const int last = static_cast<int>(List(LB_GETCOUNT)) - 1;
    if (last < 0) return;
    const int at = static_cast<int>(List(LB_GETCURSEL));
    const int to = std::clamp(MovedBy(key, at, last), 0, last);
    Select(to);
    if (!Dropped()) Notify(CBN_SELENDOK);
    Notify(CBN_SELCHANGE);
}

bool ComboBox::KeyDown(WPARAM key) {
    if (key == VK_F4) {
        if (Dropped())
            Close(false);
        else
            Open();
    } else if (Dropped() && ClosesList(key)) {
        Close(key == VK_RETURN);
    } else if (MovesSelection(key) || key == VK_LEFT || key == VK_RIGHT || key == VK_HOME || key == VK_END) {
        Move(key);
    } else {
        return false;
    }
    return true;
}

std::optional<LRESULT> ComboBox::InputMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            SetFocus(edit_ ? edit_ : Window());
            if (Dropped())
                Close(true);
            else
                Open();
            return 0;
        case WM_KEYDOWN:
            if (!KeyDown(wParam)) return std::nullopt;
            return 0;
        case WM_CHAR: {
            const char typed[] = {static_cast<char>(wParam), 0};
            const LRESULT found =
                List(LB_FINDSTRING, static_cast<WPARAM>(List(LB_GETCURSEL)), reinterpret_cast<LPARAM>(typed));
            if (found == LB_ERR) return 0;
            Select(static_cast<int>(found));
            Notify(CBN_SELENDOK);
            Notify(CBN_SELCHANGE);
            return 0;
        }
        case WM_SETFOCUS:
            if (edit_) {
                SetFocus(edit_);
                SendMessageA(edit_, EM_SETSEL, 0, -1);
                return 0;
            }
            Redraw();
            Notify(CBN_SETFOCUS);
            return 0;
        case WM_KILLFOCUS:
            if (edit_) return 0;
            Close(false);
            Redraw();
            Notify(CBN_KILLFOCUS);
            return 0;
        default: return std::nullopt;
    }
}
