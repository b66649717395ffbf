#include <algorithm>
#include <unordered_map>

#include "queue.h"

namespace {

struct Hook {
    DWORD thread;
    HOOKPROC procedure;
};

std::unordered_map<HHOOK, Hook>& Hooks() {
    static auto& hooks = *new std::unordered_map<HHOOK, Hook>;
    return hooks;
}

UINT_PTR next_hook = 0x20010;

HOOKPROC ProcedureOf(HHOOK hook) {
    const std::lock_guard lock(WindowMutex());
    const auto found = Hooks().find(hook);
    return found == Hooks().end() ? nullptr : found->second.procedure;
}

}  // namespace

HHOOK WINAPI SetWindowsHookExA(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread) {
    if (kind != WH_CBT || !procedure || module || thread != GetCurrentThreadId()) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    ThreadQueue& queue = CurrentQueue();
    const std::lock_guard lock(WindowMutex());
    const HHOOK hook = reinterpret_cast<HHOOK>(next_hook++);
    Hooks()[hook] = {thread, procedure};
    queue.hooks.push_back(hook);
    return hook;
}

BOOL WINAPI UnhookWindowsHookEx(HHOOK hook) {
    const std::lock_guard lock(WindowMutex());
    const auto found = Hooks().find(hook);
    if (found == Hooks().end()) {
        SetLastError(ERROR_INVALID_HOOK_HANDLE);
        return FALSE;
    }
    if (ThreadQueue* const queue = QueueOf(found->second.thread))
        queue->hooks.erase(std::remove(queue->hooks.begin(), queue->hooks.end(), hook), queue->hooks.end());
    Hooks().erase(found);
    return TRUE;
}

LRESULT WINAPI CallNextHookEx(HHOOK hook, int code, WPARAM wParam, LPARAM lParam) {
    const std::vector<HHOOK>& hooks = CurrentQueue().hooks;
    const auto at = std::find(hooks.begin(), hooks.end(), hook);
    if (at == hooks.begin() || at == hooks.end()) return 0;
    const HOOKPROC next = ProcedureOf(*(at - 1));
    return next ? next(code, wParam, lParam) : 0;
}

bool HookForbids(int code, WPARAM wParam, LPARAM lParam) {
    const std::vector<HHOOK>& hooks = CurrentQueue().hooks;
    if (hooks.empty()) return false;
    const HOOKPROC last = ProcedureOf(hooks.back());
    return last && last(code, wParam, lParam) != 0;
}
