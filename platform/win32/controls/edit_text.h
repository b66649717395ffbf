#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The text of an edit control with its selection. It knows no window.
//
// Positions count bytes from 0. A line ends at CR LF, at LF or at CR CR LF; with `lines` false such bytes are
// characters like any other.
class EditText {
public:
    explicit EditText(bool lines) : lines_(lines) {}

    const std::string& Text() const { return text_; }
    size_t Length() const { return text_.size(); }

    // The end of the selection that moves with the keys, and the one that stays.
    size_t Caret() const { return caret_; }
    size_t Anchor() const { return anchor_; }
    size_t SelectionStart() const { return anchor_ < caret_ ? anchor_ : caret_; }
    size_t SelectionEnd() const { return anchor_ < caret_ ? caret_ : anchor_; }
    bool HasSelection() const { return anchor_ != caret_; }
    std::string_view SelectedText() const;
    // Positions behind the end stand for the end.
    void Select(size_t anchor, size_t caret);

    // Replaces everything; the caret stands at the start.
    void Assign(std::string_view text);
    // Replaces the selection; the caret stands behind what came.
    void Replace(std::string_view replacement);
    // Takes `count` bytes that the last replacement put before the caret away again.
    void CutBeforeCaret(size_t count);

    // Neighbours of a position; a line end counts as one step.
    size_t Next(size_t position) const;
    size_t Previous(size_t position) const;
    // The start of the next and of this or the previous word; the ends of a line are stops.
    size_t NextWord(size_t position) const;
    size_t PreviousWord(size_t position) const;

    // Bytes of the line end at a position, 0 when there is none.
    size_t LineEndAt(size_t position) const;

private:
    size_t LineEndBefore(size_t position) const;

    bool lines_;
    std::string text_;
    size_t anchor_ = 0;
    size_t caret_ = 0;
};
