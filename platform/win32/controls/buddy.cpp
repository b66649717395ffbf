#include "buddy.h"

#include <map>
#include <mutex>

namespace {

struct Watch {
    WNDPROC former;
    HWND listener;  // null when nobody listens any more
};

struct Watches {
    std::mutex mutex;
    std::map<HWND, Watch> of;
};

Watches& AllWatches() {
    static Watches& watches = *new Watches;
    return watches;
}

WNDPROC ProcedureOf(HWND window) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC));
}

void SetProcedure(HWND window, WNDPROC procedure) {
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

Watch FindWatch(HWND buddy, bool last) {
    Watches& watches = AllWatches();
    const std::lock_guard lock(watches.mutex);
    const auto found = watches.of.find(buddy);
    if (found == watches.of.end()) return {DefWindowProcA, nullptr};
    const Watch watch = found->second;
    if (last) watches.of.erase(found);
    return watch;
}

LRESULT CALLBACK BuddyProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const Watch watch = FindWatch(window, message == WM_NCDESTROY);
    if (message == WM_KEYDOWN && watch.listener && (wParam == VK_UP || wParam == VK_DOWN)) {
        return SendMessageA(watch.listener, kBuddyKey, wParam, lParam);
    }
    if (message == WM_NCDESTROY && ProcedureOf(window) == BuddyProcedure) SetProcedure(window, watch.former);
    return CallWindowProcA(watch.former, window, message, wParam, lParam);
}

}  // namespace

void WatchArrowKeys(HWND buddy, HWND listener) {
    const WNDPROC procedure = ProcedureOf(buddy);
    if (!procedure) return;
    Watches& watches = AllWatches();
    {
        const std::lock_guard lock(watches.mutex);
        const auto [watch, is_new] = watches.of.try_emplace(buddy, Watch{procedure, listener});
        watch->second.listener = listener;
        if (!is_new) return;
    }
    SetProcedure(buddy, BuddyProcedure);
}

void LeaveArrowKeys(HWND buddy, HWND listener) {
    Watches& watches = AllWatches();
    WNDPROC former = nullptr;
    {
        const std::lock_guard lock(watches.mutex);
        const auto watch = watches.of.find(buddy);
        if (watch == watches.of.end() || watch->second.listener != listener) return;
        watch->second.listener = nullptr;
        if (ProcedureOf(buddy) != BuddyProcedure) return;
        former = watch->second.former;
        watches.of.erase(watch);
    }
    SetProcedure(buddy, former);
}
