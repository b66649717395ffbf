#include "catalogue/script_location.h"

#include <cstring>

#include "support/file_objects.h"

namespace {

// The host writes into the buffer; its last byte stays ours.
bool IsFilled(PathBuffer& path) {
    path[kPathSize - 1] = '\0';
    return path[0] != '\0';
}

bool AskFolder(TarnInterface* host, HostFolderQuery query, PathBuffer& path) {
    path[0] = '\0';
    if (!host) return false;
    HostFolderBlock block{query, 0, path, kPathSize};
    if (!host->Message(0, MessageGetFolder, &block, sizeof block) || block.length <= 0) path[0] = '\0';
    return IsFilled(path);
}

}  // namespace

bool IsBareName(const char* name) {
    return name && *name && !std::strpbrk(name, "\\/:*?\"<>|");
}

const char* ShortName(const char* path) {
    const char* const separator = std::strrchr(path, '\\');
    return separator ? separator + 1 : path;
}

bool JoinPath(PathBuffer& path, const char* folder, const char* name) {
    const size_t folderSize = std::strlen(folder);
    const size_t nameSize = std::strlen(name);
    const bool fits = folderSize + nameSize + 2 <= kPathSize;
    if (folderSize == 0 || !fits) {
        path[0] = '\0';
        return false;
    }
    // The buffer may be that of the folder.
    std::memmove(path, folder, folderSize);
    path[folderSize] = '\\';
    std::memcpy(path + folderSize + 1, name, nameSize + 1);
    return true;
}

bool GetMainScriptPath(TarnInterface* host, PathBuffer& path) {
    path[0] = '\0';
    if (!host || !host->GetMainScript(path, kPathSize)) path[0] = '\0';
    return IsFilled(path);
}

bool GetProjectFolderPath(TarnInterface* host, PathBuffer& path) {
    path[0] = '\0';
    if (host) host->GetProjectFolder(path, kPathSize);
    return IsFilled(path);
}

bool GetTemplateFolderPath(TarnInterface* host, PathBuffer& path) {
    PathBuffer name;
    if (AskFolder(host, QueryBaseFolder, path) && AskFolder(host, QueryTemplateFolder, name))
        return JoinPath(path, path, name);
    path[0] = '\0';
    return false;
}

bool GetProjectPath(TarnInterface* host, const char* name, PathBuffer& path) {
    path[0] = '\0';
    return IsBareName(name) && GetProjectFolderPath(host, path) && JoinPath(path, path, name);
}

bool GetTemplatePath(TarnInterface* host, const char* name, PathBuffer& path) {
    path[0] = '\0';
    return IsBareName(name) && GetTemplateFolderPath(host, path) && JoinPath(path, path, name);
}

ScriptLocation FindScript(TarnInterface* host, const char* name, PathBuffer& path) {
    if (GetProjectPath(host, name, path) && file_t::FileExist(path, nullptr)) return ScriptInProject;
    if (GetTemplatePath(host, name, path) && file_t::FileExist(path, nullptr)) return ScriptInTemplates;
    path[0] = '\0';
    return ScriptNotFound;
}

ScriptLocation LocateScript(const char* name) {
    PathBuffer path;
    return FindScript(CurrentHost(), name, path);
}

ScriptLocation ResolveScript(CString& name) {
    PathBuffer path;
    const ScriptLocation location = FindScript(CurrentHost(), name, path);
    if (location != ScriptNotFound) name = path;
    return location;
}

bool IsInFolder(const char* folder, const char* path) {
    if (!folder || !path) return false;
    const char* const separator = std::strrchr(path, '\\');
    return separator && _strnicmp(folder, path, static_cast<size_t>(separator - path)) == 0;
}
