#include <memory>
#include <new>

#include "afx_thread_state.h"

namespace {

void WINAPI Release(void* data) {
    delete static_cast<AfxThreadData*>(data);
}

// Fiber-local storage tells when a thread ends. The compiler's thread_local would do so as well, but may give
// the object's memory back before it runs the destructor.
class ThreadSlot {
public:
    ThreadSlot() : index_(FlsAlloc(&Release)) {
        if (index_ == FLS_OUT_OF_INDEXES) throw std::bad_alloc();
    }
    ThreadSlot(const ThreadSlot&) = delete;
    ThreadSlot& operator=(const ThreadSlot&) = delete;
    // The module goes: so does what its threads still have.
    ~ThreadSlot() { FlsFree(index_); }

    AfxThreadData& Data() {
        if (void* const data = FlsGetValue(index_)) return *static_cast<AfxThreadData*>(data);
        auto data = std::make_unique<AfxThreadData>();
        if (!FlsSetValue(index_, data.get())) throw std::bad_alloc();
        return *data.release();
    }

private:
    DWORD index_;
};

}  // namespace

AfxThreadData& AfxThreadState() {
    static ThreadSlot slot;
    return slot.Data();
}
