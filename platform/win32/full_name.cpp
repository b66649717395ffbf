#include "full_name.h"

#include <winerror.h>

#include <cstring>
#include <optional>

#include "drives.h"

namespace {

bool IsValidInName(char ch) {
    return static_cast<unsigned char>(ch) >= ' ' && !std::strchr("<>:\"|?*", ch);
}

bool IsValidPart(std::string_view part) {
    for (const char ch : part) {
        if (!IsValidInName(ch)) return false;
    }
    return true;
}

void AddPart(std::string& rest, std::string_view part) {
    if (part.empty() || part == ".") return;
    if (part == "..") {
        rest.erase(rest.empty() ? 0 : rest.rfind('/'));  // the root is its own parent
        return;
    }
    rest += '/';
    rest += part;
}

std::string_view WithoutTail(std::string_view part) {
    if (part == "." || part == "..") return part;
    return part.substr(0, part.find_last_not_of(". ") + 1);
}

// Where the name starts from; takes the drive off it.
DWORD TakeStart(std::string_view& name, FullName& full) {
    std::optional<CurrentPlace> current = FindCurrentPlace();
    if (name.size() > 1 && name[1] == ':') {
        std::optional<std::string> folder = DriveFolder(name[0]);
        if (!folder) return ERROR_PATH_NOT_FOUND;
        name.remove_prefix(2);
        // Each drive but the current one stands at its root.
        if (!current || current->folder != *folder) {
            full.folder = std::move(*folder);
            return NO_ERROR;
        }
    } else if (name.size() > 1 && IsSeparator(name[0]) && IsSeparator(name[1])) {
        return ERROR_PATH_NOT_FOUND;  // a network name
    }
    if (!current) return ERROR_PATH_NOT_FOUND;
    full.folder = std::move(current->folder);
    if (name.empty() || !IsSeparator(name[0])) full.rest = std::move(current->rest);
    return NO_ERROR;
}

}  // namespace

DWORD MakeFullName(const char* name, FullName& full) {
    full = {};
    std::string_view left = name ? name : "";
    if (left.empty()) return ERROR_PATH_NOT_FOUND;
    if (left.size() >= MAX_PATH) return ERROR_FILENAME_EXCED_RANGE;
    if (const DWORD error = TakeStart(left, full); error != NO_ERROR) return error;
    while (!left.empty()) {
        size_t length = 0;
        while (length < left.size() && !IsSeparator(left[length]))
            ++length;
        const bool last = length == left.size();
        const std::string_view part = last ? WithoutTail(left) : left.substr(0, length);
        if (!IsValidPart(part)) return ERROR_INVALID_NAME;
        AddPart(full.rest, part);
        full.endsInSeparator = length + 1 == left.size();
        left.remove_prefix(last ? length : length + 1);
    }
    return NO_ERROR;
}

std::string_view LastPart(std::string_view name) {
    size_t start = name.size();
    while (start > 0 && !IsSeparator(name[start - 1]) && !(start == 2 && name[1] == ':'))
        --start;
    return WithoutTail(name.substr(start));
}
