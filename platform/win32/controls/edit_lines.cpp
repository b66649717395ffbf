#include "edit_lines.h"

#include <algorithm>

void TextMeasure::SetTabs(std::vector<int> stops, int tab) {
    stops_ = std::move(stops);
    tab_ = tab;
}

int TextMeasure::TabStopAfter(int x) const {
    const auto stop = std::find_if(stops_.begin(), stops_.end(), [x](int at) { return at > x; });
    return stop != stops_.end() ? *stop : (x / tab_ + 1) * tab_;
}

int TextMeasure::Advance(int x, char c) const {
    if (c == '\t' && tab_ > 0) return TabStopAfter(x);
    int& width = widths_[static_cast<unsigned char>(c)];
    if (width < 0) width = ask_(c);
    return x + width;
}

int TextMeasure::WidthOf(std::string_view text) const {
    int x = 0;
    for (const char c : text)
        x = Advance(x, c);
    return x;
}

size_t TextMeasure::PositionAt(std::string_view text, int x) const {
    int left = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const int right = Advance(left, text[i]);
        if (2 * (x - left) < right - left) return i;
        left = right;
    }
    return text.size();
}

size_t TextMeasure::Fitting(std::string_view text, int width) const {
    int x = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        x = Advance(x, text[i]);
        if (x > width) return i;
    }
    return text.size();
}

void EditLines::Build(const EditText& text, const TextMeasure& measure, int wrap_width) {
    lines_.clear();
    const std::string_view all = text.Text();
    size_t start = 0;
    for (;;) {
        size_t feed = all.find('\n', start);
        size_t end = feed;
        if (feed == std::string_view::npos) {
            end = all.size();
        } else {
            while (end > start && feed - end < 2 && all[end - 1] == '\r')
                --end;
        }
        if (wrap_width > 0) {
            AddWrapped(all.substr(start, end - start), start, measure, wrap_width);
        } else {
            lines_.push_back({start, end - start});
        }
        if (feed == std::string_view::npos) return;
        start = feed + 1;
    }
}

void EditLines::AddWrapped(std::string_view text, size_t start, const TextMeasure& measure, int width) {
    for (;;) {
        size_t length = measure.Fitting(text, width - 1);
        if (length < text.size()) {
            const size_t space = text.substr(0, length).rfind(' ');
            if (space != std::string_view::npos) length = space + 1;
            length = std::max<size_t>(length, 1);
        }
        lines_.push_back({start, length});
        if (length == text.size()) return;
        text.remove_prefix(length);
        start += length;
    }
}

size_t EditLines::LineOf(size_t position) const {
    const auto later = std::upper_bound(lines_.begin(), lines_.end(), position,
                                        [](size_t at, const EditLine& line) { return at < line.start; });
    return static_cast<size_t>(later - lines_.begin()) - 1;
}

bool EditLines::IsWrapped(size_t line) const {
    return line + 1 < lines_.size() && lines_[line].start + lines_[line].length == lines_[line + 1].start;
}
