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

WindowRef AddWindow() {
    auto window = std::make_shared<Window>();
    const std::lock_guard lock(WindowMutex());
    Registry& registry = TheRegistry();
    window->handle = reinterpret_cast<HWND>(registry.next);
    registry.next += kStep;
    registry.windows[window->handle] = window;
    return window;
}

void RemoveWindow(Window& window) {
    const std::lock_guard lock(WindowMutex());
    std::vector<Window*>& siblings = SiblingsOf(window);
    siblings.erase(std::remove(siblings.begin(), siblings.end(), &window), siblings.end());
    if (window.cls) --window.cls->windows;
    TheRegistry().windows.erase(window.handle);
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
