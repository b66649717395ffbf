#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Makes a dialog template in memory, for the dialogs that the system itself shows.
class TemplateBuilder {
public:
    // The place and size are in dialog units.
    TemplateBuilder(DWORD style, const std::string& caption, int width, int height);

    void Add(const char* class_name, const std::string& text, int id, DWORD style, const RECT& place);

    // Valid until the next Add and as long as the builder lives.
    LPCDLGTEMPLATE Get();

private:
    void Word(int value) { words_.push_back(static_cast<WORD>(value)); }
    void Long(DWORD value);
    void Text(const std::string& text);

    std::vector<WORD> words_;
};
