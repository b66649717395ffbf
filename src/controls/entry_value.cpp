#include "controls/entry_value.h"

#include <algorithm>
#include <cstring>

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

// A decimal keeps its point, so that the script's value stays one.
CString FloatText(float number) {
    char digits[320];  // the longest double and its decimals
    CLex::FormatFloat(digits, number);
    if (std::strchr(digits, '.') == nullptr) std::strcat(digits, ".0");
    return CString(digits);
}

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

void IntValue::SetValue(const CString& text) {
    long number = 0;
    CLex::IsDigit(text.GetString(), &number, nullptr);
    text_ = text;
    baseline_ = static_cast<int>(number);
    field_.SetNumber(baseline_);
}

const CString& IntValue::GetValue() {
    if (IsChanged()) {
        baseline_ = field_.Value();
        text_.Format("%d", baseline_);
    }
    return text_;
}

void IntValue::DisplayValue(const CString& text) {
    field_.SetNumber(ParseInt(text.GetString(), Length(text)));
}

void IntValue::SetLimits(double minimum, double maximum, double step) {
    field_.SetRange(TruncateToInt(minimum), TruncateToInt(maximum), TruncateToInt(step));
}

void FloatValue::SetValue(const CString& text) {
    float number = 0.0f;
    CLex::ScanFloatValue(text.GetString(), number);
    text_ = text;
    baseline_ = number;
    field_.SetNumber(baseline_);
}

const CString& FloatValue::GetValue() {
    if (IsChanged()) {
        baseline_ = field_.Value();
        text_ = FloatText(baseline_);
    }
    return text_;
}

void FloatValue::DisplayValue(const CString& text) {
    field_.SetNumber(NarrowToFloat(ParseDouble(text.GetString(), Length(text))));
}

void FloatValue::SetLimits(double minimum, double maximum, double step) {
    field_.SetRange(NarrowToFloat(minimum), NarrowToFloat(maximum), NarrowToFloat(step));
}

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
