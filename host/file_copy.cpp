#include "host/file_copy.h"

#include "catalogue/project_record_file.h"
#include "support/saved_file.h"

namespace {

// The pair whose first text stands at the start of `text`, or null.
const char* const* MatchingPair(std::string_view text, const char* const* table) {
    for (; table[0] && table[1]; table += 2) {
        if (table[0][0] && text.starts_with(table[0])) return table;
    }
    return nullptr;
}

}  // namespace

std::string Substituted(std::string_view text, const char* const* table) {
    if (!table || !table[0]) return std::string(text);
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        if (const char* const* const pair = MatchingPair(text, table)) {
            result += pair[1];
            text.remove_prefix(std::string_view(pair[0]).size());
        } else {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

bool CopyContent(const char* source, const char* destination, const char* const* table) {
    ScriptFile file;
    if (!file.Load(source)) return false;
    const std::string content = Substituted(file.Text(), table);
    return ReplaceFileContent(destination, content.data(), content.size());
}
