#pragma once

#include <string_view>

// Whether a name fits a search pattern, without regard to case: * stands for any characters, ? for exactly
// one. What is left of the pattern at the name's end does not count when it is dots and stars only, so that
// "*.*" fits every name and "a.*" fits "a".
bool FitsPattern(std::string_view name, std::string_view pattern);
