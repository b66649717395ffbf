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

Exit status: 0 done, 1 the request can't be met (check: something was found),
2 a file can't be read or written.)";

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

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? ExitOk : ExitUser;
    }
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
