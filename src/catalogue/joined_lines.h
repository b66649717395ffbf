#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Lines put together with nothing between them, that still know where each byte came from.
class JoinedLines {
public:
    struct Place {
        size_t line;  // both counted from 1
        size_t column;
    };

    void Add(std::string_view line) {
        starts_.push_back(text_.size());
        text_ += line;
    }

    const std::string& Text() const { return text_; }

    // Where the byte stood in its line. Behind the last byte: where the next one would stand.
    Place PlaceOf(size_t offset) const;

private:
    std::string text_;
    std::vector<size_t> starts_;  // of each line in the text
};
