#pragma once

#include <time.h>
#include <windef.h>

// Times outside of what the other side can hold become the nearest one that it can.
FILETIME ToFileTime(const timespec& time);
timespec ToTimespec(const FILETIME& time);
