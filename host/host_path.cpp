#include "host/host_path.h"

#include <algorithm>

#include "support/file_objects.h"

namespace {

bool IsFull(std::string_view path) {
    return path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
}

// What a full path begins with: a drive, the first of the two backslashes of a server, or nothing.
std::string_view Root(std::string_view path) {
    if (path.starts_with("\\\\")) return path.substr(0, 1);
    return path.substr(0, path.find('\\'));
}

// Takes the last part off, but never the drive.
void GoUp(std::string& path) {
    const size_t last = path.rfind('\\');
    if (last != std::string::npos) {
        path.resize(last);
    } else if (!path.ends_with(':')) {
        path.clear();
    }
}

}  // namespace

std::string PathFrom(std::string_view folder, std::string_view path) {
    std::string given(path);
    std::replace(given.begin(), given.end(), '/', '\\');
    std::string full(IsFull(given) ? Root(given) : folder);
    std::string_view rest = given;
    if (IsFull(given)) rest.remove_prefix(full.size());
    while (!rest.empty()) {
        const size_t size = std::min(rest.find('\\'), rest.size());
        const std::string_view part = rest.substr(0, size);
        if (part == "..") {
            GoUp(full);
        } else if (!part.empty() && part != ".") {
            full.append("\\").append(part);
        }
        rest.remove_prefix(std::min(size + 1, rest.size()));
    }
    return full;
}

std::string FullPath(std::string_view path) {
    const std::string current = PathFrom("", file_t::AbsPath(".").GetString());
    return file_t::AbsPath(PathFrom(current, path).c_str()).GetString();
}
