#pragma once

#include <cstring>
#include <string>

#include "shell/host_interface.h"

// Puts a text into the caller's buffer. 0, and nothing is written, when it does not fit with its terminator.
inline HostWord Answer(const std::string& text, char* buffer, HostWord size) {
    if (!buffer || size < 0 || text.size() >= static_cast<size_t>(size)) return 0;
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return 1;
}

// For callers that ask twice: without a buffer only the size comes back, terminator included.
inline HostWord AnswerSizeOrText(const std::string& text, char* buffer, HostWord& size) {
    if (buffer) return Answer(text, buffer, size);
    size = static_cast<HostWord>(text.size()) + 1;
    return 1;
}
