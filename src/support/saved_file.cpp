#include "support/saved_file.h"

#include <afx.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "support/path_limit.h"

namespace {

constexpr size_t kLargestFile = 0x7fffffff;
constexpr size_t kWriteChunk = size_t{1} << 20;
constexpr size_t kBlock = 4096;

struct Content {
    std::unique_ptr<char[]> bytes;
    size_t size = 0;
};

struct Range {
    size_t from = 0;
    size_t to = 0;
};

bool SeekTo(HANDLE file, size_t position) {
    const DWORD low = SetFilePointer(file, static_cast<LONG>(position), nullptr, FILE_BEGIN);
    return low == static_cast<DWORD>(position);
}

bool CutAt(HANDLE file, size_t length) {
    return SeekTo(file, length) && SetEndOfFile(file);
}

// Reads the file from its start. The buffer is not zeroed first: it is as large as the file.
bool ReadContent(HANDLE file, Content& content) {
    DWORD high = 0;
    const DWORD low = GetFileSize(file, &high);
    if (high != 0 || low > kLargestFile) return false;
    content.bytes.reset(new (std::nothrow) char[low]);
    if (!content.bytes) return false;
    while (content.size < low) {
        DWORD got = 0;
        const DWORD wanted = low - static_cast<DWORD>(content.size);
        if (!ReadFile(file, content.bytes.get() + content.size, wanted, &got, nullptr) || got == 0)
            return false;
        content.size += got;
    }
    return true;
}

// Writes a range of `bytes` to the same place of the file. `touched` is then what may
// be overwritten, after a failure too.
bool WriteRange(HANDLE file, const char* bytes, Range range, Range& touched) {
    touched = {range.from, range.from};
    if (range.from == range.to) return true;
    if (!SeekTo(file, range.from)) return false;
    for (size_t next = range.from; next < range.to;) {
        const size_t chunk = std::min(range.to - next, kWriteChunk);
        touched.to = next + chunk;
        DWORD written = 0;
        const BOOL good = WriteFile(file, bytes + next, static_cast<DWORD>(chunk), &written, nullptr);
        if (!good || written == 0) return false;
        next += written;
    }
    return true;
}

// Where the first block begins that has to be written. The last one always is, so that the file gets the time
// of this save.
size_t FirstChangedBlock(const Content& old, const char* bytes, size_t size) {
    const size_t common = std::min(old.size, size);
    size_t same = 0;
    while (same + kBlock < common && std::memcmp(old.bytes.get() + same, bytes + same, kBlock) == 0)
        same += kBlock;
    return same;
}

// What needs new room on the disk goes first, while no old byte is touched, and the cut goes last.
// `overwritten` tells what of the old content is to be put back after a failure.
bool WriteOver(HANDLE file, const Content& old, const char* bytes, size_t size, Range& overwritten) {
    Range appended;
    if (size > old.size && !WriteRange(file, bytes, {old.size, size}, appended)) return false;
    const size_t first = FirstChangedBlock(old, bytes, size);
    if (!WriteRange(file, bytes, {first, std::min(old.size, size)}, overwritten)) return false;
    return size >= old.size || CutAt(file, size);
}

bool PutBack(HANDLE file, const Content& old, Range overwritten) {
    Range touched;
    const bool written = WriteRange(file, old.bytes.get(), overwritten, touched);
    return CutAt(file, old.size) && written;
}

// For a close that failed: what the file holds now is not known.
bool PutBackFromStart(const char* path, const Content& old) {
    const HANDLE file = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const bool restored = PutBack(file, old, {0, old.size});
    return CloseHandle(file) && restored;
}

SavedFileResult SaveOver(HANDLE file, const char* path, const char* bytes, size_t size) {
    Content old;
    if (!ReadContent(file, old)) {
        CloseHandle(file);
        return SavedFileResult::CannotOpen;
    }
    Range overwritten;
    const bool written = WriteOver(file, old, bytes, size, overwritten);
    const bool restored = !written && PutBack(file, old, overwritten);
    const bool closed = CloseHandle(file);
    if (written && closed) return SavedFileResult::Saved;
    if (restored && closed) return SavedFileResult::CannotWrite;
    return PutBackFromStart(path, old) ? SavedFileResult::CannotWrite : SavedFileResult::CannotRestore;
}

SavedFileResult SaveNew(HANDLE file, const char* path, const char* bytes, size_t size) {
    Range touched;
    const bool written = WriteRange(file, bytes, {0, size}, touched);
    if (CloseHandle(file) && written) return SavedFileResult::Saved;
    return DeleteFileA(path) ? SavedFileResult::CannotWrite : SavedFileResult::CannotRestore;
}

}  // namespace

SavedFileResult SaveFileContent(const char* path, const char* bytes, size_t size) {
    if (!IsUsablePath(path) || size > kLargestFile) return SavedFileResult::CannotOpen;
    const HANDLE file = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return SavedFileResult::CannotOpen;
    if (GetLastError() == ERROR_ALREADY_EXISTS) return SaveOver(file, path, bytes, size);
    return SaveNew(file, path, bytes, size);
}

bool ReplaceFileContent(const char* path, const char* bytes, size_t size) {
    return SaveFileContent(path, bytes, size) == SavedFileResult::Saved;
}
