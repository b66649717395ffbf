#include "manager/project_scripts.h"

#include "catalogue/project_record.h"

std::vector<ProjectScript> ListProjectScripts(const CTemplateManager& catalogue) {
    std::vector<ProjectScript> scripts;
    PathBuffer mainScript;
    if (!GetMainScriptPath(CurrentHost(), mainScript)) return scripts;
    CStringArray includes;
    GetIncludes(mainScript, includes);
    for (INT_PTR i = 0; i < includes.GetSize(); ++i) {
        ProjectScript& script = scripts.emplace_back();
        script.include = includes[i];
        script.inCatalogue = catalogue.GetNameOfFile(script.catalogueName, script.include);
    }
    return scripts;
}

char LocationMark(ScriptLocation location) {
    switch (location) {
        case ScriptInProject: return '*';
        case ScriptInTemplates: return ' ';
        case ScriptNotFound: break;
    }
    return '?';
}

void FindDependents(const CTemplateManager& catalogue, const std::vector<ProjectScript>& listed,
                    const CString& name, CStringArray& dependents) {
    CString file;
    if (!catalogue.GetFile(file, name, false)) return;
    for (const ProjectScript& script : listed) {
        CScriptRecord record;
        if (!script.inCatalogue || script.catalogueName == name) continue;
        if (!catalogue.GetRecord(record, script.catalogueName)) continue;
        for (INT_PTR i = 0; i < record.needs.GetSize(); ++i) {
            if (record.needs[i] == file) dependents.Add(script.catalogueName);
        }
    }
}
