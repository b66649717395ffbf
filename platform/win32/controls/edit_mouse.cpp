#include "edit_control.h"

LRESULT EditControl::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = PointOf(lParam);
    switch (message) {
        case WM_LBUTTONDOWN:
            dragging_ = true;
            SetCapture(Window());
            caret_at_end_ = false;
            MoveCaret(PositionAt(point), (wParam & MK_SHIFT) != 0);
            SetFocus(Window());
            return 0;
        case WM_LBUTTONDBLCLK:
            dragging_ = true;
            SetCapture(Window());
            SelectWordAt(point);
            return 0;
        case WM_MOUSEMOVE:
            if (dragging_) MoveCaret(PositionAt(point), true);
            return 0;
        case WM_LBUTTONUP:
            if (dragging_) ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED: dragging_ = false; return 0;
        default: return Default(message, wParam, lParam);
    }
}

// The word and the spaces behind it.
void EditControl::SelectWordAt(POINT point) {
    const size_t position = PositionAt(point);
    const size_t behind = text_.LineEndAt(position) ? position : text_.Next(position);
    const size_t start = text_.PreviousWord(behind);
    text_.Select(start, start);
    caret_at_end_ = false;
    MoveCaret(text_.NextWord(start), true);
}
