// The side file's reader over any bytes; what it read must survive being written and read again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "customize/side_file.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const SideFile first = ParseSideFile(reinterpret_cast<const char*>(data), size);
    const std::string written = FormatSideFile(ScriptHeader(), first.values);
    const SideFile second = ParseSideFile(written.data(), written.size());
    if (second.code != SideFileCode::Ok || first.values.size() != second.values.size()) std::abort();
    for (size_t i = 0; i < first.values.size(); ++i) {
        const SavedValue& a = first.values[i];
        const SavedValue& b = second.values[i];
        if (a.id != b.id || a.kind != b.kind || a.value != b.value) std::abort();
    }
    return 0;
}
