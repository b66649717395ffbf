#include <pthread.h>

#include <map>
#include <mutex>
#include <new>

#include "afx_thread_state.h"

namespace {

// The compiler's thread_local would keep a library loaded for as long as one of the threads that used it
// lives.
class ThreadSlot {
public:
    ThreadSlot() {
        if (pthread_key_create(&key_, &Release) != 0) throw std::bad_alloc();
    }
    ThreadSlot(const ThreadSlot&) = delete;
    ThreadSlot& operator=(const ThreadSlot&) = delete;
    // The module goes: so does what its threads still have.
    ~ThreadSlot() { pthread_key_delete(key_); }

    AfxThreadData& Data() {
        if (void* const data = pthread_getspecific(key_)) return *static_cast<AfxThreadData*>(data);
        auto data = std::make_unique<AfxThreadData>();
        AfxThreadData* const kept = data.get();
        if (pthread_setspecific(key_, kept) != 0) throw std::bad_alloc();
        const std::lock_guard lock(mutex_);
        all_[kept] = std::move(data);
        return *kept;
    }

private:
    static void Release(void* data);

    pthread_key_t key_ = 0;
    std::mutex mutex_;
    std::map<void*, std::unique_ptr<AfxThreadData>> all_;
};

ThreadSlot& TheSlot() {
    static ThreadSlot slot;
    return slot;
}

void ThreadSlot::Release(void* data) {
    std::unique_ptr<AfxThreadData> gone;
    const std::lock_guard lock(TheSlot().mutex_);
    const auto found = TheSlot().all_.find(data);
    gone = std::move(found->second);
    TheSlot().all_.erase(found);
}

}  // namespace

AfxThreadData& AfxThreadState() {
    return TheSlot().Data();
}
