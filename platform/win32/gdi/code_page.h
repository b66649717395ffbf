#pragma once

// The Unicode character of a Windows-1252 byte. The five bytes without one are taken as control characters.
char32_t FromWindows1252(unsigned char byte);
