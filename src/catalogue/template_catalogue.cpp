#include "catalogue/template_catalogue.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <unordered_set>

#include "catalogue/ascii_case.h"
#include "catalogue/template_catalogue_walk.h"

CTemplateManager g_templateManager;
bool g_templatesLoaded = false;

bool EnsureTemplatesLoaded() {
    if (!g_templatesLoaded) g_templatesLoaded = g_templateManager.Load();
    return g_templatesLoaded;
}

CScriptRecord::CScriptRecord(const CScriptRecord& other) {
    *this = other;
}

CScriptRecord& CScriptRecord::operator=(const CScriptRecord& other) {
    if (this == &other) return *this;
    id = other.id;
    directory = other.directory;
    filename = other.filename;
    name = other.name;
    desc = other.desc;
    scriptClass = other.scriptClass;
    type = other.type;
    vers = other.vers;
    date = other.date;
    actions = other.actions;
    needs.Copy(other.needs);
    return *this;
}

namespace {

constexpr char kAllClasses[] = "<ALL>";

std::string_view ViewOf(const CString& text) {
    return {text.GetString(), static_cast<size_t>(text.GetLength())};
}

struct FoldedHash {
    size_t operator()(std::string_view text) const {
        uint32_t hash = 2166136261u;
        for (const char ch : text)
            hash = (hash ^ static_cast<uint8_t>(FoldCase(ch))) * 16777619u;
        return hash;
    }
};

struct FoldedEqual {
    bool operator()(std::string_view a, std::string_view b) const {
        const auto same = [](char x, char y) { return FoldCase(x) == FoldCase(y); };
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
    }
};

// What a NameIndex asks its list.
template <class Entry>
auto KeyOf(const std::vector<Entry>& entries, CString Entry::*key) {
    return [&entries, key](uint32_t place) { return ViewOf(entries[place].*key); };
}

template <class Entry>
void Extend(NameIndex& index, const std::vector<Entry>& entries, CString Entry::*key) {
    index.Extend(entries.size(), KeyOf(entries, key));
}

template <class Entry>
const Entry* Find(const NameIndex& index, const std::vector<Entry>& entries, CString Entry::*key,
                  const char* name) {
    const uint32_t place = index.Find(name ? name : "", KeyOf(entries, key));
    return place == NameIndex::kNotFound ? nullptr : &entries[place];
}

CString WithoutLeadingDots(const CString& path) {
    int dots = 0;
    while (path.GetAt(dots) == '.')
        ++dots;
    return path.Mid(dots);
}

bool Answer(const CScriptRecord* record, CString CScriptRecord::*field, CString& answer) {
    if (record) answer = record->*field;
    return record != nullptr;
}

}  // namespace

bool CTemplateManager::LoadText(const char* text, XmlResult* result) {
    const XmlTreePtr tree(CXmlReader::Parse(text, result));
    if (!tree) return false;
    AppendTemplates(*tree, *this);
    Extend(directoriesByType_, directories, &CTemplateDir::type);
    Extend(recordsByName_, records, &CScriptRecord::name);
    Extend(recordsByFile_, records, &CScriptRecord::filename);
    for (const CTemplateDir& directory : directories) {
        if (directory.type == "base") base = directory.path;
    }
    return true;
}

bool CTemplateManager::GetClasses(CStringArray& classes, const char* scriptType) const {
    const CString wanted(scriptType);
    classes.RemoveAll();
    classes.Add(kAllClasses);
    std::unordered_set<std::string_view, FoldedHash, FoldedEqual> listed{kAllClasses};
    for (const CScriptRecord& record : records) {
        if (record.type != wanted) continue;
        if (listed.insert(ViewOf(record.scriptClass)).second) classes.Add(record.scriptClass);
    }
    return true;
}

bool CTemplateManager::GetScripts(CStringArray& names, const char* scriptType) const {
    const CString wanted(scriptType);
    names.RemoveAll();
    for (const CScriptRecord& record : records) {
        if (record.type == wanted) names.Add(record.name);
    }
    return true;
}

bool CTemplateManager::GetScriptsOfClass(CStringArray& names, const char* scriptType,
                                         const char* scriptClass) const {
    const CString wantedClass(scriptClass);
    if (wantedClass.CompareNoCase(kAllClasses) == 0) return GetScripts(names, scriptType);
    const CString wanted(scriptType);
    names.RemoveAll();
    for (const CScriptRecord& record : records) {
        if (record.scriptClass == wantedClass && record.type == wanted) names.Add(record.name);
    }
    return true;
}

const CScriptRecord* CTemplateManager::FindRecord(const char* scriptName) const {
    return Find(recordsByName_, records, &CScriptRecord::name, scriptName);
}

bool CTemplateManager::GetActions(CStringArray& actions, const char* scriptName) const {
    const CScriptRecord* record = FindRecord(scriptName);
    actions.RemoveAll();
    if (!record) return false;
    for (const CScriptAction& action : record->actions) {
        actions.Add(action.name.IsEmpty() ? action.filename : action.name);
    }
    return true;
}

bool CTemplateManager::GetDesc(CString& desc, const char* scriptName) const {
    return Answer(FindRecord(scriptName), &CScriptRecord::desc, desc);
}

bool CTemplateManager::GetDate(CString& scriptDate, const char* scriptName) const {
    return Answer(FindRecord(scriptName), &CScriptRecord::date, scriptDate);
}

bool CTemplateManager::GetVers(CString& vers, const char* scriptName) const {
    return Answer(FindRecord(scriptName), &CScriptRecord::vers, vers);
}

bool CTemplateManager::GetNameOfFile(CString& scriptName, const char* filename) const {
    return Answer(Find(recordsByFile_, records, &CScriptRecord::filename, filename), &CScriptRecord::name,
                  scriptName);
}

bool CTemplateManager::GetRecord(CScriptRecord& record, const char* scriptName) const {
    const auto* found = FindRecord(scriptName);
    if (found) record = *found;
    return found != nullptr;
}

bool CTemplateManager::GetFile(CString& file, const char* scriptName, bool fullPath) const {
    const auto* record = FindRecord(scriptName);
    if (!record || !fullPath) return Answer(record, &CScriptRecord::filename, file);
    const auto* directory = Find(directoriesByType_, directories, &CTemplateDir::type, record->directory);
    if (!directory) return false;
    file = base + WithoutLeadingDots(directory->path) + "\\" + WithoutLeadingDots(record->filename);
    return true;
}
