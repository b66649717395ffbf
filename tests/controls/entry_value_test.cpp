#include "controls/entry_value.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "customize/keywords.h"

namespace {

std::string Bytes(const CString& text) {
    return std::string(text.GetString(), static_cast<size_t>(text.GetLength()));
}

CString Text(const std::string& bytes) {
    return CString(bytes.data(), static_cast<int>(bytes.size()));
}

// A restored 2 tells the classes apart: a box takes it as on, and a list does not take it at all.
TEST(EntryValue, ClassByKind) {
    const std::map<int, std::string> restored = {
        {KindEnable, "1"},    {KindNumEdit, "2"}, {KindNumEditF, "2.0"}, {KindChooseFile, "2"},
        {KindStrEdit, "2"},   {KindEntity, "0"},  {KindPath, "0"},       {KindDrop, "0"},
        {KindEntryText, "2"}, {KindFlag, "1"},    {KindSkill, "2.0"}};
    for (int kind = KindNone; kind <= KeywordCount; ++kind) {
        const auto value = MakeEntryValue(kind);
        ASSERT_EQ(value != nullptr, restored.count(kind) != 0) << kind;
        if (value == nullptr) continue;
        value->SetValue("0");
        value->DisplayValue("2");
        EXPECT_EQ(Bytes(value->GetValue()), restored.at(kind)) << kind;
    }
}

TEST(CheckValue, IsOnUnlessTheTextBeginsWithZero) {
    for (const char* text : {"0", "0.5", "1", "", " 0", "off"}) {
        const bool on = *text != '0';
        CheckValue check;
        check.SetValue(text);
        EXPECT_EQ(check.Shown(), on) << text;
        EXPECT_FALSE(check.IsChanged()) << text;
        EXPECT_EQ(Bytes(check.GetValue()), on ? "1" : "0");
        check.SetValue("0");
        check.DisplayValue(text);
        EXPECT_EQ(check.IsChanged(), on) << text;
        check.GetValue();
        EXPECT_FALSE(check.IsChanged()) << text;
    }
}

// A number other than 0 stood there before, and must be gone.
template <typename Value, typename Number>
void ExpectLoaded(const char* text, Number number) {
    Value value;
    value.SetValue("5");
    value.SetValue(text);
    EXPECT_EQ(value.Field().Value(), number) << text;
    EXPECT_FALSE(value.IsChanged()) << text;
    EXPECT_EQ(Bytes(value.GetValue()), text) << "the loaded spelling stays";
}

TEST(IntValue, LoadsNumbers) {
    for (const char* const text : {"7", "007", "+7", "7x", "7.9"})
        ExpectLoaded<IntValue>(text, 7);
    for (const char* const text : {"", "-", "x7", " 7"})
        ExpectLoaded<IntValue>(text, 0);
    ExpectLoaded<IntValue>("-7", -7);
    ExpectLoaded<IntValue>("99999999999", INT_MAX);
    ExpectLoaded<IntValue>("-99999999999", INT_MIN);
}

TEST(FloatValue, LoadsNumbers) {
    for (const char* const text : {"1.5", "1.50", " 1.5", "1.5e3"})
        ExpectLoaded<FloatValue>(text, 1.5f);
    for (const char* const text : {"", ".", "x", ".5", "-.5", "+1.5"})
        ExpectLoaded<FloatValue>(text, 0.0f);
    ExpectLoaded<FloatValue>("-3", -3.0f);
    ExpectLoaded<FloatValue>("3000000000.25", 3e9f);
}

TEST(IntValue, PrintsAChangedNumber) {
    IntValue value;
    value.SetValue("007");
    value.Field().Step(1);
    EXPECT_TRUE(value.IsChanged());
    EXPECT_EQ(Bytes(value.GetValue()), "8");
    EXPECT_FALSE(value.IsChanged());
    value.Field().Step(-1);
    EXPECT_EQ(Bytes(value.GetValue()), "7") << "the first spelling has gone with the first change";
}

TEST(FloatValue, ALoadedFourthDecimalCountsAsChange) {
    FloatValue value;
    value.SetValue("1.23456");
    EXPECT_TRUE(value.IsChanged());
    EXPECT_EQ(Bytes(value.GetValue()), "1.235");
    EXPECT_FALSE(value.IsChanged());
}

TEST(FloatValue, PrintsAChangedNumber) {
    const std::pair<const char*, const char*> cases[] = {
        {"3", "3.0"},
        {"0.25", "0.25"},
        {"-", "-0.0"},
        {"12345.678", "12345.677734"},
        {"1.23456789", "1.234568"},
    };
    for (const auto& [typed, text] : cases) {
        FloatValue value;
        value.SetValue("5");
        char buffer[NumberValue::kTextSize];
        std::strcpy(buffer, typed);
        value.Field().SetText(buffer, true);
        EXPECT_TRUE(value.IsChanged()) << typed;
        EXPECT_EQ(Bytes(value.GetValue()), text);
        EXPECT_FALSE(value.IsChanged()) << typed;
    }
}

// A saved value is read more freely than a loaded one, and limits do not hold it.
TEST(EntryValue, RestoredNumbersLeaveTheBaseline) {
    const std::tuple<const char*, int, float> cases[] = {
        {" +12.5x", 12, 12.5f},
        {"1e3", 1, 1000.0f},
        {"", 0, 0.0f},
        {"1.23456", 1, 1.235f},
        {"1e999", 1, std::numeric_limits<float>::max()},
        {"99999999999", INT_MAX, 99999999999.0f},
    };
    const auto restored = [](auto value, const char* text) {
        value.SetValue("5");
        value.SetLimits(5, 6, 1);
        value.DisplayValue(text);
        EXPECT_TRUE(value.IsChanged()) << text;
        const auto number = value.Field().Value();
        value.DisplayValue("5");
        EXPECT_FALSE(value.IsChanged()) << text;
        return number;
    };
    for (const auto& [text, integer, real] : cases) {
        EXPECT_EQ(restored(IntValue(), text), integer) << text;
        EXPECT_EQ(restored(FloatValue(), text), real) << text;
    }
}

TEST(EntryValue, LimitsReachTheFieldInItsOwnType) {
    IntValue integer;
    integer.SetValue("50");
    integer.SetLimits(-1.9, 1.9, 1e300);
    EXPECT_EQ(integer.Field().Minimum(), -1);
    EXPECT_EQ(integer.Field().Maximum(), 1);
    EXPECT_EQ(integer.Field().StepSize(), INT_MAX);
    EXPECT_FALSE(integer.IsChanged()) << "a value out of range stands";
    integer.Field().Step(0);
    EXPECT_EQ(Bytes(integer.GetValue()), "1");

    FloatValue real;
    real.SetLimits(-1.9, 1e300, 0.1);
    EXPECT_EQ(real.Field().Minimum(), -1.9f);
    EXPECT_EQ(real.Field().Maximum(), std::numeric_limits<float>::max());
}

TEST(TextValue, KeepsAndComparesWholeTexts) {
    const std::string texts[] = {
        "", "text", "Text", "two\r\nlines", std::string("nul\0a", 5), std::string("nul\0b", 5)};
    for (const std::string& loaded : texts) {
        for (const std::string& shown : texts) {
            TextValue value;
            value.SetValue(Text(loaded));
            EXPECT_EQ(Bytes(value.Shown()), loaded);
            value.DisplayValue(Text(shown));
            EXPECT_EQ(value.IsChanged(), loaded != shown) << loaded << " and " << shown;
            EXPECT_EQ(Bytes(value.GetValue()), shown);
            EXPECT_FALSE(value.IsChanged());
        }
    }
}

TEST(DropValue, ShowsItsValueAsFirstItem) {
    DropValue value;
    value.SetValue("Fast");
    EXPECT_FALSE(value.IsChanged());
    value.AddItem("Fast", false);
    value.AddItem("slow", true);
    value.AddItem("FAST", true);
    value.AddItem("Slow", true);
    value.AddItem("Fa", true);
    value.AddItem("slow", false);
    EXPECT_EQ(value.Items(), (std::vector<CString>{"Fast", "slow", "Fa", "slow"}));
    value.DisplayValue("Fa");  // a saved value is left aside
    EXPECT_EQ(value.Selected(), 0);
    EXPECT_EQ(Bytes(value.Shown()), "Fast");
    EXPECT_FALSE(value.IsChanged());

    value.Select(2);
    EXPECT_TRUE(value.IsChanged());
    EXPECT_EQ(Bytes(value.GetValue()), "Fa");
    EXPECT_FALSE(value.IsChanged());

    for (const int outside : {-1, 4, INT_MAX}) {
        value.Select(outside);
        EXPECT_EQ(value.Selected(), 2) << outside;
    }
    value.AddItem("last", false);
    EXPECT_EQ(value.Selected(), 0) << "every new item brings the first one back";
    EXPECT_TRUE(value.IsChanged());
    // Bytes beyond ASCII have no case: without a code page nobody could tell which letters they are.
    for (const char* item : {"\xC4", "\xE4", "[", "{"})
        value.AddItem(item, true);
    EXPECT_EQ(value.Items().size(), 9u);
}

}  // namespace
