#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstring>
#include <functional>
#include <initializer_list>
#include <string>

// A window for controls under test, that writes down what they tell their parent, and input for them by
// messages alone.
class ControlHost {
public:
    ControlHost();
    ~ControlHost() { DestroyWindow(window_); }
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;

    HWND Window() const { return window_; }

    // A visible child at 10, 10.
    HWND Add(const char* class_name, const char* text, DWORD style, int width = 100, int height = 20,
             int id = 5);

    // What was told since the last call: the names of notifications, in order, with a blank between them.
    std::string Told();

    // Sees every message first. An answer other than 0 goes to the sender.
    std::function<LRESULT(UINT, WPARAM, LPARAM)> on_message;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Note(UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ = nullptr;
    std::string told_;
};

// Takes all messages that wait.
inline void PumpMessages() {
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

// Shift and Ctrl are down while one key goes down and up.
struct Modifiers {
    bool shift = false;
    bool control = false;
};

inline void PressKey(HWND window, int key, Modifiers modifiers = {}) {
    BYTE keys[256] = {};
    keys[VK_SHIFT] = modifiers.shift ? 0x80 : 0;
    keys[VK_CONTROL] = modifiers.control ? 0x80 : 0;
    SetKeyboardState(keys);
    SendMessageA(window, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    SendMessageA(window, WM_KEYUP, static_cast<WPARAM>(key), 1);
    std::memset(keys, 0, sizeof keys);
    SetKeyboardState(keys);
}

inline void MouseDown(HWND window, int x, int y, WPARAM keys = MK_LBUTTON) {
    SendMessageA(window, WM_LBUTTONDOWN, keys, MAKELPARAM(x, y));
}

inline void MouseMove(HWND window, int x, int y) {
    SendMessageA(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y));
}

inline void MouseUp(HWND window, int x, int y) {
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

inline std::string TextOf(HWND window) {
    std::string text(static_cast<size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// How many pixels of a window's client area have a colour.
inline int CountPixels(HWND window, COLORREF color) {
    RECT area = {};
    GetClientRect(window, &area);
    const HDC dc = GetDC(window);
    int count = 0;
    for (int y = 0; y < area.bottom; ++y) {
        for (int x = 0; x < area.right; ++x)
            count += GetPixel(dc, x, y) == color;
    }
    ReleaseDC(window, dc);
    return count;
}

inline COLORREF PixelOf(HWND window, int x, int y) {
    const HDC dc = GetDC(window);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return color;
}
