#include "host/ini_text.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr const char* kBlanks = " \t\r\n";

// With single blanks between the words.
std::string OneBlank(std::string_view title) {
    std::string words;
    for (title = Trimmed(title); !title.empty(); title = Trimmed(title)) {
        const size_t size = std::min(title.find_first_of(kBlanks), title.size());
        if (!words.empty()) words += ' ';
        words += title.substr(0, size);
        title.remove_prefix(size);
    }
    return words;
}

IniText::Line ReadLine(std::string_view text) {
    IniText::Line line;
    line.text = text;
    const std::string_view content = Trimmed(text);
    if (content.empty() || content.front() == ';' || content.front() == '#') return line;
    if (content.front() == '[' && content.back() == ']') {
        line.kind = IniText::Line::Section;
        line.value = OneBlank(content.substr(1, content.size() - 2));
        return line;
    }
    line.kind = IniText::Line::Value;
    const size_t equals = content.find('=');
    if (equals == std::string_view::npos) {
        line.value = content;
    } else {
        line.key = Trimmed(content.substr(0, equals));
        line.value = Trimmed(content.substr(equals + 1));
    }
    return line;
}

std::string_view LineEnd(std::string_view text) {
    if (text.ends_with("\r\n")) return "\r\n";
    return text.ends_with('\n') ? "\n" : "";
}

// The line with another value behind its equals sign and the blanks there.
std::string WithValue(const std::string& text, const std::string& value) {
    const size_t equals = text.find('=');
    size_t start = text.find_first_not_of(" \t", equals + 1);
    if (start == std::string::npos) start = text.size();
    return text.substr(0, start) + value + std::string(LineEnd(text));
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
    const size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

IniText::IniText(std::string_view bytes) {
    while (!bytes.empty()) {
        const size_t feed = bytes.find('\n');
        const size_t size = feed == std::string_view::npos ? bytes.size() : feed + 1;
        lines_.push_back(ReadLine(bytes.substr(0, size)));
        bytes.remove_prefix(size);
    }
}

std::string IniText::Text() const {
    std::string text;
    for (const Line& line : lines_)
        text += line.text;
    return text;
}

IniText::Range IniText::SectionLines(std::string_view section) const {
    size_t first = 0;
    while (first < lines_.size() && !(lines_[first].kind == Line::Section && lines_[first].value == section))
        ++first;
    size_t end = first + 1;
    while (end < lines_.size() && lines_[end].kind != Line::Section)
        ++end;
    return {first, end};
}

void IniText::Set(std::string_view section, std::string_view key, const std::string& value) {
    const Range range = SectionLines(section);
    size_t last = range.first;
    for (size_t i = range.first + 1; i < range.end; ++i) {
        if (lines_[i].kind != Line::Value) continue;
        last = i;
        if (lines_[i].key != key) continue;
        if (value.empty()) {
            lines_.erase(lines_.begin() + static_cast<ptrdiff_t>(i));
        } else {
            lines_[i] = ReadLine(WithValue(lines_[i].text, value));
        }
        return;
    }
    if (value.empty()) return;
    std::string& before = lines_[last].text;
    const std::string_view end = LineEnd(before);
    const std::string added = std::string(key) + " = " + value + (end.empty() ? "\n" : std::string(end));
    if (end.empty()) before += '\n';
    lines_.insert(lines_.begin() + static_cast<ptrdiff_t>(last) + 1, ReadLine(added));
}
