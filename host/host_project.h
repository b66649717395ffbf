#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/ini_text.h"
#include "shell/host_interface.h"

// What the stand-in editor knows of a project, as its project file tells it. README.md tells the format.
// Paths are full ones, with backslashes and of at most 259 bytes.

struct HostAction {
    std::string name;
    std::string file;  // a bare name is looked for in the project folder, then in the template folder
    std::array<std::string, kHostFlags> flagNames;
    std::array<std::string, kHostSkills> skillNames;
};

struct HostEntity {
    std::string name;
    std::string action;  // empty for none
    uint32_t flags = 0;  // bit 0 is flag 1
    std::array<float, kHostSkills> skills{};
};

struct HostProject {
    std::string folder;
    std::string mainScript;  // empty until there is one
    std::string baseFolder;
    std::string templateFolder;  // its name below the base folder
    std::vector<std::string> searchFolders;
    std::vector<std::string> pathsA;
    std::vector<std::string> pathsB;
    std::vector<HostAction> actions;
    std::vector<HostEntity> entities;
};

struct ProjectError {
    int line = 0;  // from 1; 0 when it concerns the whole file
    std::string text;
};

// `folder` is that of the project file, from which its paths start. Nothing for the first error, told in
// `error`.
std::optional<HostProject> ReadProject(const IniText& ini, const std::string& folder, ProjectError& error);

// Brings into `ini` what an editor's session changes: main script, actions, flags and skills of the entities.
// `before` is what `ini` tells now; entities that it does not know are passed over.
void WriteChanges(const HostProject& before, const HostProject& after, IniText& ini);
