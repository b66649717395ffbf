// Handles, the tree's ends, and who knows whom.

#include <algorithm>
#include <unordered_map>

#include "queue.h"

namespace {

// Handles count upwards, so that one that is gone is not met again soon. Both worlds' handles fit 32 bits.
constexpr UINT_PTR kFirstWindow = 0x10010;
constexpr UINT_PTR kStep = 2;

struct Registry {
    std::mutex mutex;
    std::unordered_map<HWND, WindowRef> windows;
    std::vector<Window*> top_level;
    UINT_PTR next = kFirstWindow;
};

Registry& TheRegistry() {
    static Registry& registry = *new Registry;
    return registry;
}

}  // namespace

std::mutex& WindowMutex() {
    return TheRegistry().mutex;
}

std::vector<Window*>& TopLevelWindows() {
    return TheRegistry().top_level;
}

WindowRef FindWindowLocked(HWND handle) {
    const auto& windows = TheRegistry().windows;
    const auto found = windows.find(handle);
    if (found != windows.end()) return found->second;
    SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return nullptr;
}

WindowRef FindWindowRef(HWND handle) {
    const std::lock_guard lock(WindowMutex());
    return FindWindowLocked(handle);
}

WindowRef AddWindowLocked() {
    auto window = std::make_shared<Window>();
    Registry& registry = TheRegistry();
    window->handle = reinterpret_cast<HWND>(registry.next);
    registry.next += kStep;
    registry.windows[window->handle] = window;
    return window;
}

namespace {

void RemoveWindowLocked(Window& window) {
    if (TheRegistry().windows.erase(window.handle) == 0) return;
    window.ending = true;
    ForgetPaint(window);
    std::vector<Window*>& siblings = SiblingsOf(window);
    siblings.erase(std::remove(siblings.begin(), siblings.end(), &window), siblings.end());
    window.parent = nullptr;
    if (window.cls) --window.cls->windows;
}

}  // namespace

void RemoveWindow(Window& window) {
    const std::lock_guard lock(WindowMutex());
    RemoveWindowLocked(window);
}

void RemoveWindowsOfThread(DWORD thread) {
    const std::lock_guard lock(WindowMutex());
    const auto& windows = TheRegistry().windows;
    std::vector<WindowRef> gone;
    for (const auto& [handle, window] : windows)
        if (window->thread == thread) gone.push_back(window);
    // Children follow their parents in the list, and leave before them.
    for (size_t i = 0; i < gone.size(); ++i) {
        const WindowRef parent = gone[i];
        for (const Window* const child : parent->children)
            gone.push_back(windows.at(child->handle));
    }
    for (auto at = gone.rbegin(); at != gone.rend(); ++at)
        RemoveWindowLocked(**at);
}

unsigned CountWindows() {
    const std::lock_guard lock(WindowMutex());
    return static_cast<unsigned>(TheRegistry().windows.size());
}

std::vector<Window*>& SiblingsOf(Window& window) {
    return window.parent ? window.parent->children : TopLevelWindows();
}

Window& RootOf(Window& window) {
    Window* root = &window;
    while (root->parent)
        root = root->parent;
    return *root;
}

bool IsAncestor(const Window* ancestor, const Window* window) {
    for (const Window* at = window->parent; at; at = at->parent)
        if (at == ancestor) return true;
    return false;
}

bool IsShown(const Window& window) {
    for (const Window* at = &window; at; at = at->parent)
        if (!(at->style & WS_VISIBLE)) return false;
    return true;
}

std::vector<HWND> ChildrenOf(HWND parent) {
    const std::lock_guard lock(WindowMutex());
    std::vector<HWND> handles;
    const WindowRef window = parent ? FindWindowLocked(parent) : nullptr;
    for (const Window* child : window ? window->children : TopLevelWindows())
        handles.push_back(child->handle);
    return handles;
}
