#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "catalogue/xml_arena.h"

// Copies texts into an arena, but short ones of late only once: a document says the same few things many
// times over. What it hands out may be shared, ends in a 0 and is not to be changed.
class XmlRecentTexts {
public:
    const char* CopyOf(std::string_view text, XmlArena& memory) {
        if (text.empty() || text.size() > kLongestShared) return memory.CopyOf(text);
        std::string_view& recent = recent_[Place(text) % recent_.size()];
        if (recent.size() != text.size() || !Equal(recent.data(), text.data(), text.size())) {
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

    static uint32_t FourBytes(const char* bytes) {
        uint32_t four;
        std::memcpy(&four, bytes, sizeof four);
        return four;
    }
    // Most texts have four to eight bytes, which two pieces cover.
    static bool Equal(const char* a, const char* b, size_t size) {
        if (size < 4 || size > 8) return std::memcmp(a, b, size) == 0;
        return FourBytes(a) == FourBytes(b) && FourBytes(a + size - 4) == FourBytes(b + size - 4);
    }

    std::array<std::string_view, 128> recent_{};
};
