#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "catalogue/xml_arena.h"

// The names of one tree. A document has few names and says them many times over, so those of late are kept
// once and shared. What is handed out ends in a 0 and is not to be changed.
class XmlNames {
public:
    // The name is not empty.
    const char* CopyOf(std::string_view name, XmlArena& memory) {
        std::string_view& recent = recent_[Place(name) % recent_.size()];
        if (recent.size() != name.size() || !Equal(recent.data(), name.data(), name.size())) {
            recent = {memory.CopyOf(name), name.size()};
        }
        return recent.data();
    }

private:
    static size_t Place(std::string_view name) {
        const size_t first = static_cast<uint8_t>(name[0]);
        const size_t middle = static_cast<uint8_t>(name[name.size() / 2]);
        return name.size() + 3 * first + 5 * middle;
    }

    static uint32_t FourBytes(const char* bytes) {
        uint32_t four;
        std::memcpy(&four, bytes, sizeof four);
        return four;
    }
    // Most names have four to eight bytes, which two pieces cover.
    static bool Equal(const char* a, const char* b, size_t size) {
        if (size < 4 || size > 8) return std::memcmp(a, b, size) == 0;
        return FourBytes(a) == FourBytes(b) && FourBytes(a + size - 4) == FourBytes(b + size - 4);
    }

    std::array<std::string_view, 128> recent_{};
};
