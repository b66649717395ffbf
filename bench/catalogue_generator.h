#pragma once

#include <string>

// A made-up catalogue of so many scripts, about 500 bytes each, with a name of its own each and ten to a
// class. The same number gives the same bytes.
std::string GenerateCatalogue(int scripts);

std::string GeneratedName(int script);
std::string GeneratedFile(int script);
