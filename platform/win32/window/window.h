#pragma once

#include <windows.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "gdi/surface.h"

// The windows of all threads.
//
// One mutex guards the tree, the classes and the queues. It is never held while a window procedure, a hook or
// a callback runs. A window is written to by its own thread, under the mutex; that thread may read it
// without.

struct WindowClass {
    std::string name;
    WNDCLASSA record = {};
    int windows = 0;
};

struct ScrollState {
    int minimum = 0;
    int maximum = 100;
    int position = 0;
    int page = 0;
};

struct Window {
    HWND handle = nullptr;
    std::shared_ptr<WindowClass> cls;
    WNDPROC procedure = nullptr;
    DWORD thread = 0;
    Window* parent = nullptr;       // of a child; null for a top-level window
    HWND owner = nullptr;           // of a top-level window
    std::vector<Window*> children;  // from the top down
    DWORD style = 0;
    DWORD extended_style = 0;
    RECT rect = {};    // on the screen
    RECT client = {};  // on the screen
    std::string text;
    LONG_PTR id = 0;
    HINSTANCE module = nullptr;
    LONG_PTR user_data = 0;
    std::vector<unsigned char> extra;
    HICON icon = nullptr;
    ScrollState bars[2];  // SB_HORZ, SB_VERT
    bool active_frame = false;
    bool redraw = true;   // WM_SETREDRAW
    bool ending = false;  // its last messages are sent: it takes no more children
    int destroying = 0;   // calls of DestroyWindow that are at work on it

    // What must be painted: the invalid part of the client area in screen coordinates, whether it is to be
    // erased, and whether the frame is to be drawn.
    Region update;
    bool erase = false;
    bool frame_dirty = false;
    std::optional<uint64_t> pending_paint;  // its place in its queue's list

    std::shared_ptr<Surface> surface;  // of a top-level window
};

using WindowRef = std::shared_ptr<Window>;

std::mutex& WindowMutex();

// Null for what is no window; the error is set. The first takes the mutex, the second is called with it.
WindowRef FindWindowRef(HWND handle);
WindowRef FindWindowLocked(HWND handle);

// Top-level windows, from the top down. To be called with the mutex held.
std::vector<Window*>& TopLevelWindows();
std::vector<Window*>& SiblingsOf(Window& window);
Window& RootOf(Window& window);
bool IsAncestor(const Window* ancestor, const Window* window);
// Itself and all ancestors are visible.
bool IsShown(const Window& window);

// All children of a window, as handles; safe to call back over.
std::vector<HWND> ChildrenOf(HWND parent);

// To be called with the mutex held.
WindowRef AddWindowLocked();
void RemoveWindow(Window& window);
unsigned CountWindows();

// Classes. With the mutex held.
std::shared_ptr<WindowClass> FindClass(HINSTANCE module, LPCSTR name);

// ---- Sizes of the frame. ----
// How far the client area lies inside of the window, without scroll bars.
RECT FrameInsets(DWORD style, DWORD extended_style);
RECT CalculateClient(const Window& window, const RECT& rect);
void PaintFrame(HWND window);
LRESULT HitTest(const Window& window, POINT screen);
void FrameButtonDown(HWND window, WPARAM hit, POINT screen);

// ---- Place. ----
// Flags of a WINDOWPOS that tell that the client area kept its size, or its place.
inline constexpr UINT kNoClientSize = 0x0800;
inline constexpr UINT kNoClientMove = 0x1000;

// Places and sizes have 16 bits, as in the messages that tell them.
inline int PlaceInRange(int place) {
    return std::clamp(place, -32768, 32767);
}
inline int SizeInRange(int size) {
    return std::clamp(size, 0, 32767);
}

// What a handler of WM_NCCALCSIZE may have made of a client area.
inline RECT ClientInRange(const RECT& client) {
    const auto in_range = [](LONG at) { return std::clamp<LONG>(at, -0x10000, 0x10000); };
    return {in_range(client.left), in_range(client.top), in_range(client.right), in_range(client.bottom)};
}

// The foremost place that a window can have among its siblings: topmost ones stand in front of the others.
std::vector<Window*>::iterator FrontPlace(const Window& window, std::vector<Window*>& siblings);

// Moves a window and everything in it. With the mutex held.
void OffsetWindow(Window& window, int dx, int dy);

// ---- Painting. ----
// Parts of the screen that may be drawn to for a window's client area, or for its whole area.
Region VisibleRegion(Window& window, bool whole);
// Marks a part of a window, given on the screen, and of its children.
void Invalidate(Window& window, const Region& part, UINT flags);
void InvalidateAll(HWND window);
// What a window covered must be painted by its parent.
void InvalidateBehind(Window& window, const RECT& rect);
void ForgetPaint(Window& window);
void FitSurface(Window& window);

// ---- Focus. ----
// A window that is gone has neither focus nor capture, and is not told.
void ForgetFocus(HWND window);
void ActivateNext(HWND gone);

// Calls a window's procedure on this thread.
LRESULT CallProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam);

inline POINT PointOf(LPARAM param) {
    return {static_cast<short>(LOWORD(param)), static_cast<short>(HIWORD(param))};
}
