#include <algorithm>
#include <cstring>

#include "edit_control.h"

LRESULT EditControl::HandleQuery(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case EM_GETSEL:
            return GetSelection(reinterpret_cast<DWORD*>(wParam), reinterpret_cast<DWORD*>(lParam));
        case EM_SETSEL: SetSelection(wParam, lParam); return 1;
        case EM_SCROLLCARET: ScrollToCaret(); return 1;
        case EM_LINESCROLL: return ScrollBy(static_cast<int>(wParam), static_cast<int>(lParam));
        case EM_GETLIMITTEXT: return static_cast<LRESULT>(static_cast<LONG>(limit_));
        case EM_GETLINECOUNT: return static_cast<LRESULT>(lines_.Count());
        case EM_GETFIRSTVISIBLELINE: return static_cast<LRESULT>(multi_line_ ? first_line_ : first_char_);
        case EM_LINEINDEX: return LineIndex(wParam);
        case EM_LINELENGTH: return LineLength(wParam);
        case EM_LINEFROMCHAR: return LineFromChar(wParam);
        case EM_GETLINE: return GetLine(wParam, reinterpret_cast<char*>(lParam));
        case EM_POSFROMCHAR: return PositionFromChar(wParam);
        case EM_SETTABSTOPS: {
            if (!multi_line_) return FALSE;
            const auto* stops = reinterpret_cast<const int*>(lParam);
            tab_stops_.assign(stops, stops + (stops ? wParam : 0));
            UpdateLayout();
            Redraw();
            return TRUE;
        }
        default: return HandleInput(message, wParam, lParam);
    }
}

LRESULT EditControl::GetSelection(DWORD* start, DWORD* end) const {
    const auto from = static_cast<DWORD>(text_.SelectionStart());
    const auto to = static_cast<DWORD>(text_.SelectionEnd());
    if (start) *start = from;
    if (end) *end = to;
    return from > 0xFFFF || to > 0xFFFF ? -1 : MAKELRESULT(from, to);
}

// A start of -1 removes the selection; anything else that is negative stands for the end of the text.
void EditControl::SetSelection(WPARAM start, LPARAM end) {
    const auto from = static_cast<DWORD>(start);
    if (from == static_cast<DWORD>(-1)) {
        text_.Select(text_.Caret(), text_.Caret());
    } else {
        text_.Select(from, static_cast<DWORD>(end));
    }
    caret_at_end_ = false;
    ScrollToCaret();
    Redraw();
}

// The first word of the buffer has its size; no 0 is put behind the text.
LRESULT EditControl::GetLine(WPARAM line, char* buffer) const {
    if (!buffer) return 0;
    if (!multi_line_) line = 0;
    if (line >= lines_.Count()) return 0;
    WORD size = 0;
    std::memcpy(&size, buffer, sizeof size);
    const std::string_view text = LineText(line);
    const size_t count = std::min<size_t>(size, text.size());
    std::memcpy(buffer, text.data(), count);
    return static_cast<LRESULT>(count);
}

// For -1: how much the lines of the selection have outside of it.
LRESULT EditControl::LineLength(WPARAM position) const {
    if (!multi_line_) return static_cast<LRESULT>(text_.Length());
    if (static_cast<DWORD>(position) != static_cast<DWORD>(-1)) {
        return static_cast<LRESULT>(lines_[lines_.LineOf(position)].length);
    }
    const size_t start = text_.SelectionStart();
    const size_t end = text_.SelectionEnd();
    const EditLine& last = lines_[lines_.LineOf(end)];
    const size_t last_end = last.start + last.length;
    const size_t before = start - lines_[lines_.LineOf(start)].start;
    return static_cast<LRESULT>(before + (last_end > end ? last_end - end : 0));
}

LRESULT EditControl::LineIndex(WPARAM line) const {
    if (!multi_line_) return 0;
    if (static_cast<DWORD>(line) == static_cast<DWORD>(-1)) line = lines_.LineOf(text_.Caret());
    return line < lines_.Count() ? static_cast<LRESULT>(lines_[line].start) : -1;
}

LRESULT EditControl::LineFromChar(WPARAM position) const {
    if (!multi_line_) return 0;
    if (static_cast<DWORD>(position) == static_cast<DWORD>(-1)) position = text_.SelectionStart();
    return static_cast<LRESULT>(lines_.LineOf(position));
}

LRESULT EditControl::PositionFromChar(WPARAM position) const {
    if (position >= text_.Length()) return -1;
    const POINT place = PlaceOf(multi_line_ ? lines_.LineOf(position) : 0, position);
    return MAKELRESULT(place.x, place.y);
}
