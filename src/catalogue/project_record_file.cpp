#include "catalogue/project_record_file.h"

#include <afx.h>
#include <share.h>

#include <cstdio>
#include <new>

#include "support/path_limit.h"

namespace {

constexpr long kLargestFile = 0x7fffffff;

struct CloseStream {
    void operator()(FILE* stream) const { std::fclose(stream); }
};

}  // namespace

// Not by OpenRead of file_t: that one shortens a name of more than 255 bytes, and would read another file.
bool ScriptFile::Load(const char* path) {
    bytes_.reset();
    size_ = 0;
    if (!IsUsablePath(path)) return false;
    const std::unique_ptr<FILE, CloseStream> stream(_fsopen(path, "rb", _SH_DENYNO));
    if (!stream || std::fseek(stream.get(), 0, SEEK_END) != 0) return false;
    const long size = std::ftell(stream.get());
    if (size < 0 || size > kLargestFile || std::fseek(stream.get(), 0, SEEK_SET) != 0) return false;
    if (size == 0) return true;
    std::unique_ptr<char[]> bytes(new (std::nothrow) char[static_cast<size_t>(size)]);
    if (!bytes ||
        std::fread(bytes.get(), 1, static_cast<size_t>(size), stream.get()) != static_cast<size_t>(size))
        return false;
    bytes_ = std::move(bytes);
    size_ = size;
    return true;
}
