#pragma once

// The stand-in for the Win32 API over POSIX: published names, types, values and layouts of what is called
// here. A declaration without a remark behaves as published; a remark "Differs:" says where it does not.
// Calls fail as published, bad handles and null pointers included: nothing crashes.

#include <windef.h>

#include <fileapi.h>
#include <winbase.h>
#include <winerror.h>
#include <wingdi.h>
#include <winuser.h>
