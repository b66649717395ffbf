#pragma once

// The numbers of the numeric fields, without a window: reading typed text, range, step, rounding, printing.
// The decimal form is always that with a point, whatever the locale, and the same on every C library.

// Three decimals, halves away from zero. What is too large to hold decimals, the infinities included, comes
// back as it is; NaN gives 0.
double Round3(double value);

// The nearest value of the smaller type: whole part towards zero, limits where it does not fit, 0 for NaN.
int TruncateToInt(double value);
float NarrowToFloat(double value);

// What a field asks of its number. The text of the field and the number are two states, which meet only when
// the number is printed and when a text is taken over; in between each goes its own way.
class NumberValue {
public:
    // Room for any text of a field, the terminator included: 32 typed characters or any printed number.
    static constexpr int kTextSize = 64;

    virtual ~NumberValue() = default;

    // Goes on by n steps and then into the range, even when the step is 0.
    virtual void Step(int n) = 0;

    // Brings the value into the range; true when it had to move.
    virtual bool Clamp() = 0;

    // Prints the value, terminated; `dest` holds kTextSize bytes.
    virtual void FormatValue(char* dest) const = 0;

    // Takes the first number in `length` bytes, 0 when there is none. False when the text held more than that
    // number; a single character behind it is let through.
    virtual bool ParseText(const char* text, int length) = 0;

    // The value to compare with at the end of an edit.
    virtual void Remember() = 0;
    virtual bool IsRemembered() const = 0;

    // Takes the number out of a field's terminated text, into the range. False when the field must show the
    // text anew: it was not clean, or it has been replaced because the number was out of range. An empty text
    // leaves the number alone; with `final` set the number is then printed into it. `text` holds kTextSize
    // bytes.
    bool SetText(char* text, bool final);

protected:
    NumberValue() = default;
    NumberValue(const NumberValue&) = default;
    NumberValue& operator=(const NumberValue&) = default;
};

// A number with its range and step.
template <class Number>
class RangedNumber : public NumberValue {
public:
    using Type = Number;

    const Number& Value() const { return value_; }
    Number Minimum() const { return minimum_; }
    Number Maximum() const { return maximum_; }
    Number StepSize() const { return step_; }

    // The present value stays as it is.
    void SetRange(Number minimum, Number maximum, Number step) {
        minimum_ = minimum;
        maximum_ = maximum;
        step_ = step;
    }

    void Remember() override { remembered_ = value_; }
    bool IsRemembered() const override { return value_ == remembered_; }

protected:
    Number value_ = 0;
    Number minimum_ = 0;
    Number maximum_ = 0;
    Number step_ = 1;
    Number remembered_ = 0;
};

// A 32-bit integer. Its arithmetic wraps; the range is looked at afterwards. Equal bounds mean no range; with
// the bounds exchanged every value becomes the maximum.
class IntNumber : public RangedNumber<int> {
public:
    // Takes the number, in the range or not, and remembers it.
    void SetNumber(int number);

    void Step(int n) override;
    bool Clamp() override;
    void FormatValue(char* dest) const override;
    bool ParseText(const char* text, int length) override;
};

// A 32-bit float, shown with three decimals at most. Typed decimals beyond the third stay in it until a step
// or SetNumber rounds it. It has no range unless the minimum is below the maximum.
class FloatNumber : public RangedNumber<float> {
public:
    // Takes the number rounded to three decimals, in the range or not, and remembers it.
    void SetNumber(float number);

    void Step(int n) override;
    bool Clamp() override;
    void FormatValue(char* dest) const override;
    bool ParseText(const char* text, int length) override;

private:
    double Clamped(double value) const;
};
