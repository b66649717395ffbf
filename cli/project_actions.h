#pragma once

#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/console_messages.h"
#include "cli/project_session.h"

// The actions of `brlv project`, each on one script that the user named. They give the exit status.

// The includes with their state, version and date. `shownFolder` is what the user calls the project.
void ShowProject(const ProjectSession& session, const std::string& shownFolder, std::ostream& out);

int AddScript(ProjectSession& session, const std::string& name, const ConsoleMessages& messages,
              Streams streams);
int RemoveScript(ProjectSession& session, const std::string& name, Streams streams);
// Deletes the project's copy, so that the template counts again.
int RestoreTemplate(ProjectSession& session, const std::string& name, Streams streams);
// Sets values in the project's copy, which is made when there is none yet.
int SetValues(ProjectSession& session, const std::string& name, const std::vector<std::string>& assignments,
              Streams streams);

// The scripts that the request names, all that differ from their templates, or, forced, all that have a copy.
// Without any of these it only lists what differs.
int UpdateProject(ProjectSession& session, const ProjectRequest& request, const ConsoleMessages& messages,
                  Streams streams);
