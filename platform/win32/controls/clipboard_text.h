#pragma once

#include <string>

// The text that edit controls of this process cut, copy and paste.
void SetClipboardText(std::string text);
std::string ClipboardText();
