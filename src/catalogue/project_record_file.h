#pragma once

#include <memory>
#include <string_view>

// The bytes of a script as they stand on the disk.
class ScriptFile {
public:
    // False when the file can't be opened or does not come whole, so that nobody writes back a part of it for
    // the whole. An empty file is no failure.
    bool Load(const char* path);

    const char* Data() const { return bytes_.get(); }
    long Size() const { return size_; }
    bool IsEmpty() const { return size_ == 0; }
    std::string_view Text() const { return {bytes_.get(), static_cast<size_t>(size_)}; }

private:
    std::unique_ptr<char[]> bytes_;
    long size_ = 0;
};
