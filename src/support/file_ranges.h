#pragma once

// Sizes and positions as the file objects take them: signed, from callers that may be wrong.

// Bytes of `count` items of `size` bytes; 0 when there are none or the product would pass 2^31 - 1.
inline long ByteCount(long size, long count) {
    constexpr long kLimit = 0x7fffffff;
    if (size <= 0 || count <= 0 || size > kLimit / count) return 0;
    return size * count;
}

// The position that a seek within 0 to `len` leads to, or -1 when it is refused.
inline long SeekTarget(long pos, long len, long offset, int whence) {
    switch (whence) {
        case 0: return offset >= 0 && offset <= len ? offset : -1;
        case 1: return offset >= -pos && offset <= len - pos ? pos + offset : -1;
        case 2: return offset >= -len && offset <= 0 ? len + offset : -1;
        default: return -1;
    }
}
