#pragma once

#include <windef.h>

// Where the drives of the stand-in lie. Z: is the root of the file system from the start, as Wine has it. The
// current directory is told on the drive whose folder leads closest to it.

// Lets a drive begin at an existing folder of the file system, for the whole process. Null takes the drive
// away. False for anything but a letter and a folder.
WINBASEAPI bool MapDrive(char letter, const char* folder);
