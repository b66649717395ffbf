#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

// Finds the first entry of a name in a list that only grows. It keeps the places of the entries, not the
// entries: the list says by `nameAt`, a function from a place to a name, what stands where. Equal names are
// those of equal bytes.
class NameIndex {
public:
    static constexpr uint32_t kNotFound = UINT32_MAX;

    // Takes the entries up to `count` that are not yet in the index.
    template <class NameAt>
    void Extend(size_t count, NameAt nameAt) {
        Reserve(count);
        for (; known_ < count; ++known_) {
            const auto place = static_cast<uint32_t>(known_);
            const std::string_view name = nameAt(place);
            const uint32_t hash = Hash(name);
            Slot& slot = slots_[SlotOf(name, hash, nameAt)];
            if (slot.place == kNotFound) slot = {hash, place};
        }
    }

    // The place of the first entry of this name, or kNotFound.
    template <class NameAt>
    uint32_t Find(std::string_view name, NameAt nameAt) const {
        return slots_.empty() ? kNotFound : slots_[SlotOf(name, Hash(name), nameAt)].place;
    }

private:
    struct Slot {
        uint32_t hash = 0;
        uint32_t place = kNotFound;
    };

    static uint32_t Hash(std::string_view name) {
        const uint64_t hash = std::hash<std::string_view>()(name);
        return static_cast<uint32_t>(hash ^ hash >> 32);
    }

    // Where the name stands, or the free slot where it would.
    template <class NameAt>
    size_t SlotOf(std::string_view name, uint32_t hash, NameAt nameAt) const {
        const size_t last = slots_.size() - 1;
        size_t at = hash & last;
        while (slots_[at].place != kNotFound &&
               (slots_[at].hash != hash || nameAt(slots_[at].place) != name)) {
            at = (at + 1) & last;
        }
        return at;
    }

    // Room for so many entries in at most half of the slots, whose number is a power of two.
    void Reserve(size_t count) {
        size_t size = slots_.empty() ? 16 : slots_.size();
        while (size / 2 < count)
            size *= 2;
        if (size == slots_.size()) return;
        std::vector<Slot> before(size);
        before.swap(slots_);
        for (const Slot& slot : before) {
            if (slot.place == kNotFound) continue;
            size_t at = slot.hash & (size - 1);
            while (slots_[at].place != kNotFound)
                at = (at + 1) & (size - 1);
            slots_[at] = slot;
        }
    }

    size_t known_ = 0;
    std::vector<Slot> slots_;
};
