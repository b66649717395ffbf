#include "controls/entry_value.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "customize/keywords.h"
#include "support/lex.h"
#include "support/number_text.h"

namespace {

size_t Length(const CString& text) {
    return static_cast<size_t>(text.GetLength());
}

bool SaysOn(const CString& text) {
    return text[0] != '0';
}

// How numbers stand in texts.
struct IntText {
    static int Load(const CString& text) {
        long number = 0;
        CLex::IsDigit(text.GetString(), &number, nullptr);
        return static_cast<int>(number);
    }
    static int Restore(const CString& text) { return ParseInt(text.GetString(), Length(text)); }
    static int Narrow(double limit) { return TruncateToInt(limit); }
    static CString Print(int number) {
        CString text;
        text.Format("%d", number);
        return text;
    }
};

struct FloatText {
    static float Load(const CString& text) {
        float number = 0.0f;
        CLex::ScanFloatValue(text.GetString(), number);
        return number;
    }
    static float Restore(const CString& text) {
        return NarrowToFloat(ParseDouble(text.GetString(), Length(text)));
    }
    static float Narrow(double limit) { return NarrowToFloat(limit); }
    // A decimal keeps its point, so that the script's value stays one.
    static CString Print(float number) {
        char digits[320];  // the longest double and its decimals
        CLex::FormatFloat(digits, number);
        if (std::strchr(digits, '.') == nullptr) std::strcat(digits, ".0");
        return CString(digits);
    }
};

template <class Number>
using TextOf = std::conditional_t<std::is_same_v<Number, IntNumber>, IntText, FloatText>;

}  // namespace

void CheckValue::SetValue(const CString& text) {
    baseline_ = SaysOn(text);
    shown_ = baseline_;
}

const CString& CheckValue::GetValue() {
    baseline_ = shown_;
    text_ = shown_ ? '1' : '0';
    return text_;
}

void CheckValue::DisplayValue(const CString& text) {
    shown_ = SaysOn(text);
}

template <class Number>
void NumericValue<Number>::SetValue(const CString& text) {
    text_ = text;
    baseline_ = TextOf<Number>::Load(text);
    field_.SetNumber(baseline_);
}

template <class Number>
const CString& NumericValue<Number>::GetValue() {
    if (IsChanged()) {
        baseline_ = field_.Value();
        text_ = TextOf<Number>::Print(baseline_);
    }
    return text_;
}

template <class Number>
void NumericValue<Number>::DisplayValue(const CString& text) {
    field_.SetNumber(TextOf<Number>::Restore(text));
}

template <class Number>
void NumericValue<Number>::SetLimits(double minimum, double maximum, double step) {
    const auto narrow = &TextOf<Number>::Narrow;
    field_.SetRange(narrow(minimum), narrow(maximum), narrow(step));
}

template class NumericValue<IntNumber>;
template class NumericValue<FloatNumber>;

void TextValue::SetValue(const CString& text) {
    text_ = text;
    shown_ = text;
}

const CString& TextValue::GetValue() {
    text_ = shown_;
    return text_;
}

void DropValue::AddItem(const CString& text, bool unique) {
    const auto has_text = [&text](const CString& item) { return item.CompareNoCase(text) == 0; };
    if (unique && std::any_of(items_.begin(), items_.end(), has_text)) return;
    items_.push_back(text);
    Select(0);
}

void DropValue::Select(int index) {
    if (index < 0 || static_cast<size_t>(index) >= items_.size()) return;
    selected_ = index;
    shown_ = items_[static_cast<size_t>(index)];
}

void DropValue::SetValue(const CString& text) {
    text_ = text;
    shown_ = text;
}

const CString& DropValue::GetValue() {
    text_ = shown_;
    return text_;
}

std::unique_ptr<EntryValue> MakeEntryValue(int kind) {
    switch (kind) {
        case KindEnable:
        case KindFlag: return std::make_unique<CheckValue>();
        case KindNumEdit: return std::make_unique<IntValue>();
        case KindNumEditF:
        case KindSkill: return std::make_unique<FloatValue>();
        case KindChooseFile:
        case KindStrEdit:
        case KindEntryText: return std::make_unique<TextValue>();
        case KindEntity:
        case KindPath:
        case KindDrop: return std::make_unique<DropValue>();
        default: return nullptr;
    }
}
