#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <vector>

#include "window.h"

// A message from another thread. Its sender waits until it is answered.
struct SentMessage {
    HWND window = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    LRESULT result = 0;
    bool answered = false;
    struct ThreadQueue* sender = nullptr;
};

// What a thread has of messages and input state. Guarded by the window mutex; the input state is the thread's
// own.
struct ThreadQueue {
    DWORD id = 0;
    std::condition_variable changed;
    std::deque<MSG> posted;
    std::deque<std::shared_ptr<SentMessage>> sent;
    // Windows that wait for WM_PAINT, in the order in which they became invalid.
    std::map<uint64_t, Window*> paints;
    uint64_t next_paint = 0;
    bool quit = false;
    int exit_code = 0;

    HWND focus = nullptr;
    HWND active = nullptr;
    HWND capture = nullptr;
    BYTE keys[256] = {};
    std::vector<HHOOK> hooks;

    HWND caret_window = nullptr;
    RECT caret = {};
    bool caret_hidden = true;
};

ThreadQueue& CurrentQueue();
// With the mutex held; null for a thread without a queue.
ThreadQueue* QueueOf(DWORD thread);

// Answers what other threads have sent. The lock is released while it does.
void AnswerSentMessages(ThreadQueue& queue, std::unique_lock<std::mutex>& lock);

// Calls the WH_CBT hooks of this thread; true when one forbids it.
bool HookForbids(int code, WPARAM wParam, LPARAM lParam);
