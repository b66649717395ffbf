#pragma once

#include <string_view>

// Case is a matter of the ASCII letters only.

constexpr char AsciiLower(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + ('a' - 'A')) : ch;
}

// Below 0, 0 or above 0, by the small letters' values as unsigned numbers.
constexpr int CompareAsciiCaseless(std::string_view a, std::string_view b) {
    for (size_t i = 0; i < a.size() && i < b.size(); ++i) {
        const int difference =
            static_cast<unsigned char>(AsciiLower(a[i])) - static_cast<unsigned char>(AsciiLower(b[i]));
        if (difference != 0) return difference;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}
