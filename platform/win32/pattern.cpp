#include "pattern.h"

#include "ascii_case.h"

bool FitsPattern(std::string_view name, std::string_view pattern) {
    size_t at = 0;
    size_t next = 0;
    // Where to go on when the last star has to take one more character.
    size_t starred = std::string_view::npos;
    size_t afterStar = 0;
    while (at < name.size()) {
        if (next < pattern.size() && pattern[next] == '*') {
            starred = at;
            afterStar = ++next;
        } else if (next < pattern.size() &&
                   (pattern[next] == '?' || AsciiLower(pattern[next]) == AsciiLower(name[at]))) {
            ++at;
            ++next;
        } else if (starred != std::string_view::npos) {
            at = ++starred;
            next = afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(".*", next) == std::string_view::npos;
}
