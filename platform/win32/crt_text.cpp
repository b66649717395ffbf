#include <crt_text.h>

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "ascii_case.h"

namespace {

constexpr int kNotCompared = INT_MAX;

// The text up to its terminator, but no further than `count`.
std::string_view Start(const char* text, size_t count) {
    return {text, strnlen(text, count)};
}

}  // namespace

int _stricmp(const char* a, const char* b) {
    return _strnicmp(a, b, SIZE_MAX);
}

int _strnicmp(const char* a, const char* b, size_t count) {
    if (a && b) return CompareAsciiCaseless(Start(a, count), Start(b, count));
    errno = EINVAL;
    return kNotCompared;
}

char* _strlwr(char* text) {
    if (!text) errno = EINVAL;
    for (char* at = text; at && *at; ++at)
        *at = AsciiLower(*at);
    return text;
}
