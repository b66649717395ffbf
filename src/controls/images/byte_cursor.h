#pragma once

#include <cstddef>
#include <cstdint>

// A position in the bytes of somebody else's file. Every step is tested against the end first: what is not
// wholly there is refused, and the position stays.
class ByteCursor {
public:
    // Does not own the bytes, which may be null when the size is 0.
    ByteCursor(const unsigned char* bytes, size_t size)
        : begin_(bytes), end_(bytes + size), position_(bytes) {}

    size_t Size() const { return static_cast<size_t>(end_ - begin_); }
    size_t Left() const { return static_cast<size_t>(end_ - position_); }

    // The byte at the position; good for Left() bytes.
    const unsigned char* Position() const { return position_; }

    // To `offset` bytes behind the begin, the end itself included.
    bool Seek(size_t offset) {
        if (offset > Size()) return false;
        position_ = begin_ + offset;
        return true;
    }

    // Steps over `size` bytes and gives them; null when so many are not left.
    const unsigned char* Take(size_t size) {
        if (size > Left()) return nullptr;
        const unsigned char* const taken = position_;
        position_ += size;
        return taken;
    }

private:
    const unsigned char* begin_;
    const unsigned char* end_;
    const unsigned char* position_;
};

inline uint16_t LittleEndian16(const unsigned char* bytes) {
    return static_cast<uint16_t>(bytes[0] | bytes[1] << 8);
}

inline uint32_t LittleEndian32(const unsigned char* bytes) {
    return LittleEndian16(bytes) | static_cast<uint32_t>(LittleEndian16(bytes + 2)) << 16;
}
