#include <crt_text.h>
#include <share.h>
#include <windows.h>

#include <cerrno>
#include <cstring>
#include <string_view>

#include "errors.h"
#include "lookup.h"

namespace {

// One of r, w, a, then b and perhaps +, in any order.
bool IsBinaryMode(const char* mode) {
    const std::string_view text = mode ? mode : "";
    if (text.empty() || !std::strchr("rwa", text[0])) return false;
    const std::string_view rest = text.substr(1);
    return rest == "b" || rest == "+b" || rest == "b+";
}

int CheckOpen(const LookedUp& place, std::string_view mode) {
    if (place.error == ERROR_FILE_NOT_FOUND && mode[0] != 'r') return place.endsInSeparator ? EINVAL : 0;
    if (place.error != NO_ERROR) return ErrnoFromError(place.error);
    if (place.IsFolder()) return EACCES;
    if (place.endsInSeparator) return EINVAL;
    const bool writes = mode[0] != 'r' || mode.find('+') != std::string_view::npos;
    return writes && place.IsReadOnly() ? EACCES : 0;
}

}  // namespace

FILE* _fsopen(const char* name, const char* mode, int shareMode) {
    int code = EINVAL;
    LookedUp place{};
    if (IsBinaryMode(mode) && shareMode == _SH_DENYNO) {
        place = LookUp(name);
        code = CheckOpen(place, mode);
    }
    if (code == 0) return std::fopen(place.path.c_str(), mode);
    errno = code;
    return nullptr;
}
