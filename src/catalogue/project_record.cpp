#include "catalogue/project_record.h"

#include <string>

#include "catalogue/include_run.h"
#include "catalogue/project_record_file.h"
#include "catalogue/script_info.h"
#include "catalogue/script_location.h"
#include "support/saved_file.h"

namespace {

RecordChange Rewrite(const char* path, const std::string& text) {
    return ReplaceFileContent(path, text.data(), text.size()) ? RecordChange::Written
                                                              : RecordChange::NotWritten;
}

}  // namespace

bool GetIncludes(const char* path, CStringArray& names) {
    ScriptFile file;
    if (!file.Load(path) || file.IsEmpty()) return true;
    CLex lex(file.Data(), file.Size());
    if (lex.GetLastError() == CLEXERR_NONE) ReadIncludes(lex, names);
    return true;
}

int GetScriptNeeds(const char* path, CStringArray& names) {
    ScriptFile file;
    if (!file.Load(path) || file.IsEmpty()) return 0;
    CLex lex(file.Data(), file.Size());
    return ReadNeeds(lex, names);
}

RecordChange ChangeByAdding(CLex& lex, const char* mainPath, const char* scriptPath) {
    const CString script = ShortName(scriptPath);
    if (script.CollateNoCase(ShortName(mainPath)) == 0) return RecordChange::Unchanged;
    CStringArray names;
    GetScriptNeeds(scriptPath, names);
    names.Add(script);
    const char* const place = FindInsertPoint(lex, names);
    if (names.IsEmpty()) return RecordChange::Unchanged;
    const std::string_view text(lex.getBuf(), static_cast<size_t>(lex.getBufSize()));
    const size_t offset = place ? static_cast<size_t>(place - text.data()) : 0;
    return Rewrite(mainPath, WithIncludes(text, offset, names));
}

bool AddIncludes(CLex& lex, const char* mainPath, const char* scriptPath) {
    return ChangeByAdding(lex, mainPath, scriptPath) != RecordChange::Unchanged;
}

RecordChange ChangeByRemoving(const char* name) {
    TarnInterface* const host = CurrentHost();
    PathBuffer path;
    ScriptFile file;
    if (!GetMainScriptPath(host, path) || !file.Load(path) || file.IsEmpty()) return RecordChange::Unchanged;
    const std::optional<std::string> text = WithoutInclude(file.Text(), name);
    if (!text) return RecordChange::Unchanged;
    const RecordChange change = Rewrite(path, *text);
    if (change == RecordChange::Written) host->ScriptsChanged();
    return change;
}

bool RemoveInclude(const char* name) {
    return ChangeByRemoving(name) != RecordChange::Unchanged;
}
