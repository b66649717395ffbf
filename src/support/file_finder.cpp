#include <algorithm>
#include <cstring>
#include <string_view>

#include "support/file_names.h"

namespace {

constexpr int kBothExact = FF_EXT_EXACT | FF_NAME_EXACT;
constexpr size_t kPartSize = 256;  // terminator included
using Part = char[kPartSize];

bool StoreLowered(std::string_view text, Part& part) {
    if (text.size() >= kPartSize) return false;
    text.copy(part, text.size());
    part[text.size()] = 0;
    _strlwr(part);
    return true;
}

// As _splitpath does it, but a part that does not fit its buffer is refused: drive and directory go, and the
// extension begins at the last dot.
bool SplitLowered(std::string_view path, Part& name, Part& ext) {
    if (path.size() > 1 && path[1] == ':') path.remove_prefix(2);
    const size_t separator = path.find_last_of("\\/");
    if (separator != std::string_view::npos) path.remove_prefix(separator + 1);
    const size_t dot = std::min(path.rfind('.'), path.size());
    return StoreLowered(path.substr(0, dot), name) && StoreLowered(path.substr(dot), ext);
}

int WildcardFlags(const char* part, int exact, int star, int question) {
    const int found = (std::strchr(part, '*') ? star : 0) | (std::strchr(part, '?') ? question : 0);
    return found ? found : exact;
}

int PatternFlags(const char* pattern, const char* name, const char* ext) {
    if (!std::strpbrk(pattern, "*?")) return kBothExact;
    const bool anyName = std::strcmp(name, "*") == 0;
    const bool anyExt = std::strcmp(ext, ".*") == 0;
    if (anyName && anyExt) return FF_ALL;
    const int nameFlags =
        anyName ? FF_NAME_ANY : WildcardFlags(name, FF_NAME_EXACT, FF_NAME_STAR, FF_NAME_QUESTION);
    if (anyExt) return nameFlags | FF_EXT_ANY;
    if (!*ext) return nameFlags | FF_EXT_NONE;
    return nameFlags | WildcardFlags(ext, FF_EXT_EXACT, FF_EXT_STAR, FF_EXT_QUESTION);
}

}  // namespace

CFileFinder::CFileFinder() {
    zero();
}

void CFileFinder::zero() {
    flags = 0;
    name[0] = 0;
    ext[0] = 0;
}

int CFileFinder::OpenFinder(const char* pattern) {
    zero();
    if (!pattern || !*pattern || !SplitLowered(pattern, name, ext)) {
        zero();
        return 0;
    }
    flags = PatternFlags(pattern, name, ext);
    if ((flags & kBothExact) != kBothExact) return 1;
    // Without wildcards in its file part, which a directory with wildcards may stand before, the pattern is
    // one name.
    const size_t nameLength = std::strlen(name);
    const size_t extLength = std::strlen(ext);
    if (nameLength + extLength >= kPartSize) {
        zero();
        return 0;
    }
    std::memcpy(name + nameLength, ext, extLength + 1);
    return 1;
}

int CFileFinder::TestName(const char* fileName) {
    if (flags == 0) return 0;
    if (flags & FF_ALL) return 1;
    if (!fileName) fileName = "";
    if ((flags & kBothExact) == kBothExact) return _stricmp(fileName, name) == 0;
    Part testedName;
    Part testedExt;
    if (!SplitLowered(fileName, testedName, testedExt)) return 0;
    if ((flags & FF_EXT_NONE) && *testedExt) return 0;
    if ((flags & FF_EXT_EXACT) && std::strcmp(testedExt, ext) != 0) return 0;
    if ((flags & FF_NAME_EXACT) && std::strcmp(testedName, name) != 0) return 0;
    if (!(flags & (FF_NAME_ANY | FF_NAME_EXACT)) && !stern_test(testedName, name, nullptr)) return 0;
    if (flags & (FF_EXT_ANY | FF_EXT_EXACT | FF_EXT_NONE)) return 1;
    return stern_test(testedExt, ext, nullptr);
}

// 0 for a match, with ? for any one character. Whole texts are compared unless both have `count` characters.
int CFileFinder::strxcmp(const char* pattern, const char* text, int count) const {
    if (!pattern || !text) return pattern == text ? 0 : 1;
    std::string_view wanted = pattern;
    std::string_view found = text;
    if (count >= 0 && std::min(wanted.size(), found.size()) >= static_cast<size_t>(count)) {
        wanted = wanted.substr(0, static_cast<size_t>(count));
        found = found.substr(0, static_cast<size_t>(count));
    }
    const auto matches = [](char want, char have) { return want == '?' || want == have; };
    return std::equal(wanted.begin(), wanted.end(), found.begin(), found.end(), matches) ? 0 : 1;
}

char* CFileFinder::strxstr(const char* text, const char* pattern, int count) const {
    const size_t wanted = count < 0 ? std::strlen(pattern) : static_cast<size_t>(count);
    const size_t length = std::strlen(text);
    if (wanted == 0 || wanted > length) return nullptr;
    for (const char* last = text + (length - wanted); text <= last; ++text) {
        if (strxcmp(pattern, text, static_cast<int>(wanted)) == 0) return const_cast<char*>(text);
    }
    return nullptr;
}

int CFileFinder::stern_test(const char* text, const char* pattern, char*) const {
    if (std::strcmp(pattern, "*") == 0) return 1;
    if (!*text) return 0;
    if (!std::strchr(pattern, '*')) return strxcmp(pattern, text, -1) == 0;
    for (pattern += std::strspn(pattern, "*"); *pattern; pattern += std::strspn(pattern, "*")) {
        const size_t segment = std::strcspn(pattern, "*");
        const char* hit = strxstr(text, pattern, static_cast<int>(segment));
        if (!hit) return 0;
        text = hit + segment;
        pattern += segment;
    }
    return 1;
}

static_assert(sizeof(CFileFinder) == sizeof(int) + 2 * kPartSize);
