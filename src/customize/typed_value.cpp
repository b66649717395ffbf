#include "customize/typed_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <string_view>

#include "controls/number_field_text.h"
#include "customize/control_spec.h"

namespace {

constexpr int kFieldLimit = 32;  // characters that a number field takes

TypedValue Refused(const CString& why) {
    return {why, {}};
}

bool EqualsOneOf(const CString& text, std::initializer_list<const char*> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](const char* word) { return text.CompareNoCase(word) == 0; });
}

TypedValue TakeSwitch(CheckValue& value, const CString& text) {
    const bool on = EqualsOneOf(text, {"on", "1", "yes", "true"});
    if (!on && !EqualsOneOf(text, {"off", "0", "no", "false"})) return Refused("expected on or off");
    value.Show(on);
    return {};
}

bool HasDigit(const CString& text) {
    return std::strpbrk(text, "0123456789") != nullptr;
}

// The field's reader knows no plus sign.
std::string_view WithoutPlus(const CString& text) {
    std::string_view view(text, static_cast<size_t>(text.GetLength()));
    if (!view.empty() && view.front() == '+') view.remove_prefix(1);
    return view;
}

using FieldText = std::array<char, NumberValue::kTextSize>;

FieldText ToField(std::string_view text) {
    FieldText field{};
    std::memcpy(field.data(), text.data(), std::min(text.size(), field.size() - 1));
    return field;
}

TypedValue TakeInteger(IntValue& value, const CString& text) {
    const std::string_view digits = WithoutPlus(text);
    int typed = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), typed);
    if (ClassifyNumber(text) != 1 || !HasDigit(text)) return Refused("expected a whole number");
    if (read.ec == std::errc::result_out_of_range || digits.size() > kFieldLimit) {
        return Refused("the number does not fit into 32 bits");
    }
    FieldText field = ToField(digits);
    value.Field().SetText(field.data(), true);
    TypedValue taken;
    if (value.Field().Value() != typed) {
        taken.notice.Format("forced into its limits %d to %d", value.Field().Minimum(),
                            value.Field().Maximum());
    }
    return taken;
}

TypedValue TakeDecimal(FloatValue& value, const CString& text) {
    FieldText field = ToField(WithoutPlus(text));
    UsePointForComma(field.data());
    if (ClassifyNumber(field.data()) == 0 || !HasDigit(text) || text.GetLength() > kFieldLimit) {
        return Refused("expected a number such as 1.5");
    }
    value.Field().SetText(field.data(), true);
    return {};
}

CString ListItems(const DropValue& value) {
    CString list;
    for (const CString& item : value.Items()) {
        if (!list.IsEmpty()) list += ", ";
        list += item;
    }
    return list;
}

// An item as it is written, else the first that differs in case only.
TypedValue TakeItem(DropValue& value, const CString& text) {
    const std::vector<CString>& items = value.Items();
    auto item = std::find(items.begin(), items.end(), text);
    if (item == items.end()) {
        item = std::find_if(items.begin(), items.end(),
                            [&text](const CString& other) { return other.CompareNoCase(text) == 0; });
    }
    if (item == items.end()) return Refused("expected one of: " + ListItems(value));
    value.Select(static_cast<int>(item - items.begin()));
    return {};
}

// The names of entities and paths are the host's, so any may be right.
TypedValue TakeName(DropValue& value, const CString& text) {
    value.AddItem(text, true);
    return TakeItem(value, text);
}

}  // namespace

TypedValue TakeTypedValue(const CScriptEntry& entry, EntryValue& value, const CString& text) {
    switch (entry.kind) {
        case KindEnable: return TakeSwitch(static_cast<CheckValue&>(value), text);
        case KindNumEdit: return TakeInteger(static_cast<IntValue&>(value), text);
        case KindNumEditF: return TakeDecimal(static_cast<FloatValue&>(value), text);
        case KindEntity:
        case KindPath: return TakeName(static_cast<DropValue&>(value), text);
        case KindDrop: return TakeItem(static_cast<DropValue&>(value), text);
        default: static_cast<TextValue&>(value).Show(text); return {};
    }
}
