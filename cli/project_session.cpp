#include "cli/project_session.h"

#include <algorithm>
#include <utility>

#include "cli/catalogue_file.h"
#include "cli/text_encoding.h"
#include "host/host_path.h"
#include "support/file_objects.h"

namespace {

bool Exists(const std::string& path) {
    return file_t::FileExist(path.c_str(), nullptr);
}

// The first entry that one of the tests, in their order, holds for.
template <class Entries, class... Tests>
auto FindFirst(const Entries& entries, Tests... tests) -> decltype(entries.data()) {
    decltype(entries.data()) found = nullptr;
    const auto search = [&entries, &found](auto test) {
        const auto place = std::find_if(entries.begin(), entries.end(), test);
        if (place != entries.end()) found = &*place;
        return found != nullptr;
    };
    (search(tests) || ...);
    return found;
}

}  // namespace

std::unique_ptr<ProjectSession> ProjectSession::Open(const std::string& folder,
                                                     const std::string& catalogueFile, std::ostream& err) {
    std::string error;
    std::unique_ptr<FolderHost> host = FolderHost::Open(folder, error);
    if (!host) {
        err << "brlv: " << error << '\n';
        return nullptr;
    }
    std::unique_ptr<ProjectSession> session(new ProjectSession(std::move(host)));
    if (!session->LoadCatalogueFor(catalogueFile, err)) session.reset();
    return session;
}

ProjectSession::ProjectSession(std::unique_ptr<FolderHost> host) : host_(std::move(host)) {
    g_appInterface = host_->App();
}

ProjectSession::~ProjectSession() {
    g_appInterface = nullptr;
}

bool ProjectSession::LoadCatalogueFor(const std::string& file, std::ostream& err) {
    std::string shown = file;
    std::string path = FullPath(file);
    if (file.empty()) {
        const std::string places[] = {PathFrom(FolderOf(host_->ProjectFile()), kCatalogueName),
                                      PathFrom(host_->Project().baseFolder, kCatalogueName),
                                      FullPath(kCatalogueName)};
        path = *std::find_if(std::begin(places), std::end(places) - 1, Exists);
        shown = Exists(path) ? ShownPath(path) : kCatalogueName;
    }
    catalogueFolder_ = FolderOf(path);
    return LoadCatalogue(catalogue_, path, shown, err) == ExitOk;
}

std::string ProjectSession::MainScriptName() const {
    const std::string path = host_->Project().mainScript;
    return path.empty() ? "main.brl" : path.substr(path.rfind('\\') + 1);
}

std::string ProjectSession::TemplatePath(const CString& name) const {
    CString path;
    return catalogue_.GetFile(path, name, true) ? PathFrom(catalogueFolder_, path.GetString()) : "";
}

std::optional<CString> FindInCatalogue(const CTemplateManager& catalogue, const std::string& name,
                                       std::ostream& err) {
    const char* const key = name.c_str();
    const CScriptRecord* const record = FindFirst(
        catalogue.records, [key](const CScriptRecord& r) { return r.name == key; },
        [key](const CScriptRecord& r) { return r.filename.CompareNoCase(key) == 0; },
        [key](const CScriptRecord& r) { return r.name.CompareNoCase(key) == 0; });
    if (record) return record->name;
    err << "brlv: " << name << ": no script of the catalogue has this name, see brlv catalogue\n";
    return std::nullopt;
}

std::optional<ProjectScript> FindInProject(const std::vector<ProjectScript>& scripts, const std::string& name,
                                           std::ostream& err) {
    const char* const key = name.c_str();
    const ProjectScript* const script = FindFirst(
        scripts, [key](const ProjectScript& s) { return s.inCatalogue && s.catalogueName == key; },
        [key](const ProjectScript& s) { return s.include.CompareNoCase(key) == 0; },
        [key](const ProjectScript& s) { return s.inCatalogue && s.catalogueName.CompareNoCase(key) == 0; });
    if (script) return *script;
    err << "brlv: " << name << ": not in the project, see brlv project show\n";
    return std::nullopt;
}

std::string ShownName(const ProjectScript& script) {
    return ToUtf8((script.inCatalogue ? script.catalogueName : script.include).GetString());
}
