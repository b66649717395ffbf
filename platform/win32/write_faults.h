#pragma once

#include <windef.h>

// The side of file_faults.h that the calls ask.

struct WriteAllowance {
    DWORD bytes;  // how many of them may be written
    bool fails;   // what the call is to tell afterwards
};

// Counts one write of `size` bytes.
WriteAllowance AskToWrite(DWORD size);
// Counts one close.
bool CloseIsToFail();
