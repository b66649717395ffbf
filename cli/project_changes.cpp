#include <sstream>

#include "catalogue/project_record.h"
#include "catalogue/script_operations.h"
#include "cli/catalogue_file.h"
#include "cli/project_actions.h"
#include "cli/text_encoding.h"
#include "manager/script_changes.h"
#include "support/file_objects.h"

namespace {

// Says what is wrong with a script, under the name that the user gave.
int Fail(const std::string& name, const char* why, int status, std::ostream& err) {
    err << "brlv: " << name << ": " << why << '\n';
    return status;
}

void ShowInclude(char mark, const CString& include, std::ostream& out) {
    out << mark << " include <" << ToUtf8(include.GetString()) << ">;\n";
}

// The includes that were not there before; lines only ever come in front of each other, never change places.
std::vector<CString> NewIncludes(const std::vector<ProjectScript>& before,
                                 const std::vector<ProjectScript>& after) {
    std::vector<CString> added;
    size_t known = 0;
    for (const ProjectScript& script : after) {
        if (known < before.size() && script.include == before[known].include) {
            ++known;
        } else {
            added.push_back(script.include);
        }
    }
    return added;
}

int ReportInstall(InstallResult result, const std::string& name, const ConsoleMessages& messages,
                  std::ostream& err) {
    switch (result) {
        case InstallResult::Installed:
        case InstallResult::NothingToAdd: return ExitOk;
        case InstallResult::NoHost:
        case InstallResult::NoMainScript:
            return Fail(name, "the project has no main script and none can be made", ExitFiles, err);
        case InstallResult::PathTooLong:
            return Fail(name, "the template's path is longer than 259 bytes", ExitFiles, err);
        case InstallResult::MainScriptNotCopied:
            return Fail(name, "the main script was not copied into the project folder, nothing was added",
                        messages.Declined() ? ExitUser : ExitFiles, err);
        case InstallResult::TemplateNotCopied:
            return Fail(name, "the template can't be copied into the project folder", ExitFiles, err);
        case InstallResult::MainScriptEmpty:
            return Fail(name, "the main script is empty or can't be read, nothing was added", ExitFiles, err);
        case InstallResult::MainScriptNotWritten: break;
    }
    return Fail(name, "the main script can't be written, nothing was added", ExitFiles, err);
}

int ReportRemoval(RemoveResult result, const ProjectScript& script, const ProjectSession& session,
                  Streams streams) {
    const std::string name = ShownName(script);
    switch (result) {
        case RemoveResult::Needed: return ExitUser;
        case RemoveResult::NotIncluded: return Fail(name, "not in the project", ExitUser, streams.err);
        case RemoveResult::NotWritten:
            return Fail(name, "the main script can't be written, nothing was removed", ExitFiles,
                        streams.err);
        case RemoveResult::Removed: break;
    }
    streams.out << name << ": removed from " << session.MainScriptName() << ", its file stays\n";
    ShowInclude('-', script.include, streams.out);
    return ExitOk;
}

RemoveResult ResultOf(RecordChange change) {
    switch (change) {
        case RecordChange::Unchanged: return RemoveResult::NotIncluded;
        case RecordChange::NotWritten: return RemoveResult::NotWritten;
        case RecordChange::Written: break;
    }
    return RemoveResult::Removed;
}

// A script without a copy gets one as soon as there is a value to write.
int MakeCopy(ProjectSession& session, const std::string& name, CString& path, std::ostream& err) {
    PathBuffer copy = {};
    if (!HostAgrees(session.Host().CopyToProject(path, copy, kPathSize)))
        return Fail(name, "can't be copied into the project folder", ExitFiles, err);
    session.Host().ScriptsChanged();
    path = copy;
    return ExitOk;
}

}  // namespace

int AddScript(ProjectSession& session, const std::string& name, const ConsoleMessages& messages,
              Streams streams) {
    const std::optional<CString> script = FindInCatalogue(session.Catalogue(), name, streams.err);
    if (!script) return ExitUser;
    const std::string path = session.TemplatePath(*script);
    if (path.empty())
        return Fail(name, "the catalogue does not tell the folder of its template", ExitFiles, streams.err);
    if (!file_t::FileExist(path.c_str(), nullptr))
        return Fail(name, ("no template file " + ShownPath(path)).c_str(), ExitFiles, streams.err);
    const std::vector<ProjectScript> before = session.Scripts();
    const InstallResult result = Install(&session.Host(), path.c_str());
    if (const int failed = ReportInstall(result, name, messages, streams.err)) return failed;
    const std::vector<CString> added = NewIncludes(before, session.Scripts());
    streams.out << ToUtf8(script->GetString());
    if (added.empty()) {
        streams.out << ": in the project already, with what it needs\n";
        return ExitOk;
    }
    streams.out << ": added to " << session.MainScriptName() << '\n';
    for (const CString& include : added)
        ShowInclude('+', include, streams.out);
    return ExitOk;
}

// A numbered copy is not in the catalogue, so nothing there can need it.
int RemoveScript(ProjectSession& session, const std::string& name, Streams streams) {
    const std::vector<ProjectScript> scripts = session.Scripts();
    const std::optional<ProjectScript> script = FindInProject(scripts, name, streams.err);
    if (!script) return ExitUser;
    const RemoveResult result =
        script->inCatalogue ? RemoveFromProject(session.Catalogue(), scripts, script->catalogueName, nullptr)
                            : ResultOf(ChangeByRemoving(script->include));
    return ReportRemoval(result, *script, session, streams);
}

// The copy is never deleted when there is no template to go back to.
int RestoreTemplate(ProjectSession& session, const std::string& name, Streams streams) {
    const std::optional<ProjectScript> script = FindInProject(session.Scripts(), name, streams.err);
    if (!script) return ExitUser;
    const bool hasCopy = LocateScript(script->include) == ScriptInProject;
    if (hasCopy && !CanRestoreScript(&session.Host(), script->include))
        return Fail(name, "there is no template of this file, the copy stays", ExitUser, streams.err);
    switch (ResetToTemplate(script->include, nullptr)) {
        case ResetResult::Done:
            streams.out << ShownName(*script) << ": the copy is deleted, the template's file counts again\n";
            return ExitOk;
        case ResetResult::NotDeleted: return ExitFiles;
        case ResetResult::Declined:
        case ResetResult::NoCopy:
        case ResetResult::NotFound: break;
    }
    return ExitUser;
}

int SetValues(ProjectSession& session, const std::string& name, const std::vector<std::string>& assignments,
              Streams streams) {
    const std::optional<ProjectScript> script = FindInProject(session.Scripts(), name, streams.err);
    if (!script) return ExitUser;
    CString path = script->include;
    const ScriptLocation location = ResolveScript(path);
    if (location == ScriptNotFound) return Fail(name, "its file is not there", ExitFiles, streams.err);
    if (location == ScriptInTemplates) {
        std::ostringstream diff;
        std::ostringstream complaints;
        const int failed = RunSet(path.GetString(), assignments, true, {diff, complaints});
        if (failed) streams.err << complaints.str();
        if (failed) return failed;
        const bool changesNothing = diff.str().empty();
        if (!changesNothing) {
            if (const int refused = MakeCopy(session, name, path, streams.err)) return refused;
            streams.out << name << ": copied into the project\n";
        }
    }
    return RunSet(ShownPath(path.GetString()), assignments, false, streams);
}
