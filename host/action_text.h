#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

// Where an action stands in a script's text, in bytes.
struct ActionText {
    size_t offset;
    size_t length;
};

// From the comment lines right above "action NAME" to the line that closes its body, or to the text's end.
// The name is compared without regard to case, as the language does. Nothing when the script has no such
// action.
std::optional<ActionText> FindAction(std::string_view script, std::string_view name);
