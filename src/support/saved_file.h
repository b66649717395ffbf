#pragma once

#include <cstddef>

// Writing over a user's file without ever losing what stood in it.

enum class SavedFileResult {
    Saved,
    CannotOpen,     // nothing was touched: no such folder, read-only, in use, too large, not readable
    CannotWrite,    // the old content is back, or the new file is gone again
    CannotRestore,  // and the old content could not be put back either
};

// Makes `size` bytes the whole content of the file, which is created where there is none. The file is written
// over in place and cut last, so that the room of its old bytes stays its own: going back to them needs no
// new room on the disk. The path has at most 259 bytes, old and new content at most 2^31 - 1.
SavedFileResult SaveFileContent(const char* path, const char* bytes, size_t size);

// The same for callers to whom every failure is one. False: the file holds what it held before, or, after a
// second fault while going back, what could be put back of it.
bool ReplaceFileContent(const char* path, const char* bytes, size_t size);
