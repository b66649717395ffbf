#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "catalogue/project_record.h"
#include "catalogue/project_record_file.h"
#include "catalogue/script_location.h"
#include "catalogue/script_operations.h"
#include "support/file_objects.h"

namespace {

constexpr const char* kNumberMarker = "%_%";

void CopyText(char* out, size_t outSize, const char* text) {
    const size_t size = std::min(std::strlen(text), outSize - 1);
    std::memcpy(out, text, size);
    out[size] = '\0';
}

// Puts the first number behind the underscore of `path` that makes a path where no file is. False when there
// is no room for it.
bool TakeFreeNumber(PathBuffer& path, int& number) {
    const std::string_view whole = path;
    const size_t dot = whole.rfind('.');
    const CString stem(path, static_cast<int>(dot));
    const CString extension = path + dot;
    for (number = 0;; ++number) {
        const int size =
            std::snprintf(path, kPathSize, "%s%d%s", stem.GetString(), number, extension.GetString());
        if (size < 0 || static_cast<size_t>(size) >= kPathSize) return false;
        if (!file_t::FileExist(path, nullptr)) return true;
    }
}

bool UserAllowsOverwrite(const char* path) {
    CString question;
    question.Format("%s\nFile exist! Overwrite?", path);
    return AfxMessageBox(question, MB_OKCANCEL) == IDOK;
}

bool CopyNumbered(TarnInterface& host, const char* source, PathBuffer& destination) {
    int number = 0;
    if (!TakeFreeNumber(destination, number)) return false;
    char text[16];
    std::snprintf(text, sizeof text, "_%d", number);
    const char* const table[] = {kNumberMarker, text, nullptr};
    return HostAgrees(host.CopyWithSubstitution(source, destination, table));
}

bool CopyAsItIs(TarnInterface& host, const char* source, const char* destination) {
    if (file_t::FileExist(destination, nullptr) && !UserAllowsOverwrite(destination)) return false;
    return HostAgrees(host.CopyWithSubstitution(source, destination, nullptr));
}

// `destination` is the new path when the copy was made.
bool CopyInto(TarnInterface& host, const char* source, const char* folder, PathBuffer& destination) {
    if (!file_t::FileExist(source, nullptr)) return false;
    if (!JoinPath(destination, folder, ShortName(source))) return false;
    return IsNumberedTemplate(destination) ? CopyNumbered(host, source, destination)
                                           : CopyAsItIs(host, source, destination);
}

// A file that has been copied into the folder is from then on meant by its new path.
bool BringInto(TarnInterface& host, const char* folder, PathBuffer& path) {
    PathBuffer copy;
    if (!CopyInto(host, path, folder, copy)) return false;
    std::memcpy(path, copy, sizeof path);
    return true;
}

InstallResult AddTo(TarnInterface& host, const char* mainScript, const char* script) {
    ScriptFile file;
    if (!file.Load(mainScript) || file.IsEmpty()) return InstallResult::MainScriptEmpty;
    CLex lex(file.Data(), file.Size());
    const RecordChange change = ChangeByAdding(lex, mainScript, script);
    if (change == RecordChange::Unchanged) return InstallResult::NothingToAdd;
    host.ScriptsChanged();
    return change == RecordChange::Written ? InstallResult::Installed : InstallResult::MainScriptNotWritten;
}

}  // namespace

bool IsNumberedTemplate(const char* path) {
    const std::string_view name = path;
    const size_t dot = name.rfind('.');
    return dot != std::string_view::npos && dot > 0 && name[dot - 1] == '_' &&
           _stricmp(path + dot + 1, "brl") == 0;
}

bool CopyScript(const char* source, char* out, int outSize, const char* folder) {
    TarnInterface* const host = CurrentHost();
    PathBuffer destination;
    if (!host || outSize <= 0 || !CopyInto(*host, source, folder, destination)) return false;
    CopyText(out, static_cast<size_t>(outSize), destination);
    return true;
}

InstallResult Install(TarnInterface* host, const char* path) {
    if (!host) return InstallResult::NoHost;
    if (!IsUsablePath(path)) return InstallResult::PathTooLong;
    PathBuffer script;
    PathBuffer folder;
    PathBuffer mainScript;
    CopyText(script, sizeof script, path);
    GetProjectFolderPath(host, folder);
    if (!GetMainScriptPath(host, mainScript)) {
        host->CreateMainScript();
        if (!GetMainScriptPath(host, mainScript)) return InstallResult::NoMainScript;
    }
    if (!IsInFolder(folder, mainScript) && !BringInto(*host, folder, mainScript))
        return InstallResult::MainScriptNotCopied;
    if (!IsInFolder(folder, script) && IsNumberedTemplate(script) && !BringInto(*host, folder, script))
        return InstallResult::TemplateNotCopied;
    return AddTo(*host, mainScript, script);
}

bool InstallScript(const char* path) {
    switch (Install(CurrentHost(), path)) {
        case InstallResult::NoHost:
        case InstallResult::PathTooLong:
        case InstallResult::NoMainScript:
        case InstallResult::MainScriptNotCopied:
        case InstallResult::TemplateNotCopied: return false;
        default: return true;
    }
}
