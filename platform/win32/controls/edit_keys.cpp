#include <algorithm>

#include "edit_control.h"

namespace {

// What TranslateMessage makes of Ctrl and a letter.
constexpr char kControlBackspace = 127;

}  // namespace

LRESULT EditControl::HandleInput(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN: KeyDown(wParam); return 0;
        case WM_CHAR: Character(static_cast<char>(wParam)); return 0;
        case WM_VSCROLL:
            if (multi_line_) ScrollByBar(LOWORD(wParam), HIWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            if (ScrollByWheel(static_cast<short>(HIWORD(wParam)))) return TRUE;
            return Default(message, wParam, lParam);
        default: return HandleMouse(message, wParam, lParam);
    }
}

void EditControl::KeyDown(WPARAM key) {
    if (DialogKey(key)) return;
    const bool shift = IsKeyDown(VK_SHIFT);
    const bool control = IsKeyDown(VK_CONTROL);
    const bool at_end = caret_at_end_;
    caret_at_end_ = false;
    const size_t caret = text_.Caret();
    switch (key) {
        case VK_LEFT: MoveCaret(control ? text_.PreviousWord(caret) : text_.Previous(caret), shift); break;
        case VK_RIGHT: MoveCaret(control ? text_.NextWord(caret) : text_.Next(caret), shift); break;
        case VK_UP:
        case VK_DOWN:
        case VK_PRIOR:
        case VK_NEXT: {
            caret_at_end_ = at_end;
            const int lines = key == VK_UP || key == VK_DOWN ? 1 : VisibleLines();
            MoveLines(key == VK_UP || key == VK_PRIOR ? -lines : lines, shift);
            break;
        }
        case VK_HOME:
            caret_at_end_ = at_end;
            MoveHome(shift, control);
            break;
        case VK_END:
            caret_at_end_ = at_end;
            MoveEnd(shift, control);
            break;
        case VK_DELETE:
            if (!IsReadOnly()) DeleteKey(shift, control);
            break;
        default: caret_at_end_ = at_end; break;
    }
}

// A window of several lines takes all keys of its dialog and gives back what it does not use itself.
bool EditControl::DialogKey(WPARAM key) {
    if (!multi_line_ || !in_dialog_) return false;
    const HWND dialog = GetParent(Window());
    switch (key) {
        case VK_RETURN:
            if (!HasStyle(ES_WANTRETURN)) PressDefaultButton();
            return true;
        case VK_ESCAPE: PostMessageA(dialog, WM_CLOSE, 0, 0); return true;
        case VK_TAB: SendMessageA(dialog, WM_NEXTDLGCTL, IsKeyDown(VK_SHIFT) ? TRUE : FALSE, 0); return true;
        default: return false;
    }
}

void EditControl::PressDefaultButton() {
    const HWND dialog = GetParent(Window());
    const LRESULT answer = SendMessageA(dialog, DM_GETDEFID, 0, 0);
    if (HIWORD(answer) != DC_HASDEFID) return;
    const HWND button = GetDlgItem(dialog, LOWORD(answer));
    if (!button) return;
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(button), TRUE);
    PostMessageA(button, WM_KEYDOWN, VK_RETURN, 0);
}

void EditControl::MoveHome(bool extend, bool all) {
    const size_t line = CaretLine();
    caret_at_end_ = false;
    MoveCaret(multi_line_ && !all ? lines_[line].start : 0, extend);
}

void EditControl::MoveEnd(bool extend, bool all) {
    if (!multi_line_ || all) {
        caret_at_end_ = false;
        MoveCaret(text_.Length(), extend);
        return;
    }
    const size_t line = CaretLine();
    caret_at_end_ = lines_.IsWrapped(line);
    MoveCaret(lines_[line].start + lines_[line].length, extend);
}

// To what stands above or below; in a single line up and down are left and right.
void EditControl::MoveLines(int lines, bool extend) {
    if (!multi_line_) {
        const size_t caret = text_.Caret();
        if (lines == -1 || lines == 1)
            MoveCaret(lines < 0 ? text_.Previous(caret) : text_.Next(caret), extend);
        return;
    }
    const auto from = static_cast<long long>(CaretLine());
    const auto last = static_cast<long long>(lines_.Count()) - 1;
    const auto to = static_cast<size_t>(std::clamp(from + lines, 0LL, last));
    const int x = PlaceOf(static_cast<size_t>(from), text_.Caret()).x - format_.left + scrolled_;
    const size_t column = measure_.PositionAt(LineText(to), x);
    caret_at_end_ = column == lines_[to].length && lines_.IsWrapped(to);
    MoveCaret(lines_[to].start + column, extend);
}

void EditControl::DeleteKey(bool shift, bool control) {
    if (text_.HasSelection()) {
        ReplaceSelection({});
        return;
    }
    const size_t caret = text_.Caret();
    size_t end = text_.Next(caret);
    if (shift) {
        end = text_.Previous(caret);
    } else if (control) {
        const size_t line = CaretLine();
        end = multi_line_ ? lines_[line].start + lines_[line].length : text_.Length();
    }
    text_.Select(end, caret);
    ReplaceSelection({});
}

void EditControl::Character(char c) {
    switch (c) {
        case '\r':
        case '\n': NewLine(); return;
        case '\b': Backspace(); return;
        case '\t':
            if (multi_line_ && !in_dialog_ && !IsReadOnly()) ReplaceSelection("\t");
            return;
        case kControlBackspace: return;
        default: break;
    }
    if (static_cast<unsigned char>(c) >= ' ' && !IsReadOnly()) ReplaceSelection({&c, 1});
}

void EditControl::NewLine() {
    if (!multi_line_ || IsReadOnly()) return;
    if (in_dialog_ && !HasStyle(ES_WANTRETURN)) return;
    ReplaceSelection("\r\n");
}

void EditControl::Backspace() {
    if (IsReadOnly()) return;
    const size_t caret = text_.Caret();
    if (!text_.HasSelection()) text_.Select(text_.Previous(caret), caret);
    ReplaceSelection({});
}
