#pragma once

// The class framework's base header: strings, collections, files and the platform's types. It is written from
// the published interface and holds what is called, nothing more; sources that compile here compile against
// the real one.

#include "afx_base.h"
#include "afx_exceptions.h"
#include "afx_ptr_array.h"
#include "afx_stdio_file.h"
#include "afx_string.h"
#include "afx_string_array.h"
