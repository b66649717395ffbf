#include "controls/number_value.h"

#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

// With the wider registers of the old floating point unit a halfway value could round the other way.
static_assert(FLT_EVAL_METHOD == 0, "float and double must be computed in their own precision");

namespace {

bool IsDecimalDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

// Keeps the low 32 bits, as a signed number.
int Wrap(uint32_t bits) {
    return static_cast<int>(bits);
}

// Steps through a field's text; beyond its end it sees NULs.
class TextCursor {
public:
    TextCursor(const char* text, int length) : text_(text), length_(length) {}

    bool AtEnd() const { return at_ >= length_; }
    char Peek() const { return AtEnd() ? '\0' : text_[at_]; }
    bool SeesDigit() const { return IsDecimalDigit(Peek()); }
    void Skip() { ++at_; }
    uint32_t TakeDigit() { return static_cast<uint32_t>(text_[at_++] - '0'); }

    bool Take(char ch) {
        if (Peek() != ch) return false;
        ++at_;
        return true;
    }

    // The digits from here on as a number that wraps at 32 bits.
    uint32_t TakeDigits() {
        uint32_t number = 0;
        while (SeesDigit())
            number = number * 10 + TakeDigit();
        return number;
    }

    // Two or more characters are left.
    bool HasRest() const { return at_ < length_ - 1; }

private:
    const char* text_;
    int length_;
    int at_ = 0;
};

}  // namespace

double Round3(double value) {
    if (std::isnan(value)) return 0.0;
    if (std::isinf(value)) return value;
    const double whole = std::trunc(value);
    const double frac = (value - whole) * 1000.0;
    const int thousandths = static_cast<int>(frac > 0.0 ? frac + 0.5 : frac - 0.5);
    return whole + thousandths * 0.001;
}

int TruncateToInt(double value) {
    if (std::isnan(value)) return 0;
    if (value >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
    if (value <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

float NarrowToFloat(double value) {
    if (std::isnan(value)) return 0.0f;
    if (value >= std::numeric_limits<float>::max()) return std::numeric_limits<float>::max();
    if (value <= std::numeric_limits<float>::lowest()) return std::numeric_limits<float>::lowest();
    return static_cast<float>(value);
}

bool NumberValue::SetText(char* text, bool final) {
    if (*text == '\0') {
        if (!final) return true;
        FormatValue(text);
        return false;
    }
    const bool clean = ParseText(text, static_cast<int>(std::strlen(text)));
    if (!Clamp()) return clean;
    FormatValue(text);
    return false;
}

void IntNumber::SetNumber(int number) {
    value_ = number;
    Remember();
}

void IntNumber::Step(int n) {
    value_ = Wrap(static_cast<uint32_t>(value_) + static_cast<uint32_t>(n) * static_cast<uint32_t>(step_));
    Clamp();
}

bool IntNumber::Clamp() {
    if (minimum_ == maximum_) return false;
    const int before = value_;
    if (value_ < minimum_) value_ = minimum_;
    if (value_ > maximum_) value_ = maximum_;
    return value_ != before;
}

void IntNumber::FormatValue(char* dest) const {
    *std::to_chars(dest, dest + kTextSize - 1, value_).ptr = '\0';
}

bool IntNumber::ParseText(const char* text, int length) {
    TextCursor cursor(text, length);
    bool clean = true;
    for (; !cursor.AtEnd() && cursor.Peek() != '-' && !cursor.SeesDigit(); cursor.Skip())
        clean = false;
    const bool negative = cursor.Take('-');
    const uint32_t number = cursor.TakeDigits();
    value_ = Wrap(negative ? 0u - number : number);
    return clean && !cursor.HasRest();
}

void FloatNumber::SetNumber(float number) {
    value_ = NarrowToFloat(Round3(number));
    Remember();
}

// In double precision up to the end, so that 0.25 and a step of 0.1 give 0.35 and not its float neighbour.
void FloatNumber::Step(int n) {
    const double moved = static_cast<double>(value_) + n * static_cast<double>(step_);
    value_ = NarrowToFloat(Round3(Clamped(moved)));
}

double FloatNumber::Clamped(double value) const {
    if (!(minimum_ < maximum_)) return value;
    if (value < minimum_) return minimum_;
    if (value > maximum_) return maximum_;
    return value;
}

bool FloatNumber::Clamp() {
    const float before = value_;
    value_ = NarrowToFloat(Clamped(value_));
    return value_ != before;
}

void FloatNumber::FormatValue(char* dest) const {
    constexpr int kDecimals = 3;
    char* end =
        std::to_chars(dest, dest + kTextSize - 1, Round3(value_), std::chars_format::fixed, kDecimals).ptr;
    const char* const first_decimal = end - kDecimals;
    while (end - 1 > first_decimal && end[-1] == '0')
        --end;
    *end = '\0';
}

bool FloatNumber::ParseText(const char* text, int length) {
    constexpr uint32_t kLargestScale = 10'000'000;  // decimals behind the seventh are not read
    TextCursor cursor(text, length);
    bool clean = true;
    for (; !cursor.AtEnd() && cursor.Peek() != '-' && cursor.Peek() != '.' && !cursor.SeesDigit();
         cursor.Skip()) {
        clean = false;
    }
    const double sign = cursor.Take('-') ? -1.0 : 1.0;
    const uint32_t whole = cursor.TakeDigits();
    uint32_t fraction = 0;
    uint32_t scale = 1;
    if (cursor.Take('.')) {
        for (; scale < kLargestScale && cursor.SeesDigit(); scale *= 10)
            fraction = fraction * 10 + cursor.TakeDigit();
    }
    value_ = static_cast<float>((static_cast<double>(fraction) / scale + whole) * sign);
    return clean && !cursor.HasRest();
}
