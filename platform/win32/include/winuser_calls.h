#pragma once

#include <winuser_records.h>

// Calls on windows and messages. A window belongs to the thread that made it; a send to another thread's
// window waits until that thread takes messages, and meanwhile takes what is sent to its own.

extern "C" {

// Classes. A class is found by its name in any case, in the module that registered it or among the system's
// own.
WINUSERAPI ATOM WINAPI RegisterClassA(const WNDCLASSA* windowClass);
WINUSERAPI BOOL WINAPI UnregisterClassA(LPCSTR name, HINSTANCE module);
WINUSERAPI BOOL WINAPI GetClassInfoA(HINSTANCE module, LPCSTR name, LPWNDCLASSA windowClass);
WINUSERAPI int WINAPI GetClassNameA(HWND window, LPSTR name, int size);

// Creation and destruction.
WINUSERAPI HWND WINAPI CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR text, DWORD style, int x,
                                       int y, int width, int height, HWND parent, HMENU menuOrId,
                                       HINSTANCE module, LPVOID parameter);
WINUSERAPI BOOL WINAPI DestroyWindow(HWND window);
WINUSERAPI BOOL WINAPI IsWindow(HWND window);

// The tree of windows.
WINUSERAPI HWND WINAPI GetDesktopWindow();
WINUSERAPI HWND WINAPI GetParent(HWND window);
WINUSERAPI HWND WINAPI GetAncestor(HWND window, UINT which);
WINUSERAPI HWND WINAPI GetWindow(HWND window, UINT relation);
WINUSERAPI BOOL WINAPI IsChild(HWND parent, HWND window);
WINUSERAPI BOOL WINAPI EnumThreadWindows(DWORD thread, WNDENUMPROC callback, LPARAM parameter);
WINUSERAPI DWORD WINAPI GetWindowThreadProcessId(HWND window, LPDWORD process);

// Words, text, state.
WINUSERAPI LONG_PTR WINAPI GetWindowLongPtrA(HWND window, int index);
WINUSERAPI LONG_PTR WINAPI SetWindowLongPtrA(HWND window, int index, LONG_PTR value);
WINUSERAPI LONG WINAPI GetWindowLongA(HWND window, int index);
WINUSERAPI LONG WINAPI SetWindowLongA(HWND window, int index, LONG value);
WINUSERAPI BOOL WINAPI SetWindowTextA(HWND window, LPCSTR text);
WINUSERAPI int WINAPI GetWindowTextA(HWND window, LPSTR text, int size);
WINUSERAPI int WINAPI GetWindowTextLengthA(HWND window);
WINUSERAPI BOOL WINAPI IsWindowVisible(HWND window);
WINUSERAPI BOOL WINAPI IsWindowEnabled(HWND window);
WINUSERAPI BOOL WINAPI EnableWindow(HWND window, BOOL enable);

// Place and order.
WINUSERAPI BOOL WINAPI ShowWindow(HWND window, int how);
WINUSERAPI BOOL WINAPI MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
WINUSERAPI BOOL WINAPI SetWindowPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags);
WINUSERAPI BOOL WINAPI GetWindowRect(HWND window, LPRECT rect);
WINUSERAPI BOOL WINAPI GetClientRect(HWND window, LPRECT rect);
WINUSERAPI BOOL WINAPI ClientToScreen(HWND window, LPPOINT point);
WINUSERAPI BOOL WINAPI ScreenToClient(HWND window, LPPOINT point);
WINUSERAPI int WINAPI MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
WINUSERAPI HWND WINAPI WindowFromPoint(POINT point);
WINUSERAPI HWND WINAPI ChildWindowFromPoint(HWND parent, POINT point);
WINUSERAPI BOOL WINAPI AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD extendedStyle);

// Focus, capture, keys. Each thread has its own.
WINUSERAPI HWND WINAPI SetFocus(HWND window);
WINUSERAPI HWND WINAPI GetFocus();
WINUSERAPI HWND WINAPI SetActiveWindow(HWND window);
WINUSERAPI HWND WINAPI GetActiveWindow();
WINUSERAPI HWND WINAPI SetCapture(HWND window);
WINUSERAPI HWND WINAPI GetCapture();
WINUSERAPI BOOL WINAPI ReleaseCapture();
WINUSERAPI SHORT WINAPI GetKeyState(int key);
WINUSERAPI BOOL WINAPI SetKeyboardState(BYTE* keys);

// Messages.
WINUSERAPI LRESULT WINAPI SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI BOOL WINAPI PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI void WINAPI PostQuitMessage(int exitCode);
WINUSERAPI BOOL WINAPI PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove);
WINUSERAPI BOOL WINAPI GetMessageA(LPMSG message, HWND window, UINT first, UINT last);
WINUSERAPI BOOL WINAPI TranslateMessage(const MSG* message);
WINUSERAPI LRESULT WINAPI DispatchMessageA(const MSG* message);
WINUSERAPI LRESULT WINAPI DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI LRESULT WINAPI CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam,
                                          LPARAM lParam);

// Hooks of one thread. Differs: WH_CBT only, with the codes of winuser_values.h; `module` is null.
WINUSERAPI HHOOK WINAPI SetWindowsHookExA(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread);
WINUSERAPI BOOL WINAPI UnhookWindowsHookEx(HHOOK hook);
WINUSERAPI LRESULT WINAPI CallNextHookEx(HHOOK hook, int code, WPARAM wParam, LPARAM lParam);

// Painting.
WINUSERAPI HDC WINAPI GetDC(HWND window);
WINUSERAPI HDC WINAPI GetWindowDC(HWND window);
WINUSERAPI int WINAPI ReleaseDC(HWND window, HDC dc);
WINUSERAPI HDC WINAPI BeginPaint(HWND window, LPPAINTSTRUCT paint);
WINUSERAPI BOOL WINAPI EndPaint(HWND window, const PAINTSTRUCT* paint);
WINUSERAPI BOOL WINAPI InvalidateRect(HWND window, const RECT* rect, BOOL erase);
WINUSERAPI BOOL WINAPI ValidateRect(HWND window, const RECT* rect);
WINUSERAPI BOOL WINAPI GetUpdateRect(HWND window, LPRECT rect, BOOL erase);
WINUSERAPI BOOL WINAPI UpdateWindow(HWND window);
WINUSERAPI BOOL WINAPI RedrawWindow(HWND window, const RECT* rect, HRGN region, UINT flags);
WINUSERAPI BOOL WINAPI ScrollWindow(HWND window, int dx, int dy, const RECT* rect, const RECT* clip);
WINUSERAPI int WINAPI FillRect(HDC dc, const RECT* rect, HBRUSH brush);
WINUSERAPI int WINAPI FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
WINUSERAPI BOOL WINAPI InvertRect(HDC dc, const RECT* rect);
WINUSERAPI BOOL WINAPI DrawFocusRect(HDC dc, const RECT* rect);
// Differs: the edges and sides of winuser_values.h.
WINUSERAPI BOOL WINAPI DrawEdge(HDC dc, LPRECT rect, UINT edge, UINT flags);
// Differs: the formats of winuser_values.h.
WINUSERAPI int WINAPI DrawTextA(HDC dc, LPCSTR text, int length, LPRECT rect, UINT format);

// Scroll bars of a window.
WINUSERAPI int WINAPI SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, BOOL redraw);
WINUSERAPI BOOL WINAPI GetScrollInfo(HWND window, int bar, LPSCROLLINFO info);
WINUSERAPI int WINAPI SetScrollPos(HWND window, int bar, int position, BOOL redraw);
WINUSERAPI int WINAPI GetScrollPos(HWND window, int bar);
WINUSERAPI BOOL WINAPI SetScrollRange(HWND window, int bar, int minimum, int maximum, BOOL redraw);
WINUSERAPI BOOL WINAPI GetScrollRange(HWND window, int bar, int* minimum, int* maximum);

// Caret. Differs: it does not blink.
WINUSERAPI BOOL WINAPI CreateCaret(HWND window, HBITMAP bitmap, int width, int height);
WINUSERAPI BOOL WINAPI DestroyCaret();
WINUSERAPI BOOL WINAPI SetCaretPos(int x, int y);
WINUSERAPI BOOL WINAPI GetCaretPos(LPPOINT point);
WINUSERAPI BOOL WINAPI ShowCaret(HWND window);

// The system.
WINUSERAPI int WINAPI GetSystemMetrics(int index);
WINUSERAPI DWORD WINAPI GetSysColor(int index);
WINUSERAPI HBRUSH WINAPI GetSysColorBrush(int index);
WINUSERAPI HCURSOR WINAPI LoadCursorA(HINSTANCE module, LPCSTR name);
WINUSERAPI HICON WINAPI LoadIconA(HINSTANCE module, LPCSTR name);
// Windows, or drawing objects and contexts, that are alive in this process. `process` is not looked at.
WINUSERAPI DWORD WINAPI GetGuiResources(HANDLE process, DWORD kind);

// Rectangles.
WINUSERAPI BOOL WINAPI PtInRect(const RECT* rect, POINT point);
WINUSERAPI BOOL WINAPI SetRect(LPRECT rect, int left, int top, int right, int bottom);
WINUSERAPI BOOL WINAPI OffsetRect(LPRECT rect, int dx, int dy);
WINUSERAPI BOOL WINAPI InflateRect(LPRECT rect, int dx, int dy);
WINUSERAPI BOOL WINAPI IsRectEmpty(const RECT* rect);

// Dialogs.
WINUSERAPI HWND WINAPI CreateDialogIndirectParamA(HINSTANCE module, LPCDLGTEMPLATE dialog, HWND owner,
                                                  DLGPROC procedure, LPARAM parameter);
WINUSERAPI INT_PTR WINAPI DialogBoxIndirectParamA(HINSTANCE module, LPCDLGTEMPLATE dialog, HWND owner,
                                                  DLGPROC procedure, LPARAM parameter);
WINUSERAPI BOOL WINAPI EndDialog(HWND dialog, INT_PTR result);
WINUSERAPI LRESULT WINAPI DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
WINUSERAPI BOOL WINAPI IsDialogMessageA(HWND dialog, LPMSG message);
WINUSERAPI BOOL WINAPI MapDialogRect(HWND dialog, LPRECT rect);
WINUSERAPI HWND WINAPI GetDlgItem(HWND dialog, int id);
WINUSERAPI int WINAPI GetDlgCtrlID(HWND window);
WINUSERAPI BOOL WINAPI SetDlgItemTextA(HWND dialog, int id, LPCSTR text);
WINUSERAPI UINT WINAPI GetDlgItemTextA(HWND dialog, int id, LPSTR text, int size);
WINUSERAPI LRESULT WINAPI SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam,
                                              LPARAM lParam);
WINUSERAPI HWND WINAPI GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
WINUSERAPI HWND WINAPI GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
}
