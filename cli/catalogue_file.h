#pragma once

#include <ostream>
#include <string>

#include "catalogue/template_catalogue.h"

inline constexpr const char* kCatalogueName = "template_6.xml";

// A full path as users write it: with slashes, and from the current folder where it lies below that.
std::string ShownPath(const std::string& path);

// The part of a full path in front of its last backslash.
std::string FolderOf(const std::string& path);

// Loads a catalogue; on failure says why on `err`, with the place of an error in the text, and gives the exit
// status. `shownName` is what the user calls the file.
int LoadCatalogue(CTemplateManager& catalogue, const std::string& path, const std::string& shownName,
                  std::ostream& err);
