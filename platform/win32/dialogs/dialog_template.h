#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

// A dialog's template, taken apart. Texts are in Windows-1252.

struct DialogItem {
    DLGITEMTEMPLATE place;
    std::string class_name;
    ATOM class_atom = 0;  // where there is no name
    std::string text;
};

struct DialogDescription {
    DLGTEMPLATE head;
    std::string class_name;  // empty for the standard one
    std::string caption;
    int font_size = 0;  // points; 0 without a font
    std::string font_name;
    std::vector<DialogItem> items;
};

// Reads a template as the resource compilers write it (DLGTEMPLATE, with its words on even addresses and its
// items on multiples of four). Nothing for one that ends too soon, or is in the extended form.
std::optional<DialogDescription> ReadDialogTemplate(std::span<const unsigned char> bytes);
