#pragma once

#include "afx_base.h"

// Shows a message box, titled with AfxGetAppName, and gives the id of the button. The help context is not
// used.
int AfxMessageBox(LPCSTR text, UINT type = MB_OK, UINT helpContext = 0);

// The name of the file that holds this code, library or program, without folder and extension.
LPCSTR AfxGetAppName();
