#pragma once

#include <string>
#include <string_view>

// The text with replacements: `table` is null or holds pairs of texts, to find and to put in their place,
// ended by a null pointer. One pass: what was put in is not searched again; of several pairs that fit at a
// place the first counts.
std::string Substituted(std::string_view text, const char* const* table);

// Copies a file, over one that is there; its old content is kept when the copy can't be written.
bool CopyContent(const char* source, const char* destination, const char* const* table);
