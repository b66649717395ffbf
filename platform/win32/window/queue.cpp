#include "queue.h"

#include <algorithm>
#include <unordered_map>

#include "desktop.h"

namespace {

std::unordered_map<DWORD, ThreadQueue*>& Queues() {
    static std::unordered_map<DWORD, ThreadQueue*> queues;
    return queues;
}

// A thread's queue lives as long as the thread. Its windows go with it, without a message.
struct OwnQueue {
    OwnQueue() {
        queue.id = GetCurrentThreadId();
        const std::lock_guard lock(WindowMutex());
        Queues()[queue.id] = &queue;
    }
    OwnQueue(const OwnQueue&) = delete;
    OwnQueue& operator=(const OwnQueue&) = delete;
    ~OwnQueue() {
        RemoveWindowsOfThread(queue.id);
        const std::lock_guard lock(WindowMutex());
        Queues().erase(queue.id);
        for (const auto& message : queue.sent) {
            message->answered = true;
            message->sender->changed.notify_all();
        }
    }

    ThreadQueue queue;
};

}  // namespace

ThreadQueue& CurrentQueue() {
    // The registry and the table of queues outlive every thread's queue.
    static_cast<void>(WindowMutex());
    static_cast<void>(Queues());
    static thread_local OwnQueue own;
    return own.queue;
}

ThreadQueue* QueueOf(DWORD thread) {
    const auto found = Queues().find(thread);
    return found == Queues().end() ? nullptr : found->second;
}

void AnswerSentMessages(ThreadQueue& queue, std::unique_lock<std::mutex>& lock) {
    while (!queue.sent.empty()) {
        const std::shared_ptr<SentMessage> sent = queue.sent.front();
        queue.sent.pop_front();
        const WindowRef window = FindWindowLocked(sent->window);
        lock.unlock();
        const LRESULT result = window ? CallProcedure(*window, sent->message, sent->wParam, sent->lParam) : 0;
        lock.lock();
        sent->result = result;
        sent->answered = true;
        sent->sender->changed.notify_all();
    }
}

LRESULT CallProcedure(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    // The procedure may destroy its window.
    const HWND handle = window.handle;
    const WNDPROC procedure = window.procedure;
    return procedure(handle, message, wParam, lParam);
}

LRESULT WINAPI CallWindowProcA(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure ? procedure(window, message, wParam, lParam) : 0;
}

LRESULT WINAPI SendMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    ThreadQueue& own = CurrentQueue();
    std::unique_lock lock(WindowMutex());
    const WindowRef window = FindWindowLocked(handle);
    if (!window) return 0;
    if (window->thread == own.id) {
        lock.unlock();
        return CallProcedure(*window, message, wParam, lParam);
    }
    ThreadQueue* const target = QueueOf(window->thread);
    if (!target) return 0;
    const auto sent = std::make_shared<SentMessage>();
    sent->window = handle;
    sent->message = message;
    sent->wParam = wParam;
    sent->lParam = lParam;
    sent->sender = &own;
    target->sent.push_back(sent);
    target->changed.notify_all();
    // Whoever waits goes on answering, or two threads that send to each other would wait for ever.
    while (!sent->answered) {
        AnswerSentMessages(own, lock);
        if (!sent->answered) own.changed.wait(lock, [&] { return sent->answered || !own.sent.empty(); });
    }
    return sent->result;
}

namespace {

MSG NewMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MSG made = {};
    made.hwnd = window;
    made.message = message;
    made.wParam = wParam;
    made.lParam = lParam;
    made.time = GetTickCount();
    return made;
}

bool InRange(UINT message, UINT first, UINT last) {
    return (first == 0 && last == 0) || (message >= first && message <= last);
}

// A filter takes a window and everything in it; -1 stands for messages without a window.
bool ForWindow(const MSG& message, HWND filter) {
    if (!filter) return true;
    if (filter == reinterpret_cast<HWND>(static_cast<LONG_PTR>(-1))) return message.hwnd == nullptr;
    const WindowRef window = message.hwnd ? FindWindowLocked(message.hwnd) : nullptr;
    if (!window) return false;
    const WindowRef wanted = FindWindowLocked(filter);
    return window == wanted || (wanted && IsAncestor(wanted.get(), window.get()));
}

bool NeedsPaint(const Window& window) {
    return (!window.update.Empty() || window.frame_dirty) && window.redraw && IsShown(window);
}

// The window to be painted next: parents before what stands on them.
Window* NextPaint(ThreadQueue& queue) {
    while (!queue.paints.empty()) {
        Window* window = queue.paints.begin()->second;
        if (!NeedsPaint(*window)) {
            window->pending_paint.reset();
            queue.paints.erase(queue.paints.begin());
            continue;
        }
        for (Window* above = window->parent; above; above = above->parent)
            if (above->pending_paint && NeedsPaint(*above)) window = above;
        return window;
    }
    return nullptr;
}

bool TakePosted(ThreadQueue& queue, MSG& message, HWND filter, UINT first, UINT last, bool remove) {
    for (auto at = queue.posted.begin(); at != queue.posted.end(); ++at) {
        if (!InRange(at->message, first, last) || !ForWindow(*at, filter)) continue;
        message = *at;
        if (remove) queue.posted.erase(at);
        return true;
    }
    return false;
}

bool TakePaint(ThreadQueue& queue, MSG& message, HWND filter, UINT first, UINT last) {
    if (!InRange(WM_PAINT, first, last)) return false;
    Window* const window = NextPaint(queue);
    if (!window) return false;
    const MSG paint = NewMessage(window->handle, WM_PAINT, 0, 0);
    if (!ForWindow(paint, filter)) return false;
    message = paint;
    return true;
}

bool Take(ThreadQueue& queue, MSG& message, HWND filter, UINT first, UINT last, bool remove) {
    if (TakePosted(queue, message, filter, first, last, remove)) return true;
    if (queue.quit) {
        message = NewMessage(nullptr, WM_QUIT, static_cast<WPARAM>(queue.exit_code), 0);
        if (remove) queue.quit = false;
        return true;
    }
    return TakePaint(queue, message, filter, first, last);
}

BOOL PostToOwnThread(UINT message, WPARAM wParam, LPARAM lParam) {
    ThreadQueue& queue = CurrentQueue();
    const std::lock_guard lock(WindowMutex());
    queue.posted.push_back(NewMessage(nullptr, message, wParam, lParam));
    return TRUE;
}

}  // namespace

BOOL WINAPI PostMessageA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!handle) return PostToOwnThread(message, wParam, lParam);
    const MSG made = NewMessage(handle, message, wParam, lParam);
    const std::lock_guard lock(WindowMutex());
    const WindowRef window = FindWindowLocked(handle);
    ThreadQueue* const queue = window ? QueueOf(window->thread) : nullptr;
    if (!queue) return FALSE;
    queue->posted.push_back(made);
    queue->changed.notify_all();
    return TRUE;
}

void WINAPI PostQuitMessage(int exitCode) {
    ThreadQueue& queue = CurrentQueue();
    const std::lock_guard lock(WindowMutex());
    queue.quit = true;
    queue.exit_code = exitCode;
}

BOOL WINAPI PeekMessageA(LPMSG message, HWND window, UINT first, UINT last, UINT remove) {
    ThreadQueue& queue = CurrentQueue();
    std::unique_lock lock(WindowMutex());
    AnswerSentMessages(queue, lock);
    return message && Take(queue, *message, window, first, last, (remove & PM_REMOVE) != 0);
}

BOOL WINAPI GetMessageA(LPMSG message, HWND window, UINT first, UINT last) {
    if (!message) return -1;
    ThreadQueue& queue = CurrentQueue();
    std::unique_lock lock(WindowMutex());
    for (;;) {
        AnswerSentMessages(queue, lock);
        if (Take(queue, *message, window, first, last, true)) break;
        queue.changed.wait(lock);
    }
    return message->message != WM_QUIT;
}

LRESULT WINAPI DispatchMessageA(const MSG* message) {
    if (!message->hwnd) return 0;
    const WindowRef window = FindWindowRef(message->hwnd);
    if (!window) return 0;
    return CallProcedure(*window, message->message, message->wParam, message->lParam);
}
