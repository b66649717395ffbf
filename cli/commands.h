#pragma once

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
