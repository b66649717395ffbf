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
    undo_text_.clear();
    undo_inserted_ = 0;
}

void EditText::Replace(std::string_view replacement, bool can_undo) {
    const size_t start = SelectionStart();
    const size_t end = SelectionEnd();
    if (can_undo) {
        if (end > start) RememberDeletion(start, end);
        if (!replacement.empty()) RememberInsertion(start, replacement.size());
    } else {
        undo_text_.clear();
        undo_inserted_ = 0;
    }
    text_.replace(start, end - start, replacement);
    anchor_ = caret_ = start + replacement.size();
}

void EditText::CutBeforeCaret(size_t count) {
    count = std::min(count, caret_);
    undo_inserted_ -= std::min(count, undo_inserted_);
    text_.erase(caret_ - count, count);
    anchor_ = caret_ -= count;
}

void EditText::RememberDeletion(size_t start, size_t end) {
    const bool pure = undo_inserted_ == 0 && !undo_text_.empty();
    if (pure && start == undo_position_) {
        undo_text_.append(text_, start, end - start);
    } else if (pure && end == undo_position_) {
        undo_text_.insert(0, text_, start, end - start);
    } else {
        undo_text_.assign(text_, start, end - start);
    }
    undo_position_ = start;
    undo_inserted_ = 0;
}

void EditText::RememberInsertion(size_t start, size_t count) {
    const bool goes_on =
        (undo_inserted_ != 0 || !undo_text_.empty()) && start == undo_position_ + undo_inserted_;
    if (!goes_on) {
        undo_text_.clear();
        undo_position_ = start;
        undo_inserted_ = 0;
    }
    undo_inserted_ += count;
}

bool EditText::Undo() {
    if (undo_inserted_ == 0 && undo_text_.empty()) return false;
    const std::string removed = text_.substr(undo_position_, undo_inserted_);
    text_.replace(undo_position_, undo_inserted_, undo_text_);
    anchor_ = undo_position_;
    caret_ = undo_position_ + undo_text_.size();
    undo_inserted_ = undo_text_.size();
    undo_text_ = removed;
    return true;
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
