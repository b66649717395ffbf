#pragma once

#include <windef.h>

#include <memory>
#include <mutex>
#include <utility>
#include <vector>

// Handles for objects of one kind. A handle is a number, so that any value can be asked for safely; the
// numbers of two tables do not meet. Whoever works with an object keeps it alive, even if another thread
// closes it.
template <typename Object>
class HandleTable {
public:
    explicit HandleTable(UINT_PTR first) : first_(first) {}

    HANDLE Add(std::shared_ptr<Object> object) {
        const std::lock_guard lock(mutex_);
        size_t slot = 0;
        while (slot < objects_.size() && objects_[slot])
            ++slot;
        if (slot == objects_.size()) objects_.emplace_back();
        objects_[slot] = std::move(object);
        return reinterpret_cast<HANDLE>(first_ + slot * kStep);
    }
    // Null for a handle that is not open.
    std::shared_ptr<Object> Get(HANDLE handle) {
        const std::lock_guard lock(mutex_);
        const auto* slot = Find(handle);
        return slot ? *slot : nullptr;
    }
    std::shared_ptr<Object> Remove(HANDLE handle) {
        const std::lock_guard lock(mutex_);
        auto* slot = Find(handle);
        return slot ? std::exchange(*slot, nullptr) : nullptr;
    }

private:
    static constexpr UINT_PTR kStep = 4;

    std::shared_ptr<Object>* Find(HANDLE handle) {
        const UINT_PTR offset = reinterpret_cast<UINT_PTR>(handle) - first_;
        const bool known = offset % kStep == 0 && offset / kStep < objects_.size();
        return known ? &objects_[offset / kStep] : nullptr;
    }

    std::mutex mutex_;
    std::vector<std::shared_ptr<Object>> objects_;
    const UINT_PTR first_;
};

inline constexpr UINT_PTR kFirstFileHandle = 0x1000'0000;
inline constexpr UINT_PTR kFirstSearchHandle = 0x2000'0000;
inline constexpr UINT_PTR kFirstWaitableHandle = 0x3000'0000;
