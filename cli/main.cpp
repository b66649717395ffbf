#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <iostream>

#include "cli/commands.h"

namespace {

constexpr char kExamples[] = R"(Examples:
  brlv tags hero.brl                       list what the script lets you set
  brlv tags hero.brl --json | jq .records  the same for a program
  brlv set hero.brl "Walk speed=12"        by label
  brlv set hero.brl "#12=12" "@3=off"      by id and by place in the list
  brlv set hero.brl "#12=12" --dry-run     show the change as a unified diff, write nothing
  brlv carry old/hero.brl new/hero.brl     bring the values into a newer version
  brlv check *.brl                         find tags that make no control
  brlv catalogue --class World             what templates there are
  brlv project . show                      what the project in this folder has installed

Exit status: 0 done, 1 the request can't be met (check: something was found),
2 a file can't be read or written.)";

constexpr char kCatalogueExamples[] = R"(Examples:
  brlv catalogue                           template_6.xml of the current folder
  brlv catalogue samples --class World     of another folder, one class
  brlv catalogue --json | jq .scripts      for a program)";

constexpr char kProjectExamples[] = R"(Examples:
  brlv project samples show                each include with its state, version and date
  brlv project samples add Enemies         with the scripts that it needs
  brlv project samples set Enemies "Sight=450"
  brlv project samples update              what differs from its template
  brlv project samples update --all --yes  bring it up to date, values kept
  brlv project samples restore Weather     give up the project's copy
  brlv project samples remove Enemies

A script is named as in the catalogue or by its file. The project is a folder with
a project.tarn in it, or such a file. Questions are asked on the terminal; without
one the answer is no.)";

// What `brlv project` was asked for.
struct ProjectOptions {
    ProjectRequest request;
    std::string name;

    CLI::App* AddAction(CLI::App& project, const char* word, ProjectAction action, const char* description) {
        CLI::App* const command = project.add_subcommand(word, description);
        command->fallthrough();
        command->callback([this, action] {
            request.action = action;
            if (!name.empty()) request.names = {name};
        });
        return command;
    }
};

void AddProject(CLI::App& app, ProjectOptions& options) {
    ProjectRequest& request = options.request;
    CLI::App* const project = app.add_subcommand("project", "Show and change the scripts of a project");
    project->footer(kProjectExamples);
    project->require_subcommand(1);
    project->add_option("FOLDER", request.folder, "The project's folder or its project file")->required();
    project->add_option("--catalogue", request.catalogue,
                        "The catalogue, if template_6.xml is not beside it");
    project->add_flag("-y,--yes", request.yes, "Answer every question with yes");
    options.AddAction(*project, "show", ProjectAction::Show, "List the scripts with their state");
    options.AddAction(*project, "notes", ProjectAction::Notes, "Print a report of templates and scripts");
    const auto needsNames = [&request](CLI::App* command) {
        command->add_option("NAME", request.names, "The scripts")->required();
    };
    needsNames(options.AddAction(*project, "add", ProjectAction::Add, "Install scripts and what they need"));
    needsNames(options.AddAction(*project, "remove", ProjectAction::Remove,
                                 "Take scripts out that no other script needs"));
    needsNames(options.AddAction(*project, "restore", ProjectAction::Restore,
                                 "Delete copies of scripts, so that the templates count again"));
    CLI::App* const set = options.AddAction(*project, "set", ProjectAction::Set,
                                            "Write values into the project's copy of a script");
    set->add_option("NAME", options.name, "The script")->required();
    set->add_option("KEY=VALUE", request.assignments, "As for brlv set")->required();
    CLI::App* const update = options.AddAction(*project, "update", ProjectAction::Update,
                                               "Bring copies up to their templates and keep the values");
    CLI::Option* const names =
        update->add_option("NAME", request.names, "The scripts; without any, list what differs");
    update->add_flag("--all", request.all, "Everything that is listed")->excludes(names);
    update->add_flag("--force", request.force, "Also what does not differ; without a NAME, all copies");
}

// Standard input when somebody sits there.
std::istream* Terminal() {
    return isatty(STDIN_FILENO) ? &std::cin : nullptr;
}

int RunProgram(int argc, char** argv) {
    CLI::App app{"Shows and sets the tunable values that BRL scripts tell of themselves in their comments.",
                 "brlv"};
    app.footer(kExamples);
    app.require_subcommand(1);
    const Streams streams{std::cout, std::cerr};
    int status = ExitOk;

    std::string file;
    bool json = false;
    CLI::App* tags = app.add_subcommand("tags", "List a script's version, date and records");
    tags->add_option("FILE", file, "The script")->required();
    tags->add_flag("--json", json, "Write JSON");
    tags->callback([&] { status = RunTags(file, json, streams); });

    std::vector<std::string> assignments;
    bool dry_run = false;
    CLI::App* set = app.add_subcommand("set", "Write new values into a script and its side file");
    set->add_option("FILE", file, "The script")->required();
    set->add_option("KEY=VALUE", assignments, "KEY is an id (#12), a place in the list (@3) or a label")
        ->required();
    set->add_flag("-n,--dry-run", dry_run, "Show a unified diff, write nothing");
    set->callback([&] { status = RunSet(file, assignments, dry_run, streams); });

    std::string old_file;
    std::string new_file;
    CLI::App* carry =
        app.add_subcommand("carry", "Bring the values of a script into another version of it, by id");
    carry->add_option("OLD", old_file, "The script with the values, or its side file (.brlv)")->required();
    carry->add_option("NEW", new_file, "The script that takes them")->required();
    carry->add_flag("-n,--dry-run", dry_run, "Show a unified diff, write nothing");
    carry->callback([&] { status = RunCarry(old_file, new_file, dry_run, streams); });

    std::vector<std::string> files;
    CLI::App* check = app.add_subcommand("check", "Report every tag that makes no control");
    check->add_option("FILE", files, "The scripts")->required();
    check->callback([&] { status = RunCheck(files, streams); });

    std::string script_class;
    CLI::App* catalogue = app.add_subcommand("catalogue", "List the script templates that there are");
    catalogue->footer(kCatalogueExamples);
    catalogue->add_option("FILE", file, "The catalogue or its folder; template_6.xml of the current folder");
    catalogue->add_option("--class", script_class, "Only the scripts of this class");
    catalogue->add_flag("--json", json, "Write JSON");
    catalogue->callback([&] { status = RunCatalogue(file, script_class, json, streams); });

    ProjectOptions project;
    AddProject(app, project);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? ExitOk : ExitUser;
    }
    if (app.got_subcommand("project")) return RunProject(project.request, Terminal(), streams);
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return RunProgram(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brlv: %s\n", error.what());
    } catch (...) {
        std::fputs("brlv: unknown error\n", stderr);
    }
    return ExitFiles;
}
