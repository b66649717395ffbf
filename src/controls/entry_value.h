#pragma once

#include <afx.h>

#include <memory>
#include <vector>

#include "controls/number_value.h"

// What an entry's control keeps of its value, without a window. A value goes through three stages: loaded by
// SetValue, edited in what is shown, taken by GetValue. The loaded or taken value is the baseline of
// IsChanged.
//
// Each class holds what is shown as well. A window brings over what stands in it before it asks, and shows
// anew what stands here after SetValue and DisplayValue; without a window the shown value is set directly.
//
// Texts are value texts, as between the quotes or brackets in the script. They are kept whole, with line ends
// and NULs, and compared byte by byte.
class EntryValue {
public:
    virtual ~EntryValue() = default;
    EntryValue(const EntryValue&) = delete;
    EntryValue& operator=(const EntryValue&) = delete;

    // Takes the text as the baseline and shows it.
    virtual void SetValue(const CString& text) = 0;

    // The text to write into the script. What is shown becomes the baseline, so that a caller who only wants
    // to look changes what IsChanged says. The text lives until the next call.
    virtual const CString& GetValue() = 0;

    // Shows the text and leaves the baseline.
    virtual void DisplayValue(const CString& text) = 0;

    virtual bool IsChanged() const = 0;

    // Range and step for the numbers; what is shown stays, even out of range. No effect on the other values.
    virtual void SetLimits(double /*minimum*/, double /*maximum*/, double /*step*/) {}

protected:
    EntryValue() = default;
};

// On or off. Off is a text that begins with 0.
class CheckValue : public EntryValue {
public:
    bool Shown() const { return shown_; }
    void Show(bool on) { shown_ = on; }

    void SetValue(const CString& text) override;
    const CString& GetValue() override;
    void DisplayValue(const CString& text) override;
    bool IsChanged() const override { return shown_ != baseline_; }

private:
    bool shown_ = false;
    bool baseline_ = false;
    CString text_;
};

// A number. Until it changes, GetValue gives the loaded text in its own spelling. A decimal's field rounds to
// three places and the baseline does not, so a text with more of them counts as changed as soon as it is
// loaded.
template <class Number>
class NumericValue : public EntryValue {
public:
    Number& Field() { return field_; }

    void SetValue(const CString& text) override;
    const CString& GetValue() override;
    void DisplayValue(const CString& text) override;
    bool IsChanged() const override { return field_.Value() != baseline_; }
    void SetLimits(double minimum, double maximum, double step) override;

private:
    Number field_;
    CString text_;
    typename Number::Type baseline_ = 0;
};

extern template class NumericValue<IntNumber>;
extern template class NumericValue<FloatNumber>;
using IntValue = NumericValue<IntNumber>;
using FloatValue = NumericValue<FloatNumber>;

// A text in an edit: a string, a text of several rows, a file name.
class TextValue : public EntryValue {
public:
    const CString& Shown() const { return shown_; }
    void Show(const CString& text) { shown_ = text; }

    void SetValue(const CString& text) override;
    const CString& GetValue() override;
    void DisplayValue(const CString& text) override { Show(text); }
    bool IsChanged() const override { return shown_ != text_; }

private:
    CString shown_;
    CString text_;
};

// A choice from a list. The value itself is to be added as the first item, so that it stays selected.
class DropValue : public EntryValue {
public:
    const std::vector<CString>& Items() const { return items_; }
    const CString& Shown() const { return shown_; }

    // Index of the selected item, -1 for none.
    int Selected() const { return selected_; }

    // Adds an item at the end and selects the first one. With `unique` set nothing happens when an item has
    // the same text, ASCII case ignored.
    void AddItem(const CString& text, bool unique);

    // Chooses an item; an index outside the list, as of a list without selection, changes nothing.
    void Select(int index);

    void SetValue(const CString& text) override;
    const CString& GetValue() override;

    // A restored value does not reach the list: what the script says stays selected.
    void DisplayValue(const CString& /*text*/) override {}
    bool IsChanged() const override { return shown_ != text_; }

private:
    std::vector<CString> items_;
    int selected_ = -1;
    CString shown_;  // the selected item, or the value as long as nothing has been selected since
    CString text_;
};

// The value of an entry of this kind; null for kinds that only show something.
std::unique_ptr<EntryValue> MakeEntryValue(int kind);
