#include "controls/number_field_text.h"

#include <cstring>

bool PassesNumberFilter(char ch, bool has_point, bool control_held) {
    if (control_held || static_cast<signed char>(ch) < ' ') return true;
    if (ch == '.' || ch == ',') return !has_point;
    return (ch >= '0' && ch <= '9') || ch == '-';
}

void UsePointForComma(char* text) {
    if (char* const comma = std::strchr(text, ',')) *comma = '.';
}

bool HasPoint(const char* text) {
    return std::strchr(text, '.') != nullptr;
}
