#include "customize/script_text.h"

#include <cstring>
#include <limits>

#include "support/file_objects.h"
#include "support/path_limit.h"

namespace {

constexpr char kClosing[] = {'\r', '\n', '\0'};
constexpr long kClosingSize = sizeof kClosing;

bool IsClosed(const char* bytes, long size) {
    return size >= kClosingSize && std::memcmp(bytes + size - kClosingSize, kClosing, kClosingSize) == 0;
}

}  // namespace

ScriptText::ScriptText(std::unique_ptr<char[]> bytes, long size) {
    if (bytes == nullptr || size <= 0) return;
    if (IsClosed(bytes.get(), size)) {
        bytes_ = std::move(bytes);
        size_ = size;
    } else {
        *this = Copy(bytes.get(), size);
    }
}

ScriptText ScriptText::Copy(const char* bytes, long size) {
    ScriptText text;
    if (bytes == nullptr || size <= 0) return text;
    text.was_closed_ = IsClosed(bytes, size);
    text.size_ = text.was_closed_ ? size : size + kClosingSize;
    text.bytes_ = std::make_unique_for_overwrite<char[]>(static_cast<size_t>(text.size_));
    std::memcpy(text.bytes_.get(), bytes, static_cast<size_t>(size));
    std::memcpy(text.bytes_.get() + text.size_ - kClosingSize, kClosing, kClosingSize);
    return text;
}

bool ScriptText::Load(const char* path) {
    *this = ScriptText();
    file_t file;
    if (!IsOpenablePath(path) || !file.OpenRead(path)) return false;
    unsigned char* bytes = nullptr;
    long length = 0;
    file.GetText(&bytes, length);
    file.Close();
    *this = ScriptText(std::unique_ptr<char[]>(reinterpret_cast<char*>(bytes)), length);
    return true;
}
