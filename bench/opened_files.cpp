#include "opened_files.h"

#include <atomic>
#include <cstdio>

namespace {
std::atomic<unsigned long> opened;
}

unsigned long OpenedFiles() {
    return opened;
}

// The linker sends the calls of _fsopen here and calls the true one __real_.
extern "C" {
FILE* __real__fsopen(const char* name, const char* mode, int shareMode);
FILE* __wrap__fsopen(const char* name, const char* mode, int shareMode);

FILE* __wrap__fsopen(const char* name, const char* mode, int shareMode) {
    ++opened;
    return __real__fsopen(name, mode, shareMode);
}
}
