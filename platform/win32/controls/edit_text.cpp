#include "edit_text.h"

#include <algorithm>

namespace {

bool IsSpace(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

std::string_view EditText::SelectedText() const {
    return std::string_view(text_).substr(SelectionStart(), SelectionEnd() - SelectionStart());
}

void EditText::Select(size_t anchor, size_t caret) {
    anchor_ = std::min(anchor, text_.size());
    caret_ = std::min(caret, text_.size());
}

void EditText::Assign(std::string_view text) {
    text_.assign(text);
    anchor_ = caret_ = 0;
}

void EditText::Replace(std::string_view replacement) {
    const size_t start = SelectionStart();
    text_.replace(start, SelectionEnd() - start, replacement);
    anchor_ = caret_ = start + replacement.size();
}

void EditText::CutBeforeCaret(size_t count) {
    count = std::min(count, caret_);
    text_.erase(caret_ - count, count);
    anchor_ = caret_ -= count;
}

size_t EditText::LineEndAt(size_t position) const {
    if (!lines_) return 0;
    const std::string_view rest = std::string_view(text_).substr(std::min(position, text_.size()));
    if (rest.starts_with('\n')) return 1;
    if (rest.starts_with("\r\n")) return 2;
    return rest.starts_with("\r\r\n") ? 3 : 0;
}

size_t EditText::LineEndBefore(size_t position) const {
    for (size_t size = std::min<size_t>(3, position); size > 0; --size) {
        if (LineEndAt(position - size) == size) return size;
    }
    return 0;
}

size_t EditText::Next(size_t position) const {
    if (position >= text_.size()) return text_.size();
    return position + std::max<size_t>(LineEndAt(position), 1);
}

size_t EditText::Previous(size_t position) const {
    if (position == 0) return 0;
    return position - std::max<size_t>(LineEndBefore(position), 1);
}

size_t EditText::NextWord(size_t position) const {
    if (LineEndAt(position)) return Next(position);
    const auto in_line = [&] { return position < text_.size() && !LineEndAt(position); };
    while (in_line() && !IsSpace(text_[position]))
        ++position;
    while (in_line() && IsSpace(text_[position]))
        ++position;
    return position;
}

size_t EditText::PreviousWord(size_t position) const {
    if (LineEndBefore(position)) return Previous(position);
    const auto in_line = [&] { return position > 0 && !LineEndBefore(position); };
    while (in_line() && IsSpace(text_[position - 1]))
        --position;
    while (in_line() && !IsSpace(text_[position - 1]))
        --position;
    return position;
}
