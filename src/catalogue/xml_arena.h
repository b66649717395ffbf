#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// Memory for many small records and strings that are given back together. What it hands out stays in place
// for the arena's life. Filling fresh memory is what a large tree costs most, so nothing is rounded up.
class XmlArena {
public:
    XmlArena() = default;
    XmlArena(const XmlArena&) = delete;
    XmlArena& operator=(const XmlArena&) = delete;

    template <class Record, class... Values>
    Record* New(Values&&... values) {
        static_assert(std::is_trivially_destructible_v<Record>, "no destructor runs when the arena goes");
        static_assert(sizeof(Record) % alignof(void*) == 0, "the next record is aligned as well");
        return new (Allocate(sizeof(Record))) Record{std::forward<Values>(values)...};
    }

    // A copy of the records; null for none.
    template <class Record>
    Record* CopyOf(const Record* records, size_t count) {
        static_assert(std::is_trivially_copyable_v<Record> && sizeof(Record) % alignof(void*) == 0);
        if (count == 0) return nullptr;
        return static_cast<Record*>(
            std::memcpy(Allocate(count * sizeof(Record)), records, count * sizeof(Record)));
    }

    // A copy of the text with a 0 behind it.
    const char* CopyOf(std::string_view text) {
        char* copy = AllocateText(text.size() + 1);
        std::memcpy(copy, text.data(), text.size());
        copy[text.size()] = '\0';
        return copy;
    }

private:
    static constexpr size_t kFirstBlock = 1024;
    static constexpr size_t kLargestBlock = size_t{16} << 20;

    size_t Left() const { return static_cast<size_t>(end_ - next_); }
    // A piece that would leave much of a block unused gets a block of its own.
    bool IsLarge(size_t size) const { return size > blockSize_ / 4; }

    // Records lie at the front of a block, one behind the other, and texts at its back.
    void* Allocate(size_t size) {
        if (size > Left()) {
            if (IsLarge(size)) return AddOwnBlock(size);
            AddBlock();
        }
        return std::exchange(next_, next_ + size);
    }
    char* AllocateText(size_t size) {
        if (size > Left()) {
            if (IsLarge(size)) return reinterpret_cast<char*>(AddOwnBlock(size));
            AddBlock();
        }
        return reinterpret_cast<char*>(end_ -= size);
    }

    std::byte* AddOwnBlock(size_t size);
    void AddBlock();

    std::byte* next_ = nullptr;  // free memory of the newest common block
    std::byte* end_ = nullptr;
    size_t blockSize_ = kFirstBlock;
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
};
