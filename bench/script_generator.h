#pragma once

#include <cstddef>
#include <string>

// A made-up script of at least `size` bytes with the density of real ones: functions with code and plain
// comments, and per function a handful of tagged values of every kind. Ends in CR, LF, NUL. The same size
// gives the same bytes.
std::string GenerateScript(size_t size);
