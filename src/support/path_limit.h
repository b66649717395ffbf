#pragma once

#include <cstddef>
#include <cstring>

// Paths live in buffers of this size, terminator included.
inline constexpr size_t kPathSize = 260;
// Longest name that an object takes over when it is made.
inline constexpr size_t kGivenNameLimit = 256;

// False for null and for a name that is too long: such a name is refused, never cut into another one.
inline bool IsUsablePath(const char* path) {
    return path && std::memchr(path, 0, kPathSize);
}

// file_t opens the file of a name cut to this length; a longer one must not reach it, or it would become
// another.
inline constexpr size_t kOpenNameLimit = 255;
inline bool IsOpenablePath(const char* path) {
    return path && std::memchr(path, 0, kOpenNameLimit + 1);
}

// Into a zero-filled buffer. A null name counts as empty.
inline void CopyPath(char* buffer, const char* path, size_t limit) {
    while (path && *path && limit-- > 0)
        *buffer++ = *path++;
}
