#pragma once

#include <memory>

// The bytes of one script, which always end in CR, LF, NUL, so that the line behind the last line end holds
// nothing but the NUL and every value lies in front of it. Owns its bytes; moving keeps their addresses.
class ScriptText {
public:
    ScriptText() = default;

    // Takes over `size` bytes, bringing them to the closing form if they are not in it.
    ScriptText(std::unique_ptr<char[]> bytes, long size);
    static ScriptText Copy(const char* bytes, long size);

    // Reads a file whole. False when it can't be opened; an empty file gives an empty text and true.
    bool Load(const char* path);

    const char* Data() const { return bytes_.get(); }
    long Size() const { return size_; }
    bool IsEmpty() const { return size_ == 0; }

    // True when the bytes that were taken over ended in the closing form already.
    bool WasClosed() const { return was_closed_; }

private:
    std::unique_ptr<char[]> bytes_;
    long size_ = 0;
    bool was_closed_ = true;
};
