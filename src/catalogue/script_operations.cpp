#include "catalogue/script_operations.h"

#include <afxwin.h>

#include "catalogue/project_record_file.h"
#include "catalogue/script_info.h"
#include "catalogue/script_location.h"
#include "support/file_objects.h"
#include "support/saved_file.h"

namespace {

bool Exists(const char* path) {
    return file_t::FileExist(path, nullptr);
}

// An empty copy in the project hides the template's file, too.
bool LoadScript(TarnInterface* host, const char* name, bool fromTemplate, ScriptFile& file) {
    PathBuffer path;
    if (!fromTemplate && GetProjectPath(host, name, path) && file.Load(path)) return true;
    return GetTemplatePath(host, name, path) && file.Load(path);
}

// Always false, as the answer of the operation that failed.
bool SayCantUpdate(const char* text) {
    MessageBoxA(nullptr, text, "Can't Update Script", MB_ICONHAND);
    return false;
}

bool SayNoOriginal() {
    return SayCantUpdate("Can't find the original in template folder.");
}

}  // namespace

bool GetScriptInfo(const char* name, CString& ver, CString& date, bool fromTemplate) {
    ScriptInfo info;
    ScriptFile file;
    const bool found = LoadScript(CurrentHost(), name, fromTemplate, file);
    if (!file.IsEmpty()) {
        CLex lex(file.Data(), file.Size());
        info = ReadScriptInfo(lex);
    }
    ver = info.ver;
    date = info.date;
    return found;
}

bool DeleteProjectScript(const char* name) {
    PathBuffer path;
    return GetProjectPath(CurrentHost(), name, path) && Exists(path) && DeleteFileA(path);
}

bool RestoreScript(TarnInterface* host, const char* name) {
    PathBuffer path;
    if (!host) return false;
    if (GetProjectPath(host, name, path) && Exists(path)) return SayCantUpdate("Original file still there.");
    if (!GetTemplatePath(host, name, path) || !Exists(path)) return SayNoOriginal();
    PathBuffer copy = {};
    if (HostAgrees(host->CopyToProject(path, copy, kPathSize))) return true;
    AfxMessageBox("Copy error (1128).\nNo Update.");
    return false;
}

bool CanRestoreScript(TarnInterface* host, const char* name) {
    PathBuffer path;
    ScriptFile file;
    return GetTemplatePath(host, name, path) && file.Load(path);
}

TemplateSwap ReplaceByTemplate(TarnInterface* host, const char* name) {
    PathBuffer path;
    ScriptFile old;
    if (!GetProjectPath(host, name, path) || !old.Load(path)) return TemplateSwap::NotDeleted;
    if (!CanRestoreScript(host, name)) {
        SayNoOriginal();
        return TemplateSwap::NotRestored;
    }
    if (!DeleteFileA(path)) return TemplateSwap::NotDeleted;
    if (RestoreScript(host, name)) return TemplateSwap::Done;
    const bool restored = ReplaceFileContent(path, old.Data(), static_cast<size_t>(old.Size()));
    return restored ? TemplateSwap::NotRestored : TemplateSwap::CopyLost;
}
