#include <algorithm>

#include "cli/carried_report.h"
#include "cli/project_actions.h"
#include "cli/script_report.h"
#include "cli/text_encoding.h"
#include "manager/script_update.h"
#include "manager/update_list.h"

namespace {

int StatusOf(UpdateResult result) {
    switch (result) {
        case UpdateResult::Updated: return ExitOk;
        case UpdateResult::LineTooLong:
        case UpdateResult::WouldBreak: return ExitUser;
        default: return ExitFiles;
    }
}

std::string VersionText(const ScriptHeader& header) {
    const auto text = [](int number) { return number == -1 ? "none" : std::to_string(number); };
    return "version " + text(header.scriptVersion) + ", date " + text(header.scriptDate);
}

void ReportLost(const ScriptUpdate& update, std::ostream& out) {
    for (const size_t place : FindLostValues(update.before.List(), update.original.List())) {
        out << RecordName(update.before.List(), place) << " = " << OneLine(update.before.Entry(place).value)
            << ": not carried, it has no id\n";
    }
}

int Update(const UpdateEntry& entry, Streams streams) {
    const std::string name = ToUtf8(entry.name.GetString());
    const ScriptUpdate update = UpdateScript(entry.include);
    const int status = StatusOf(update.result);
    if (status != ExitOk) streams.err << "brlv: " << name << ": " << UpdateResultText(update.result) << '\n';
    if (update.result != UpdateResult::Updated && update.result != UpdateResult::SideFileStale) return status;
    streams.out << name << ": updated from " << VersionText(update.before.Header()) << " to "
                << VersionText(update.original.Header()) << '\n';
    ReportCarried(update.carried, update.before.List(), update.original.List(), update.changes, streams.out);
    ReportLost(update, streams.out);
    return status;
}

int UpdateNamed(const ProjectSession& session, const std::string& name,
                const std::vector<UpdateEntry>& listed, Streams streams) {
    const std::optional<ProjectScript> script = FindInProject(session.Scripts(), name, streams.err);
    if (!script) return ExitUser;
    const auto entry = std::find_if(listed.begin(), listed.end(), [&script](const UpdateEntry& candidate) {
        return candidate.include == script->include;
    });
    if (entry != listed.end()) return Update(*entry, streams);
    if (!script->inCatalogue) {
        streams.err << "brlv: " << name << ": not in the catalogue, so it has no newer version\n";
        return ExitUser;
    }
    const bool hasCopy = LocateScript(script->include) == ScriptInProject;
    streams.out << ShownName(*script)
                << (hasCopy ? ": version and date are those of the template\n"
                            : ": runs from the template folder, there is no copy to update\n");
    return ExitOk;
}

void List(const std::vector<UpdateEntry>& listed, std::ostream& out) {
    if (listed.empty()) out << "every copy has the version and date of its template\n";
    for (const UpdateEntry& entry : listed)
        out << ToUtf8(UpdateText(entry).GetString()) << '\n';
}

}  // namespace

int UpdateProject(ProjectSession& session, const ProjectRequest& request, const ConsoleMessages& messages,
                  Streams streams) {
    const std::vector<UpdateEntry> listed = ListUpdates(session.Catalogue(), request.force);
    int status = ExitOk;
    for (const std::string& name : request.names)
        status = std::max(status, UpdateNamed(session, name, listed, streams));
    if (!request.names.empty()) return status;
    const bool everything = request.all || request.force;
    if (!everything || !listed.empty()) List(listed, streams.out);
    if (!everything) return ExitOk;
    if (!UserWantsAllUpdates(nullptr, listed)) return messages.Declined() ? ExitUser : ExitOk;
    for (const UpdateEntry& entry : listed)
        status = std::max(status, Update(entry, streams));
    return status;
}
