#include "manager/script_changes.h"

#include "catalogue/project_record.h"
#include "catalogue/script_operations.h"

namespace {

CString DependentsText(const CStringArray& dependents) {
    CString text = "The following scripts must be removed first: ";
    for (INT_PTR i = 0; i < dependents.GetSize(); ++i)
        text += "\n" + dependents[i];
    return text;
}

ResetResult SayCantReset(HWND owner, const char* text, ResetResult result) {
    MessageBoxA(owner, text, "Can't Reset", MB_ICONHAND);
    return result;
}

}  // namespace

RemoveResult RemoveFromProject(const CTemplateManager& catalogue, const std::vector<ProjectScript>& listed,
                               const CString& name, HWND owner) {
    CStringArray dependents;
    FindDependents(catalogue, listed, name, dependents);
    if (!dependents.IsEmpty()) {
        MessageBoxA(owner, DependentsText(dependents), "Can't Remove Script", MB_ICONHAND);
        return RemoveResult::Needed;
    }
    CString file;
    if (!catalogue.GetFile(file, name, false)) return RemoveResult::NotIncluded;
    switch (ChangeByRemoving(file)) {
        case RecordChange::Unchanged: return RemoveResult::NotIncluded;
        case RecordChange::NotWritten: return RemoveResult::NotWritten;
        case RecordChange::Written: break;
    }
    return RemoveResult::Removed;
}

ResetResult ResetToTemplate(const CString& file, HWND owner) {
    switch (LocateScript(file)) {
        case ScriptNotFound: return SayCantReset(owner, "Script NOT FOUND!", ResetResult::NotFound);
        case ScriptInTemplates:
            return SayCantReset(owner, "Script is already using default values.", ResetResult::NoCopy);
        case ScriptInProject: break;
    }
    if (AfxMessageBox("Restore values to default??", MB_YESNO) == IDNO) return ResetResult::Declined;
    if (DeleteProjectScript(file)) return ResetResult::Done;
    return SayCantReset(owner, "Could not delete file (is the file locked?).", ResetResult::NotDeleted);
}
