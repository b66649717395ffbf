#pragma once

#include <windef.h>

// Closes the handle of an event or a thread; false when it is none.
bool CloseWaitable(HANDLE handle);
