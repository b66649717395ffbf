#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

// The subcommands of brlv. Each writes its result to `out` and its complaints to `err`.

// Exit statuses.
enum ExitStatus : int {
    ExitOk = 0,
    ExitUser = 1,   // what was asked for can't be done; `check` found something
    ExitFiles = 2,  // a file can't be read or written
};

struct Streams {
    std::ostream& out;
    std::ostream& err;
};

int RunTags(const std::string& file, bool json, Streams streams);

// Each assignment is KEY=VALUE, with the key an id (#12), a place in the list (@3) or a label.
int RunSet(const std::string& file, const std::vector<std::string>& assignments, bool dryRun,
           Streams streams);

// Brings the values of one script into another; `from` may also be a side file.
int RunCarry(const std::string& from, const std::string& to, bool dryRun, Streams streams);

int RunCheck(const std::vector<std::string>& files, Streams streams);

// Lists a catalogue: all of it, or the scripts of one class, in any case of letters. `file` may be the folder
// that it lies in, and empty for the current one.
int RunCatalogue(const std::string& file, const std::string& scriptClass, bool json, Streams streams);

enum class ProjectAction { Show, Add, Remove, Restore, Update, Set, Notes };

struct ProjectRequest {
    ProjectAction action = ProjectAction::Show;
    std::string folder;     // or the project file
    std::string catalogue;  // empty: looked for
    std::vector<std::string> names;
    std::vector<std::string> assignments;  // for Set, as for RunSet
    bool all = false;                      // for Update: everything that it lists
    bool force = false;                    // for Update: what does not differ, too
    bool yes = false;
};

// Shows and changes what a project has installed. Questions are put to `terminal`; without one, which is
// null, they are answered with no.
int RunProject(const ProjectRequest& request, std::istream* terminal, Streams streams);
