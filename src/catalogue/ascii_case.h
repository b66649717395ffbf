#pragma once

// Case is that of the ASCII letters; all other bytes stand for themselves.
constexpr char FoldCase(char ch) {
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}
