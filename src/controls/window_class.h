#pragma once

#include <afxwin.h>

// Registers a window class of this module under `name`, unless the module has it already: redrawn on every
// change of size, with double clicks and the arrow cursor. Throws CResourceException when it is refused.
void RegisterControlClass(const char* name, WNDPROC procedure, HBRUSH background);
