#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cassert>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#ifndef _WIN32
#include <crt_text.h>  // what the Windows run-time library adds to the three headers above
#endif

// Marks what the library exports. There is no importing form: tests and tools link the sources themselves,
// and calls into the library work without it.
#ifdef _WIN32
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __attribute__((visibility("default")))
#endif

#define ASSERT(condition) assert(condition)

// For members that format as printf does; positions count the object itself.
#ifdef __MINGW_PRINTF_FORMAT
#define AFX_PRINTF_FORMAT(text, first) __attribute__((format(__MINGW_PRINTF_FORMAT, text, first)))
#else
#define AFX_PRINTF_FORMAT(text, first) __attribute__((format(printf, text, first)))
#endif
