#pragma once

#include <string>
#include <string_view>
#include <vector>

// A small text of sections, keys and values that people and programs edit in turn:
//
//     ; a comment, as is a line that begins with #
//     [section]
//     key = value
//     a line without "=" is a value without a key
//
// Blanks around sections, keys and values don't count. What a program does not change keeps its bytes.
class IniText {
public:
    struct Line {
        enum Kind { Blank, Section, Value } kind = Blank;
        std::string key;    // empty for a value that stands alone
        std::string value;  // or the section's name
        std::string text;   // the line as it stands, line end included
    };

    explicit IniText(std::string_view bytes);

    const std::vector<Line>& Lines() const { return lines_; }
    std::string Text() const;

    // Gives a key of a section its only value, in its place or at the section's end; an empty value takes the
    // key away. The section must be there.
    void Set(std::string_view section, std::string_view key, const std::string& value);

private:
    struct Range {
        size_t first, end;
    };
    Range SectionLines(std::string_view section) const;

    std::vector<Line> lines_;
};

// Without the blanks, tabs and line ends at both ends.
std::string_view Trimmed(std::string_view text);
