#include "manager/update_list.h"

#include "catalogue/script_operations.h"

namespace {

bool IsSame(const ScriptInfo& a, const ScriptInfo& b) {
    return a.ver == b.ver && a.date == b.date;
}

}  // namespace

std::vector<UpdateEntry> ListUpdates(const CTemplateManager& catalogue, bool force) {
    std::vector<UpdateEntry> listed;
    for (const ProjectScript& script : ListProjectScripts(catalogue)) {
        if (!script.inCatalogue || LocateScript(script.include) != ScriptInProject) continue;
        UpdateEntry entry{script.include, script.catalogueName, !force, {}, {}};
        if (entry.compared) {
            GetScriptInfo(entry.include, entry.local.ver, entry.local.date, false);
            GetScriptInfo(entry.include, entry.original.ver, entry.original.date, true);
            if (IsSame(entry.local, entry.original)) continue;
        }
        listed.push_back(entry);
    }
    return listed;
}

CString UpdateText(const UpdateEntry& entry) {
    if (!entry.compared) return entry.name;
    return entry.name + "--[Local ver: " + entry.local.ver + " date: " + entry.local.date +
           " --> Template ver: " + entry.original.ver + " date: " + entry.original.date + "]";
}

bool UserWantsAllUpdates(HWND owner, const std::vector<UpdateEntry>& listed) {
    if (!listed.empty()) return AfxMessageBox("Update All Scripts Listed?", MB_YESNO) != IDNO;
    MessageBoxA(owner, "Everything Up-to-Date.", "Can't Update", MB_ICONHAND);
    return false;
}
