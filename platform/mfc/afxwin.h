#pragma once

// The class framework's header of windows and the application. As afx.h it holds what is called, nothing
// more.

#include "afx.h"
#include "afx_message_box.h"
