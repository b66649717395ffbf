#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "catalogue/short_compare.h"
#include "catalogue/xml_arena.h"

// Copies texts into an arena, but short ones of late only once: a document says the same few things many
// times over. What it hands out may be shared, ends in a 0 and is not to be changed.
class XmlRecentTexts {
public:
    const char* CopyOf(std::string_view text, XmlArena& memory) {
        if (text.empty() || text.size() > kLongestShared) return memory.CopyOf(text);
        std::string_view& recent = recent_[Place(text) % recent_.size()];
        if (recent.size() != text.size() || !EqualBytes(recent.data(), text.data(), text.size())) {
            recent = {memory.CopyOf(text), text.size()};
        }
        return recent.data();
    }

private:
    static constexpr size_t kLongestShared = 16;

    static size_t Place(std::string_view text) {
        const size_t first = static_cast<uint8_t>(text[0]);
        const size_t middle = static_cast<uint8_t>(text[text.size() / 2]);
        return text.size() + 3 * first + 5 * middle;
    }

    std::array<std::string_view, 128> recent_{};
};
