// Threads, events and waiting.

#include <process.h>
#include <pthread.h>
#include <unistd.h>
#include <windows.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <thread>

#include "errors.h"
#include "handle_table.h"
#include "threads/waitable.h"

namespace {

// What can be waited for: an event, or a thread, which is set once and for ever at its end.
struct Waitable {
    explicit Waitable(bool manual_reset, bool is_set) : manual(manual_reset), set(is_set) {}

    std::mutex mutex;
    std::condition_variable changed;
    const bool manual;
    bool set;
    DWORD exit_code = kStillActive;

    static constexpr DWORD kStillActive = 259;
};

HandleTable<Waitable>& Waitables() {
    static auto& table = *new HandleTable<Waitable>(kFirstWaitableHandle);
    return table;
}

std::shared_ptr<Waitable> WaitableOf(HANDLE handle) {
    auto found = Waitables().Get(handle);
    if (!found) SetLastError(ERROR_INVALID_HANDLE);
    return found;
}

void Set(Waitable& object) {
    const std::lock_guard lock(object.mutex);
    object.set = true;
    object.changed.notify_all();
}

constexpr DWORD kFirstThreadId = 1000;
std::atomic<DWORD> next_thread_id{kFirstThreadId};
thread_local DWORD own_id = 0;

struct ThreadStart {
    _beginthreadex_proc_type start;
    void* argument;
    std::shared_ptr<Waitable> object;
    DWORD id;
};

// The object of this thread, if it was begun here. Being made first it goes last: whoever waits for the
// thread goes on when its other thread-local objects are gone.
struct EndOfThread {
    ~EndOfThread() {
        if (object) Set(*object);
    }

    std::shared_ptr<Waitable> object;
};

thread_local EndOfThread own_end;

void* Run(void* argument) {
    const std::unique_ptr<ThreadStart> start(static_cast<ThreadStart*>(argument));
    own_end.object = start->object;
    own_id = start->id;
    const unsigned code = start->start(start->argument);
    _endthreadex(code);
}

}  // namespace

bool CloseWaitable(HANDLE handle) {
    return Waitables().Remove(handle) != nullptr;
}

DWORD WINAPI GetCurrentThreadId() {
    if (own_id == 0) own_id = next_thread_id++;
    return own_id;
}

DWORD WINAPI GetCurrentProcessId() {
    return static_cast<DWORD>(getpid());
}

HANDLE WINAPI GetCurrentProcess() {
    return reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));
}

DWORD WINAPI GetTickCount() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<DWORD>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void WINAPI Sleep(DWORD milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

HANDLE WINAPI CreateEventA(LPSECURITY_ATTRIBUTES, BOOL manual, BOOL set, LPCSTR name) {
    if (name) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return Waitables().Add(std::make_shared<Waitable>(manual != FALSE, set != FALSE));
}

BOOL WINAPI SetEvent(HANDLE event) {
    const auto object = WaitableOf(event);
    if (object) Set(*object);
    return object != nullptr;
}

DWORD WINAPI WaitForSingleObject(HANDLE handle, DWORD milliseconds) {
    const auto object = WaitableOf(handle);
    if (!object) return WAIT_FAILED;
    std::unique_lock lock(object->mutex);
    const auto is_set = [&object] { return object->set; };
    if (milliseconds == INFINITE)
        object->changed.wait(lock, is_set);
    else if (!object->changed.wait_for(lock, std::chrono::milliseconds(milliseconds), is_set))
        return WAIT_TIMEOUT;
    if (!object->manual) object->set = false;
    return WAIT_OBJECT_0;
}

BOOL WINAPI GetExitCodeThread(HANDLE thread, LPDWORD code) {
    const auto object = WaitableOf(thread);
    if (!object || !code) return FALSE;
    const std::lock_guard lock(object->mutex);
    *code = object->exit_code;
    return TRUE;
}

uintptr_t _beginthreadex(void* security, unsigned stackSize, _beginthreadex_proc_type start, void* argument,
                         unsigned flags, unsigned* id) {
    if (security || stackSize != 0 || flags != 0 || !start) {
        errno = EINVAL;
        return 0;
    }
    auto object = std::make_shared<Waitable>(true, false);
    auto made = std::make_unique<ThreadStart>(ThreadStart{start, argument, object, next_thread_id++});
    if (id) *id = made->id;
    pthread_t thread = {};
    if (const int error = pthread_create(&thread, nullptr, &Run, made.get())) {
        errno = error;
        return 0;
    }
    static_cast<void>(made.release());  // the thread's now
    pthread_detach(thread);
    return reinterpret_cast<uintptr_t>(Waitables().Add(std::move(object)));
}

void _endthreadex(unsigned exitCode) {
    if (const auto& object = own_end.object) {
        const std::lock_guard lock(object->mutex);
        object->exit_code = exitCode;
    }
    pthread_exit(nullptr);
}
