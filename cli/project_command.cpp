#include <algorithm>

#include "catalogue/script_operations.h"
#include "cli/commands.h"
#include "cli/console_messages.h"
#include "cli/project_actions.h"
#include "cli/text_encoding.h"
#include "manager/notes_report.h"

namespace {

void ShowNotes(const ProjectSession& session, std::ostream& out) {
    PathBuffer mainScript;
    GetMainScriptPath(CurrentHost(), mainScript);
    CString report = NotesReport(session.Catalogue(), mainScript);
    report.Replace("\r\n", "\n");
    out << ToUtf8(report.GetString());
}

// The worst status of one action for each name.
template <class Action>
int ForEachName(const std::vector<std::string>& names, Action action) {
    int status = ExitOk;
    for (const std::string& name : names)
        status = std::max(status, action(name));
    return status;
}

int Act(ProjectSession& session, const ProjectRequest& request, const ConsoleMessages& messages,
        Streams streams) {
    switch (request.action) {
        case ProjectAction::Show: ShowProject(session, request.folder, streams.out); return ExitOk;
        case ProjectAction::Notes: ShowNotes(session, streams.out); return ExitOk;
        case ProjectAction::Update: return UpdateProject(session, request, messages, streams);
        case ProjectAction::Add:
            return ForEachName(request.names, [&](const std::string& name) {
                return AddScript(session, name, messages, streams);
            });
        case ProjectAction::Remove:
            return ForEachName(request.names,
                               [&](const std::string& name) { return RemoveScript(session, name, streams); });
        case ProjectAction::Restore:
            return ForEachName(request.names, [&](const std::string& name) {
                return RestoreTemplate(session, name, streams);
            });
        case ProjectAction::Set:
            return ForEachName(request.names, [&](const std::string& name) {
                return SetValues(session, name, request.assignments, streams);
            });
    }
    return ExitUser;
}

}  // namespace

int RunProject(const ProjectRequest& request, std::istream* terminal, Streams streams) {
    const std::unique_ptr<ProjectSession> session =
        ProjectSession::Open(request.folder, request.catalogue, streams.err);
    if (!session) return ExitFiles;
    const ConsoleMessages messages(terminal, request.yes, streams.err);
    const int status = Act(*session, request, messages, streams);
    if (session->Host().Save()) return status;
    streams.err << "brlv: " << session->Host().ProjectFile() << ": can't be written\n";
    return ExitFiles;
}
