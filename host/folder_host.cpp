#include "host/folder_host.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "catalogue/project_record_file.h"
#include "catalogue/script_location.h"
#include "host/file_copy.h"
#include "host/host_answer.h"
#include "host/host_path.h"
#include "support/file_objects.h"
#include "support/saved_file.h"

namespace {

constexpr const char* kMainScriptName = "main.brl";
constexpr const char* kNewMainScript = "// The project's main script.\r\n\r\nfunction main()\r\n{\r\n}\r\n";

HostWord TellName(const std::vector<std::string>& names, HostWord index, char* buffer, HostWord size) {
    if (index < 0 || static_cast<size_t>(index) >= names.size()) return 0;
    return Answer(names[static_cast<size_t>(index)], buffer, size);
}

std::string CallText(const char* operation, HostWord argument) {
    return operation + (' ' + std::to_string(argument));
}

std::string TableText(const char* const* table) {
    std::string text;
    for (; table && table[0]; table += 2)
        text += std::string(" ") + table[0] + "=" + table[1];
    return text;
}

bool EqualPaths(const std::string& a, const char* b) {
    return CString(a.c_str()).CompareNoCase(b) == 0;
}

}  // namespace

std::unique_ptr<FolderHost> FolderHost::Open(const std::string& path, std::string& error) {
    std::string file = FullPath(path);
    if (file_t::DirExist(file.c_str())) file = PathFrom(file, kProjectFileName);
    ScriptFile content;
    if (!content.Load(file.c_str())) {
        error = file + ": can't be read";
        return nullptr;
    }
    ProjectError fault;
    std::optional<HostProject> project =
        ReadProject(IniText(content.Text()), file.substr(0, file.rfind('\\')), fault);
    if (!project) {
        error = file + (fault.line > 0 ? ":" + std::to_string(fault.line) : "") + ": " + fault.text;
        return nullptr;
    }
    auto host = std::make_unique<FolderHost>(std::move(*project));
    host->projectFile_ = file;
    return host;
}

FolderHost::FolderHost(HostProject project) : project_(std::move(project)) {
    app_.tarn = this;
}

HostProject FolderHost::Project() const {
    const Lock lock(mutex_);
    return project_;
}

// The file is read anew, so that what was edited by hand since then stays.
bool FolderHost::Save() {
    const Lock lock(mutex_);
    if (projectFile_.empty()) return true;
    ScriptFile content;
    if (!content.Load(projectFile_.c_str())) return false;
    IniText ini(content.Text());
    ProjectError fault;
    const std::string folder = projectFile_.substr(0, projectFile_.rfind('\\'));
    const std::optional<HostProject> before = ReadProject(ini, folder, fault);
    if (!before) return false;
    WriteChanges(*before, project_, ini);
    const std::string text = ini.Text();
    return text == content.Text() || ReplaceFileContent(projectFile_.c_str(), text.data(), text.size());
}

void FolderHost::ChooseFile(const std::string& path) {
    const Lock lock(mutex_);
    chosenFile_ = path;
}

void FolderHost::RecordCalls() {
    const Lock lock(mutex_);
    recording_ = true;
}

std::vector<std::string> FolderHost::TakeCalls() {
    const Lock lock(mutex_);
    return std::exchange(calls_, {});
}

void FolderHost::Record(const std::string& call) {
    if (recording_) calls_.push_back(call);
}

HostWord FolderHost::GetClassId() {
    const Lock lock(mutex_);
    Record("GetClassId");
    return kHostClassId;
}

// Never over a file that is there.
void FolderHost::CreateMainScript() {
    const Lock lock(mutex_);
    Record("CreateMainScript");
    if (project_.mainScript.empty()) project_.mainScript = PathFrom(project_.folder, kMainScriptName);
    if (file_t::FileExist(project_.mainScript.c_str(), nullptr)) return;
    ReplaceFileContent(project_.mainScript.c_str(), kNewMainScript, std::strlen(kNewMainScript));
}

HostWord FolderHost::GetMainScript(char* buffer, HostWord size) {
    const Lock lock(mutex_);
    Record("GetMainScript");
    if (!file_t::FileExist(project_.mainScript.c_str(), nullptr)) return 0;
    return Answer(project_.mainScript, buffer, size);
}

void FolderHost::ScriptsChanged() {
    const Lock lock(mutex_);
    Record("ScriptsChanged");
}

HostWord FolderHost::BeginEntities() {
    const Lock lock(mutex_);
    Record("BeginEntities");
    return static_cast<HostWord>(project_.entities.size());
}

HostWord FolderHost::GetEntity(HostWord index, char* buffer, HostWord size) {
    const Lock lock(mutex_);
    Record(CallText("GetEntity", index));
    const HostEntity* const entity = EntityOf(index + 1);
    return entity ? Answer(entity->name, buffer, size) : 0;
}

void FolderHost::EndEntities() {
    const Lock lock(mutex_);
    Record("EndEntities");
}

HostWord FolderHost::BeginPathsA() {
    const Lock lock(mutex_);
    Record("BeginPathsA");
    return static_cast<HostWord>(project_.pathsA.size());
}

HostWord FolderHost::GetPathA(HostWord index, char* buffer, HostWord size) {
    const Lock lock(mutex_);
    Record(CallText("GetPathA", index));
    return TellName(project_.pathsA, index, buffer, size);
}

void FolderHost::EndPathsA() {
    const Lock lock(mutex_);
    Record("EndPathsA");
}

HostWord FolderHost::BeginPathsB() {
    const Lock lock(mutex_);
    Record("BeginPathsB");
    return static_cast<HostWord>(project_.pathsB.size());
}

HostWord FolderHost::GetPathB(HostWord index, char* buffer, HostWord size) {
    const Lock lock(mutex_);
    Record(CallText("GetPathB", index));
    return TellName(project_.pathsB, index, buffer, size);
}

void FolderHost::EndPathsB() {
    const Lock lock(mutex_);
    Record("EndPathsB");
}

HostWord FolderHost::BrowseFile(char* buffer, HostWord size, HostWord kind, const char* folder) {
    const Lock lock(mutex_);
    Record(CallText("BrowseFile", kind) + " " + folder);
    const std::string chosen = std::exchange(chosenFile_, {});
    return chosen.empty() ? 0 : Answer(chosen, buffer, size);
}

void FolderHost::GetProjectFolder(char* buffer, HostWord size) {
    const Lock lock(mutex_);
    Record("GetProjectFolder");
    Answer(project_.folder, buffer, size);
}

HostWord FolderHost::CopyToProject(const char* source, char* buffer, HostWord size) {
    const Lock lock(mutex_);
    Record(std::string("CopyToProject ") + source);
    const std::string copy = PathFrom(project_.folder, ShortName(source));
    if (copy.size() >= static_cast<size_t>(std::max<HostWord>(size, 0))) return 0;
    if (!Copy(source, copy.c_str(), nullptr)) return 0;
    return Answer(copy, buffer, size);
}

HostWord FolderHost::CopyWithSubstitution(const char* source, const char* destination,
                                          const char* const* table) {
    const Lock lock(mutex_);
    Record(std::string("CopyWithSubstitution ") + source + " " + destination + TableText(table));
    return Copy(source, destination, table);
}

// A main script that is copied into the project is meant by its copy from then on.
bool FolderHost::Copy(const char* source, const char* destination, const char* const* table) {
    const bool isMain = EqualPaths(project_.mainScript, source);
    if (!CopyContent(source, destination, table)) return false;
    if (isMain && IsInFolder(project_.folder.c_str(), destination)) project_.mainScript = destination;
    return true;
}

void FolderHost::NotCalled1() {
    const Lock lock(mutex_);
    Record("NotCalled1");
}

void FolderHost::NotCalled2() {
    const Lock lock(mutex_);
    Record("NotCalled2");
}

void FolderHost::NotCalled3() {
    const Lock lock(mutex_);
    Record("NotCalled3");
}

void FolderHost::NotCalled4() {
    const Lock lock(mutex_);
    Record("NotCalled4");
}

void FolderHost::NotCalled5() {
    const Lock lock(mutex_);
    Record("NotCalled5");
}
