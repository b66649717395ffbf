#include "support/number_text.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace {

bool IsSpace(char ch) {
    return ch == ' ' || (ch >= '\t' && ch <= '\r');
}
bool IsDecimalDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

// Steps over white space and one sign; true for a minus.
bool TakeSign(const char*& text, const char* end) {
    while (text < end && IsSpace(*text))
        ++text;
    if (text == end || (*text != '-' && *text != '+')) return false;
    return *text++ == '-';
}

// The size of a number whose exponent is out of range shows in its digits: an exponent above zero with a
// digit other than 0 is too large, everything else is too small.
double OutOfRange(const char* text, const char* end) {
    long long exponent = 0;
    bool any_digit = false;
    bool point = false;
    bool negative = false;
    for (; text < end && *text != 'e' && *text != 'E'; ++text) {
        if (*text == '.') {
            point = true;
            continue;
        }
        any_digit = any_digit || *text != '0';
        if (any_digit && !point) ++exponent;
        if (!any_digit && point) --exponent;
    }
    if (text < end) ++text;
    if (text < end && (*text == '-' || *text == '+')) negative = *text++ == '-';
    long long written = 0;
    for (; text < end && written < 1'000'000'000; ++text)
        written = written * 10 + (*text - '0');
    exponent += negative ? -written : written;
    return any_digit && exponent > 0 ? std::numeric_limits<double>::max() : 0.0;
}

}  // namespace

int ParseInt(const char* text, size_t length) {
    const char* end = text + length;
    const bool negative = TakeSign(text, end);
    constexpr int64_t kLimit = int64_t{1} << 31;
    int64_t value = 0;
    for (; text < end && IsDecimalDigit(*text) && value <= kLimit; ++text)
        value = value * 10 + (*text - '0');
    if (negative) return value >= kLimit ? std::numeric_limits<int>::min() : static_cast<int>(-value);
    return value >= kLimit ? std::numeric_limits<int>::max() : static_cast<int>(value);
}

double ParseDouble(const char* text, size_t length) {
    const char* end = text + length;
    const bool negative = TakeSign(text, end);
    const bool begins = text < end && (IsDecimalDigit(*text) || *text == '.');
    if (!begins) return 0.0;
    double value = 0.0;
    const auto result = std::from_chars(text, end, value);
    if (result.ec == std::errc::result_out_of_range) {
        value = OutOfRange(text, result.ptr);
    } else if (result.ec != std::errc()) {
        return 0.0;
    }
    return negative ? -value : value;
}
