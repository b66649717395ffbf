#include "manager/notes_report.h"

#include "catalogue/project_record.h"
#include "catalogue/script_location.h"
#include "catalogue/script_operations.h"

namespace {

constexpr const char* kLineEnd = "\r\n";

const char* NotesMark(ScriptLocation location) {
    switch (location) {
        case ScriptInProject: return "*";
        case ScriptInTemplates: return "";
        case ScriptNotFound: break;
    }
    return "!";
}

CString ScriptLine(const CString& include) {
    CString version;
    CString date;
    GetScriptInfo(include, version, date, false);
    return NotesMark(LocateScript(include)) + include + "  (" + version + ") (" + date + ")" + kLineEnd;
}

}  // namespace

CString NotesReport(const CTemplateManager& catalogue, const CString& mainScript) {
    CString report = "Template: " + catalogue.name + kLineEnd;
    report += "\tType: " + catalogue.type + kLineEnd;
    report += "\tDate: " + catalogue.date + kLineEnd;
    report += "\tVers: " + catalogue.version + kLineEnd;
    report += "\tReq: " + catalogue.engineReq + kLineEnd;
    report += kLineEnd;
    report += "Main Script: " + mainScript + kLineEnd;
    report += kLineEnd;
    CStringArray includes;
    GetIncludes(mainScript, includes);
    for (INT_PTR i = 0; i < includes.GetSize(); ++i)
        report += ScriptLine(includes[i]);
    return report;
}
