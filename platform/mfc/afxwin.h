#pragma once

// The class framework's header of windows, dialogs, drawing and the application. As afx.h it holds what is
// called, nothing more.

#include "afx.h"

#include "afx_controls.h"
#include "afx_dialog.h"
#include "afx_gdi.h"
#include "afx_message_box.h"
#include "afx_message_map.h"
#include "afx_module.h"
#include "afx_thread.h"
#include "afx_window.h"
