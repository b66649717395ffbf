#include "controls/number_value.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

#include "controls/number_field_text.h"

namespace {

constexpr float kLargestFloat = std::numeric_limits<float>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

std::string Format(const NumberValue& number) {
    char text[NumberValue::kTextSize];
    number.FormatValue(text);
    return text;
}

// What parsing gives: the value, and whether the text was clean.
template <typename Number>
auto Parse(const char* text) {
    Number number;
    const bool clean = number.ParseText(text, static_cast<int>(std::strlen(text)));
    return std::pair(number.Value(), clean);
}

// What a commit gives: the text then in the field's buffer, and whether the window's own text stays.
std::pair<std::string, bool> Commit(NumberValue& number, const char* typed, bool final = true) {
    char text[NumberValue::kTextSize];
    std::strcpy(text, typed);
    const bool stays = number.SetText(text, final);
    return {text, stays};
}

TEST(Rounding, Round3) {
    const std::pair<double, double> cases[] = {
        {1.2344, 1.234},
        {-1.2346, -1.235},
        {-0.9996, -1.0},
        {0.0625, 0.063},
        {-0.0625, -0.063},
        {1e300, 1e300},
        {3e9 + 0.2504, 3e9 + 0.25},
        {kNan, 0.0},
        {kInfinity, kInfinity},
    };
    for (const auto& [value, rounded] : cases)
        EXPECT_EQ(Round3(value), rounded) << value;
    EXPECT_FALSE(std::signbit(Round3(-0.0)));
}

TEST(Rounding, ConversionsSaturate) {
    const std::tuple<double, int, float> cases[] = {
        {-1.9, -1, -1.9f},
        {2147483648.0, INT_MAX, 2147483648.0f},
        {-2147483648.5, INT_MIN, -2147483648.0f},
        {1e300, INT_MAX, kLargestFloat},
        {-kInfinity, INT_MIN, -kLargestFloat},
        {kNan, 0, 0.0f},
    };
    for (const auto& [value, integer, real] : cases) {
        EXPECT_EQ(TruncateToInt(value), integer) << value;
        EXPECT_EQ(NarrowToFloat(value), real) << value;
    }
}

// A single character behind the number is no fault; what does not fit into 32 bits wraps.
TEST(IntNumber, ParsesTypedText) {
    const std::tuple<const char*, int, bool> cases[] = {
        {"0012", 12, true}, {"12x", 12, true}, {"12xy", 12, false}, {" 12", 12, false}, {"12-5", 12, false},
        {"-12", -12, true}, {"x", 0, false},   {"--", 0, true},     {"--5", 0, false},  {"", 0, true},
    };
    for (const auto& [text, value, clean] : cases)
        EXPECT_EQ(Parse<IntNumber>(text), std::pair(value, clean)) << text;
    EXPECT_EQ(Parse<IntNumber>("2147483648").first, INT_MIN);
    EXPECT_EQ(Parse<IntNumber>("-4294967297").first, -1);
    EXPECT_EQ(Parse<IntNumber>("99999999999999999999").first, 1661992959);
    IntNumber number;
    EXPECT_TRUE(number.ParseText("123456", 3));
    EXPECT_EQ(number.Value(), 123);
}

// Seven decimals are read, so that an eighth is the single character that is let through. Whole parts wrap.
TEST(FloatNumber, ParsesTypedText) {
    const std::tuple<const char*, float, bool> cases[] = {
        {"", 0, true},        {"-1.5", -1.5f, true},  {"-.5", -0.5f, true},   {"5.", 5, true},
        {".", 0, true},       {"1,5", 1, false},      {"1.5e3", 1.5f, false}, {"x1.5", 1.5f, false},
        {"1.5.", 1.5f, true}, {"1.5.3", 1.5f, false},
    };
    for (const auto& [text, value, clean] : cases)
        EXPECT_EQ(Parse<FloatNumber>(text), std::pair(value, clean)) << text;
    EXPECT_EQ(Parse<FloatNumber>("1.2345678"), std::pair(1.2345678f, true));
    EXPECT_EQ(Parse<FloatNumber>("1.23456789"), std::pair(1.2345678f, true));
    EXPECT_EQ(Parse<FloatNumber>("1.234567890"), std::pair(1.2345678f, false));
    EXPECT_EQ(Parse<FloatNumber>("3000000000").first, 3e9f);
    EXPECT_EQ(Parse<FloatNumber>("4294967297.5").first, 1.5f);
}

template <typename Number, typename Value>
void ExpectClamped(Value minimum, Value maximum, Value value, Value clamped) {
    Number number;
    number.SetNumber(value);
    number.SetRange(minimum, maximum, 1);
    EXPECT_EQ(number.Value(), value) << "a new range leaves the value alone";
    EXPECT_EQ(number.Clamp(), value != clamped) << minimum << " to " << maximum << ": " << value;
    EXPECT_EQ(number.Value(), clamped) << minimum << " to " << maximum << ": " << value;
}

TEST(NumberValue, ClampsIntoItsRange) {
    const int ints[][4] = {{0, 10, 12, 10}, {0, 10, -1, 0}, {0, 10, 10, 10}, {0, 0, -5, -5},
                           {7, 7, 9, 9},    {10, 0, 5, 0},  {10, 0, 20, 0},  {10, 0, -5, 0}};
    for (const auto& c : ints)
        ExpectClamped<IntNumber>(c[0], c[1], c[2], c[3]);
    const float floats[][4] = {{0, 1, 1.5f, 1}, {0, 1, -0.5f, 0}, {0, 0, -5, -5},
                               {7, 7, 9, 9},    {1, 0, 5, 5},     {1, 0, -5, -5}};
    for (const auto& c : floats)
        ExpectClamped<FloatNumber>(c[0], c[1], c[2], c[3]);
}

template <typename Number, typename Value>
Value Stepped(Value minimum, Value maximum, Value step, Value start, int n) {
    Number number;
    number.SetRange(minimum, maximum, step);
    number.SetNumber(start);
    number.Step(n);
    return number.Value();
}

// Any step ends in the range, a step of 0 too; the range is looked at behind the wrap.
TEST(IntNumber, Steps) {
    const int cases[][6] = {
        {0, 0, 1, 5, 1, 6},        {0, 0, 5, 5, -3, -10},          {0, 10, 4, 8, 1, 10},
        {0, 10, 0, 5, 3, 5},       {0, 10, 0, 20, 1, 10},          {0, 0, 1, INT_MAX, 1, INT_MIN},
        {0, 10, 1, INT_MAX, 1, 0}, {0, 0, INT_MAX, 1, INT_MAX, 2}, {0, 0, INT_MIN, 0, -1, INT_MIN}};
    for (const auto& c : cases) {
        EXPECT_EQ(Stepped<IntNumber>(c[0], c[1], c[2], c[3], c[4]), c[5])
            << c[3] << " + " << c[4] << " * " << c[2];
    }
}

// 0.251 shows that the sum stays a double until it is rounded: as a float it would be just below 0.2505.
TEST(FloatNumber, Steps) {
    const std::tuple<float, float, float, float, int, float> cases[] = {
        {0, 0, 0.1f, 0.25f, -3, -0.05f},
        {0, 0, 0.1f, 0, 10, 1},
        {0, 0, 0.0005f, 0.25f, 1, 0.251f},
        {-1, 1, 1.5f, 0, -1, -1},
        {0, 1, 0, 5, 1, 1},
        {0, 0, 1, 3e9f, 0, 3e9f},
        {0, 0.0004f, 1, 0, 1, 0},
        {0, 0, kLargestFloat, 0, INT_MIN, -kLargestFloat},
    };
    for (const auto& [minimum, maximum, step, value, n, result] : cases) {
        EXPECT_EQ(Stepped<FloatNumber>(minimum, maximum, step, value, n), result)
            << value << " + " << n << " * " << step;
    }
}

TEST(NumberValue, Prints) {
    const std::pair<float, const char*> cases[] = {
        {-0.0004f, "0.0"},
        {2, "2.0"},
        {100, "100.0"},
        {-12.34f, "-12.34"},
        {1.005f, "1.005"},
        {1e8f, "100000000.0"},
        {-kLargestFloat, "-340282346638528859811704183484516925440.0"},
    };
    FloatNumber number;
    for (const auto& [value, text] : cases) {
        number.SetNumber(value);
        EXPECT_EQ(Format(number), text);
    }
    IntNumber integer;
    integer.SetNumber(INT_MIN);
    EXPECT_EQ(Format(integer), "-2147483648");
}

TEST(NumberValue, CommitsText) {
    const std::tuple<const char*, const char*, bool, int> cases[] = {
        {"007", "007", true, 7},  {"12", "10", false, 10},  {"-", "-", true, 0}, {"abc", "abc", false, 0},
        {"7xy", "7xy", false, 7}, {"1.5", "1.5", false, 1}, {"", "3", false, 3},
    };
    IntNumber number;
    number.SetRange(0, 10, 1);
    for (const auto& [typed, shown, stays, value] : cases) {
        number.SetNumber(3);
        EXPECT_EQ(Commit(number, typed), std::pair(std::string(shown), stays)) << typed;
        EXPECT_EQ(number.Value(), value) << typed;
    }
    number.SetNumber(20);
    EXPECT_EQ(Commit(number, "", false), std::pair(std::string(), true)) << "not finished: nothing changes";
    EXPECT_EQ(number.Value(), 20);

    FloatNumber decimal;
    decimal.SetRange(-1, 1, 1);
    EXPECT_EQ(Commit(decimal, "1.5"), std::pair(std::string("1.0"), false));
    EXPECT_EQ(Commit(decimal, "-"), std::pair(std::string("-"), true));
    EXPECT_TRUE(std::signbit(decimal.Value()));
    EXPECT_EQ(Commit(decimal, ""), std::pair(std::string("0.0"), false));
}

TEST(NumberValue, RemembersTheStartOfAnEdit) {
    FloatNumber number;
    number.SetNumber(1.23456f);
    EXPECT_EQ(number.Value(), 1.235f);
    EXPECT_TRUE(number.IsRemembered());
    number.Step(1);
    EXPECT_FALSE(number.IsRemembered());
    number.Step(-1);
    EXPECT_TRUE(number.IsRemembered());
    number.Step(2);
    number.Remember();
    EXPECT_TRUE(number.IsRemembered());
}

TEST(NumberFieldText, FiltersTyping) {
    for (int code = -128; code < 128; ++code) {
        const char ch = static_cast<char>(code);
        const bool passes = code < 32 || std::strchr("0123456789-", ch) != nullptr;
        const bool point = ch == '.' || ch == ',';
        EXPECT_EQ(PassesNumberFilter(ch, false, false), passes || point) << code;
        EXPECT_EQ(PassesNumberFilter(ch, true, false), passes) << code;
        EXPECT_TRUE(PassesNumberFilter(ch, true, true)) << code;
    }
}

TEST(NumberFieldText, TakesACommaForThePoint) {
    char text[] = "1,,";
    EXPECT_FALSE(HasPoint(text));
    UsePointForComma(text);
    EXPECT_STREQ(text, "1.,");
    EXPECT_TRUE(HasPoint(text));
}

}  // namespace
