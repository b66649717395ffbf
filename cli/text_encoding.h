#pragma once

#include <string>
#include <string_view>

// Scripts are 8-bit text, by custom in Windows-1252; JSON is UTF-8. Text that is valid UTF-8 stays as it is,
// all other text is taken for Windows-1252.
std::string ToUtf8(std::string_view text);
