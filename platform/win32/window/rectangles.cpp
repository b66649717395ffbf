#include <windows.h>

#include "wrapping.h"

BOOL WINAPI SetRect(LPRECT rect, int left, int top, int right, int bottom) {
    if (!rect) return FALSE;
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL WINAPI PtInRect(const RECT* rect, POINT point) {
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
           point.y < rect->bottom;
}

BOOL WINAPI OffsetRect(LPRECT rect, int dx, int dy) {
    return rect && SetRect(rect, Sum(rect->left, dx), Sum(rect->top, dy), Sum(rect->right, dx),
                           Sum(rect->bottom, dy));
}

BOOL WINAPI InflateRect(LPRECT rect, int dx, int dy) {
    return rect && SetRect(rect, Difference(rect->left, dx), Difference(rect->top, dy), Sum(rect->right, dx),
                           Sum(rect->bottom, dy));
}

BOOL WINAPI IsRectEmpty(const RECT* rect) {
    return !rect || rect->left >= rect->right || rect->top >= rect->bottom;
}
