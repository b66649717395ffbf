#pragma once

#include <windows.h>

#include <memory>
#include <string>

// What the controls share. A control is an object that its window's extra word holds from WM_NCCREATE to
// WM_NCDESTROY.
class Control {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

protected:
    explicit Control(HWND window) : window_(window) {}
    ~Control() = default;

    HWND Window() const { return window_; }
    DWORD Style() const { return static_cast<DWORD>(GetWindowLongA(window_, GWL_STYLE)); }
    bool HasStyle(DWORD bits) const { return (Style() & bits) == bits; }
    RECT ClientArea() const;
    std::string WindowText() const;

    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) {
        return DefWindowProcA(window_, message, wParam, lParam);
    }

    // WM_COMMAND to the parent. The window may be gone when it returns, the object is not.
    void Notify(int code);

    // Asks the parent by one of the WM_CTLCOLOR messages; it may set the colours of the context, too.
    HBRUSH BackgroundBrush(UINT message, HDC dc);

    void Redraw() { InvalidateRect(window_, nullptr, TRUE); }

    // For what shows at once what it is told: not when the queue has become empty.
    void RedrawNow();

private:
    HWND window_;
};

// A context of a window with a font in it. A null font stands for the one of a new context.
class FontContext {
public:
    FontContext(HWND window, HFONT font) : window_(window), dc_(GetDC(window)) {
        if (font) former_ = SelectObject(dc_, font);
    }
    ~FontContext() {
        if (former_) SelectObject(dc_, former_);
        ReleaseDC(window_, dc_);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;
    HDC Get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
    HGDIOBJ former_ = nullptr;
};

// A context of what a window has to paint, with a font in it; null where there is none. A null font stands
// for the one of a new context.
class PaintContext {
public:
    PaintContext(HWND window, HFONT font) : window_(window), dc_(BeginPaint(window, &paint_)) {
        if (dc_ && font) former_ = SelectObject(dc_, font);
    }
    ~PaintContext() {
        if (!dc_) return;
        if (former_) SelectObject(dc_, former_);
        EndPaint(window_, &paint_);
    }
    PaintContext(const PaintContext&) = delete;
    PaintContext& operator=(const PaintContext&) = delete;
    HDC Get() const { return dc_; }

private:
    HWND window_;
    PAINTSTRUCT paint_ = {};
    HDC dc_;
    HGDIOBJ former_ = nullptr;
};

// The window procedure of the class that `Kind::Handle` answers for. A notification may destroy the window
// while its object still works: every message holds on to the object until it is done.
template <class Kind>
LRESULT CALLBACK ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    using Slot = std::shared_ptr<Kind>;
    auto* slot = reinterpret_cast<Slot*>(GetWindowLongPtrA(window, 0));
    if (message == WM_NCCREATE && !slot) {
        slot = new Slot(std::make_shared<Kind>(window));
        SetWindowLongPtrA(window, 0, reinterpret_cast<LONG_PTR>(slot));
    }
    if (!slot) return DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrA(window, 0, 0);
        delete slot;
        return DefWindowProcA(window, message, wParam, lParam);
    }
    const Slot control = *slot;
    return control->Handle(message, wParam, lParam);
}

// Registers a class that every module finds.
void RegisterControlClass(const char* name, WNDPROC procedure, UINT style);

inline POINT PointOf(LPARAM param) {
    return {static_cast<short>(LOWORD(param)), static_cast<short>(HIWORD(param))};
}

inline bool IsKeyDown(int key) {
    return (GetKeyState(key) & 0x8000) != 0;
}
