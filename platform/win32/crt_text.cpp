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

struct Part {
    char* buffer;
    size_t size;
    std::string_view text;

    bool Fits() const { return !buffer || text.size() < size; }
    void Put(std::string_view put) const {
        if (!buffer) return;
        put.copy(buffer, put.size());
        buffer[put.size()] = 0;
    }
};

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

void _splitpath(const char* path, char* drive, char* dir, char* name, char* ext) {
    std::string_view left = path ? path : "";
    const auto take = [&left](size_t length) {
        const std::string_view taken = left.substr(0, length);
        left.remove_prefix(taken.size());
        return taken;
    };
    const std::string_view drivePart = take(left.size() > 1 && left[1] == ':' ? 2 : 0);
    const std::string_view dirPart = take(left.find_last_of("\\/") + 1);
    const std::string_view namePart = take(left.rfind('.'));
    const Part parts[] = {{drive, _MAX_DRIVE, drivePart},
                          {dir, _MAX_DIR, dirPart},
                          {name, _MAX_FNAME, namePart},
                          {ext, _MAX_EXT, left}};
    bool fit = true;
    for (const Part& part : parts)
        fit = fit && part.Fits();
    for (const Part& part : parts)
        part.Put(fit ? part.text : std::string_view());
    if (!fit) errno = ERANGE;
}
