#include "file_dialog_paths.h"

#include <set>

namespace {

constexpr size_t kRootLength = 3;  // as in C:\ .

bool HasDrive(std::string_view name) {
    return name.size() >= 2 && name[1] == ':';
}

// Calls back with each part between separators, those without characters left out.
template <typename Take>
void ForEachPart(std::string_view text, char separator, Take take) {
    while (!text.empty()) {
        const size_t end = std::min(text.find(separator), text.size());
        if (end > 0) take(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

template <typename Take>
void ForEachEntry(const std::string& pattern, Take take) {
    WIN32_FIND_DATAA entry = {};
    const HANDLE search = FindFirstFileA(pattern.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return;
    do
        take(entry);
    while (FindNextFileA(search, &entry));
    FindClose(search);
}

std::string Joined(const std::string& folder, const std::string& name) {
    return folder.back() == '\\' ? folder + name : folder + '\\' + name;
}

}  // namespace

std::vector<FileFilter> ReadFileFilters(LPCSTR pairs) {
    std::vector<FileFilter> filters;
    while (pairs && *pairs) {
        const std::string label = pairs;
        pairs += label.size() + 1;
        const std::string patterns = pairs;
        pairs += patterns.size() + 1;
        filters.push_back({label, SplitPatterns(patterns)});
    }
    return filters;
}

std::vector<std::string> SplitPatterns(std::string_view patterns) {
    std::vector<std::string> split;
    ForEachPart(patterns, ';', [&split](std::string_view part) { split.emplace_back(part); });
    return split;
}

std::string ResolveName(const std::string& folder, std::string_view name) {
    std::string start = folder;
    if (HasDrive(name)) {
        start = std::string(name.substr(0, 2)) + '\\';
        name.remove_prefix(2);
    } else if (!name.empty() && name[0] == '\\') {
        start = folder.substr(0, 2) + '\\';
    }
    std::vector<std::string_view> parts;
    const auto add = [&parts](std::string_view part) {
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (part != ".") {
            parts.push_back(part);
        }
    };
    ForEachPart(std::string_view(start).substr(2), '\\', add);
    ForEachPart(name, '\\', add);
    std::string path = start.substr(0, 2) + '\\';
    for (const std::string_view part : parts) {
        if (path.size() > kRootLength) path += '\\';
        path += part;
    }
    return path;
}

std::string FolderPart(const std::string& path) {
    const size_t at = path.rfind('\\');
    return path.substr(0, std::max(at, kRootLength));
}

std::string NamePart(const std::string& path) {
    return path.substr(path.rfind('\\') + 1);
}

bool HasWildcards(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

bool HasBadCharacters(std::string_view name) {
    if (HasDrive(name)) name.remove_prefix(2);
    return name.find_first_of("/:<>|") != std::string_view::npos;
}

bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_DIRECTORY;
}

bool Exists(const std::string& path) {
    return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

FolderContent ReadFolder(const std::string& folder, const std::vector<std::string>& patterns) {
    FolderContent content;
    ForEachEntry(Joined(folder, "*"), [&content](const WIN32_FIND_DATAA& entry) {
        const std::string name = entry.cFileName;
        if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY && name != ".") content.folders.push_back(name);
    });
    std::set<std::string> files;
    for (const std::string& pattern : patterns)
        ForEachEntry(Joined(folder, pattern), [&files](const WIN32_FIND_DATAA& entry) {
            if (!(entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) files.insert(entry.cFileName);
        });
    content.files.assign(files.begin(), files.end());
    return content;
}
