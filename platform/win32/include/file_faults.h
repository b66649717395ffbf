#pragma once

#include <cstdint>
#include <limits>

#include <windef.h>

// Lets file operations of the stand-in fail, for tests. It counts over all handles of the process.
struct FileFaults {
    // WriteFile goes wrong at this call, counted from 1, which writes nothing; 0 stands for no such call.
    unsigned failingWrite = 0;
    // Or, if that comes first, at the call that would write more than this number of bytes in all. It writes
    // what fits. Either way the error is ERROR_DISK_FULL.
    uint64_t goodBytes = std::numeric_limits<uint64_t>::max();
    // How many calls of WriteFile fail in a row, the first one included; the others writing
    // nothing; then all is good again for ever.
    unsigned failures = std::numeric_limits<unsigned>::max();
    // The next CloseHandle of a file closes it, but tells ERROR_DISK_FULL.
    bool closeFails = false;
};

// Counting starts anew. A default object ends all faults.
WINBASEAPI void SetFileFaults(const FileFaults& faults);
