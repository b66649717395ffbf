#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "edit_text.h"

// Widths of text in a font, in pixels. What a character takes is asked for when it is first met.
class TextMeasure {
public:
    using AskWidth = std::function<int(char)>;

    explicit TextMeasure(AskWidth ask) : ask_(std::move(ask)) { Forget(); }

    // For another font, or other stops.
    void Forget() { widths_.fill(-1); }
    // Stops in pixels from the start of the line; behind the last one they repeat every `tab` pixels. Without
    // a tab width a tab is a character like any other.
    void SetTabs(std::vector<int> stops, int tab);

    // Where the next character stands behind a text that starts at 0.
    int WidthOf(std::string_view text) const;
    // The position whose character starts nearest to `x`.
    size_t PositionAt(std::string_view text, int x) const;
    // How many characters fit, counted from the start.
    size_t Fitting(std::string_view text, int width) const;
    int Advance(int x, char c) const;

private:
    int TabStopAfter(int x) const;

    AskWidth ask_;
    mutable std::array<int, 256> widths_ = {};
    std::vector<int> stops_;
    int tab_ = 0;
};

struct EditLine {
    size_t start;
    size_t length;  // without the line end
};

// The lines of a text, at least one. They are cut at line ends and, when there is a width to keep to, behind
// the last word that fits; a word that is too long is cut itself.
class EditLines {
public:
    void Build(const EditText& text, const TextMeasure& measure, int wrap_width);

    size_t Count() const { return lines_.size(); }
    const EditLine& operator[](size_t line) const { return lines_[line]; }
    // The line that a position is in; of two it is the later one.
    size_t LineOf(size_t position) const;
    // Whether a line goes on in the next one, without a line end between them.
    bool IsWrapped(size_t line) const;

private:
    void AddWrapped(std::string_view text, size_t start, const TextMeasure& measure, int width);

    std::vector<EditLine> lines_ = {{0, 0}};
};
