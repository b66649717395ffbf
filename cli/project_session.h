#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/template_catalogue.h"
#include "cli/commands.h"
#include "host/folder_host.h"
#include "manager/project_scripts.h"

// A project that is open for one command: the editor's stand-in, which the library is given as its host, and
// the catalogue. One at a time.
class ProjectSession {
public:
    // Without a catalogue's file, template_6.xml is looked for beside the project file, in the host's base
    // folder and in the current folder. Null after saying why on `err`.
    static std::unique_ptr<ProjectSession> Open(const std::string& folder, const std::string& catalogueFile,
                                                std::ostream& err);
    ~ProjectSession();
    ProjectSession(const ProjectSession&) = delete;
    ProjectSession& operator=(const ProjectSession&) = delete;

    FolderHost& Host() { return *host_; }
    const CTemplateManager& Catalogue() const { return catalogue_; }
    std::vector<ProjectScript> Scripts() const { return ListProjectScripts(catalogue_); }

    // The main script's file name; "main.brl" before there is one.
    std::string MainScriptName() const;
    // The full path of the template of a catalogue's script. Its own paths start from its folder.
    std::string TemplatePath(const CString& name) const;

private:
    explicit ProjectSession(std::unique_ptr<FolderHost> host);
    bool LoadCatalogueFor(const std::string& file, std::ostream& err);

    std::unique_ptr<FolderHost> host_;
    CTemplateManager catalogue_;
    std::string catalogueFolder_;
};

// A script that the user named by its name in the catalogue or by its file, if need be in another case. Says
// on `err` when there is none.
std::optional<CString> FindInCatalogue(const CTemplateManager& catalogue, const std::string& name,
                                       std::ostream& err);
std::optional<ProjectScript> FindInProject(const std::vector<ProjectScript>& scripts, const std::string& name,
                                           std::ostream& err);

// How a script is called in messages: by its name in the catalogue, or by its file.
std::string ShownName(const ProjectScript& script);
