#include "queue.h"
#include "wrapping.h"

namespace {

// The caret is an inverted bar in its window.
void Flip(const ThreadQueue& queue) {
    if (!queue.caret_window || queue.caret_hidden) return;
    if (const HDC dc = GetDC(queue.caret_window)) {
        InvertRect(dc, &queue.caret);
        ReleaseDC(queue.caret_window, dc);
    }
}

}  // namespace

BOOL WINAPI CreateCaret(HWND window, HBITMAP, int width, int height) {
    if (!IsWindow(window)) return FALSE;
    DestroyCaret();
    ThreadQueue& queue = CurrentQueue();
    queue.caret_window = window;
    queue.caret = {0, 0, width > 0 ? width : GetSystemMetrics(SM_CXBORDER), height};
    queue.caret_hidden = true;
    return TRUE;
}

BOOL WINAPI DestroyCaret() {
    ThreadQueue& queue = CurrentQueue();
    if (!queue.caret_window) return FALSE;
    Flip(queue);
    queue.caret_window = nullptr;
    queue.caret_hidden = true;
    return TRUE;
}

BOOL WINAPI SetCaretPos(int x, int y) {
    ThreadQueue& queue = CurrentQueue();
    if (!queue.caret_window) return FALSE;
    Flip(queue);
    OffsetRect(&queue.caret, Difference(x, queue.caret.left), Difference(y, queue.caret.top));
    Flip(queue);
    return TRUE;
}

BOOL WINAPI GetCaretPos(LPPOINT point) {
    const ThreadQueue& queue = CurrentQueue();
    if (!queue.caret_window || !point) return FALSE;
    *point = {queue.caret.left, queue.caret.top};
    return TRUE;
}

BOOL WINAPI ShowCaret(HWND window) {
    ThreadQueue& queue = CurrentQueue();
    if (!queue.caret_window || (window && window != queue.caret_window)) return FALSE;
    if (!queue.caret_hidden) return TRUE;
    queue.caret_hidden = false;
    Flip(queue);
    return TRUE;
}
