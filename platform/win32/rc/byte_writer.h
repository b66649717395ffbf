#pragma once

#include <string>

#include "resource.h"

// Little-endian words and 16-bit texts into bytes.
class ByteWriter {
public:
    size_t Size() const { return bytes_.size(); }
    Bytes Take() { return std::move(bytes_); }

    void Byte(uint8_t value) { bytes_.push_back(value); }
    void Word(uint32_t value) {
        Byte(static_cast<uint8_t>(value));
        Byte(static_cast<uint8_t>(value >> 8));
    }
    void Double(uint32_t value) {
        Word(value & 0xFFFF);
        Word(value >> 16);
    }
    void Text(const std::string& text) {
        for (const char ch : text)
            Word(static_cast<unsigned char>(ch));
        Word(0);
    }
    void Append(const Bytes& bytes, size_t from, size_t count) {
        bytes_.insert(bytes_.end(), bytes.begin() + static_cast<ptrdiff_t>(from),
                      bytes.begin() + static_cast<ptrdiff_t>(from + count));
    }
    void Align4() {
        while (bytes_.size() % 4 != 0)
            Byte(0);
    }
    // Puts a word at a place that was written before.
    void PatchWord(size_t at, uint32_t value) {
        bytes_[at] = static_cast<uint8_t>(value);
        bytes_[at + 1] = static_cast<uint8_t>(value >> 8);
    }

private:
    Bytes bytes_;
};
