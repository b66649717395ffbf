#pragma once

#include <wingdi.h>

#include <cstdint>
#include <string_view>
#include <vector>

// One character as it is drawn.
struct Glyph {
    int advance = 0;
    int left = 0;  // of the picture, from the pen
    int top = 0;   // of the picture, up from the base line
    int width = 0;
    int height = 0;
    std::vector<uint8_t> coverage;  // rows from the top, 0 to 255
};

// A typeface at one height and weight. Heights, ascents and widths are whole pixels and the same on every
// machine. Characters are those of Windows-1252.
class FontFace {
public:
    virtual ~FontFace() = default;

    virtual const TEXTMETRICA& Metrics() const = 0;
    // Drawn at its first use and kept.
    virtual const Glyph& Of(unsigned char character) = 0;

    virtual int Advance(unsigned char character) const = 0;
    int Width(std::string_view text) const;
};

// The face for a font record. Faces are kept for the life of the process: few are in use, and each is asked
// for again and again. A negative height is that of the letters, a positive one that of the cell; 0 is a
// usual one. Names do not count, nor does what is not height and weight.
FontFace& RealizeFont(const LOGFONTA& record);
