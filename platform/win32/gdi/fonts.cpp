#include "fonts.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_MODULE_H

#include <algorithm>
#include <array>
#include <bitset>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "code_page.h"

namespace {

constexpr int kUsualEm = 11;
constexpr int kLargestEm = 500;
constexpr int kWidest = 0x0fff'ffff;
// From here on a weight is drawn in the bold face.
constexpr int kBoldFrom = 600;

// The typeface is wider than the classic ones of the system, for which dialogs were laid out. At nine tenths
// of its width the letters of the usual dialog font are six pixels wide in the mean, as they are there.
int HorizontalEm(int em) {
    return std::max(1, (em * 9 + 5) / 10);
}

// Its ascent and descent in thousandths of the em.
constexpr int kAscent = 928;
constexpr int kHeight = 1164;

int CellHeight(int em) {
    return (em * kHeight + 500) / 1000;
}
int CellAscent(int em) {
    return std::min((em * kAscent + 999) / 1000, CellHeight(em));
}

// The largest em whose cell is no higher.
int EmForCell(int height) {
    int em = std::max(1, height * 1000 / kHeight + 1);
    while (em > 1 && CellHeight(em) > height)
        --em;
    return em;
}

int EmFor(LONG height) {
    if (height == 0) return kUsualEm;
    const int64_t size = height < 0 ? -int64_t{height} : int64_t{height};
    const int limited = static_cast<int>(std::min<int64_t>(size, kLargestEm));
    return height < 0 ? limited : EmForCell(limited);
}

FT_Library Library() {
    static const FT_Library library = [] {
        FT_Library opened = nullptr;
        if (FT_Init_FreeType(&opened) != 0) return FT_Library{};
        // The same shapes whatever the environment or the library's own default asks for.
        FT_UInt interpreter = 40;
        FT_Property_Set(opened, "truetype", "interpreter-version", &interpreter);
        return opened;
    }();
    return library;
}

FT_Face OpenFace(bool bold) {
    if (!Library()) return nullptr;
    const std::string name = bold ? "DejaVuSans-Bold.ttf" : "DejaVuSans.ttf";
    for (const char* folder :
         {BRLV_FONT_FOLDER, "/usr/share/fonts/truetype/dejavu", "/usr/share/fonts/dejavu-sans-fonts",
          "/usr/share/fonts/dejavu", "/usr/share/fonts/TTF", "/usr/local/share/fonts/dejavu"}) {
        FT_Face face = nullptr;
        if (FT_New_Face(Library(), (std::string(folder) + "/" + name).c_str(), 0, &face) == 0) return face;
    }
    return nullptr;
}

// Without the font's file, text has its place but no picture.
class FreeTypeFace : public FontFace {
public:
    FreeTypeFace(int em, bool bold) : em_(em), face_(OpenFace(bold)) {
        if (face_ && FT_Set_Pixel_Sizes(face_, static_cast<FT_UInt>(HorizontalEm(em)),
                                        static_cast<FT_UInt>(em)) != 0) {
            FT_Done_Face(std::exchange(face_, nullptr));
        }
        Measure(bold);
    }

    const TEXTMETRICA& Metrics() const override { return metrics_; }

    int Advance(unsigned char character) const override { return glyphs_[character].advance; }

    const Glyph& Of(unsigned char character) override {
        Glyph& glyph = glyphs_[character];
        if (!drawn_.test(character)) {
            Draw(character, glyph);
            drawn_.set(character);
        }
        return glyph;
    }

private:
    void Measure(bool bold) {
        int letters = 0;
        int widest = 0;
        for (unsigned byte = 0; byte < glyphs_.size(); ++byte) {
            const auto character = static_cast<unsigned char>(byte);
            const int advance = DesignWidth(character);
            glyphs_[byte].advance = advance;
            widest = std::max(widest, advance);
            const bool letter = (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
            if (letter) letters += advance;
        }
        metrics_.tmHeight = CellHeight(em_);
        metrics_.tmAscent = CellAscent(em_);
        metrics_.tmDescent = metrics_.tmHeight - metrics_.tmAscent;
        metrics_.tmInternalLeading = metrics_.tmHeight - em_;
        metrics_.tmAveCharWidth = (letters + 26) / 52;
        metrics_.tmMaxCharWidth = widest;
        metrics_.tmWeight = bold ? FW_BOLD : FW_NORMAL;
        metrics_.tmDigitizedAspectX = 96;
        metrics_.tmDigitizedAspectY = 96;
        metrics_.tmFirstChar = 0x20;
        metrics_.tmLastChar = 0xff;
        metrics_.tmDefaultChar = 0x1f;
        metrics_.tmBreakChar = 0x20;
        metrics_.tmPitchAndFamily = 0x27;  // variable pitch, vector, TrueType, Swiss
        metrics_.tmCharSet = ANSI_CHARSET;
    }

    FT_UInt IndexOf(unsigned char character) const {
        return FT_Get_Char_Index(face_, FromWindows1252(character));
    }

    // From the design's own width, which hinting and versions of the library do not change.
    int DesignWidth(unsigned char character) const {
        const int usual = std::max(1, em_ * 11 / 20);
        if (!face_ || FT_Load_Glyph(face_, IndexOf(character), FT_LOAD_NO_SCALE) != 0) return usual;
        const long units = face_->units_per_EM;
        const long advance = face_->glyph->metrics.horiAdvance * HorizontalEm(em_);
        return static_cast<int>((advance + units / 2) / units);
    }

    void Draw(unsigned char character, Glyph& glyph) {
        if (!face_ || FT_Load_Glyph(face_, IndexOf(character), FT_LOAD_RENDER | FT_LOAD_TARGET_NORMAL) != 0)
            return;
        const FT_GlyphSlot slot = face_->glyph;
        const FT_Bitmap& bitmap = slot->bitmap;
        if (bitmap.pixel_mode != FT_PIXEL_MODE_GRAY) return;
        glyph.left = slot->bitmap_left;
        glyph.top = slot->bitmap_top;
        glyph.width = static_cast<int>(bitmap.width);
        glyph.height = static_cast<int>(bitmap.rows);
        glyph.coverage.resize(static_cast<size_t>(glyph.width) * static_cast<size_t>(glyph.height));
        for (int y = 0; y < glyph.height; ++y) {
            std::memcpy(glyph.coverage.data() + static_cast<ptrdiff_t>(y) * glyph.width,
                        bitmap.buffer + static_cast<ptrdiff_t>(y) * bitmap.pitch, bitmap.width);
        }
    }

    const int em_;
    FT_Face face_;
    TEXTMETRICA metrics_{};
    std::array<Glyph, 256> glyphs_;
    std::bitset<256> drawn_;
};

}  // namespace

int FontFace::Width(std::string_view text) const {
    int64_t width = 0;
    for (const char c : text)
        width += Advance(static_cast<unsigned char>(c));
    return static_cast<int>(std::min<int64_t>(width, kWidest));
}

FontFace& RealizeFont(const LOGFONTA& record) {
    static auto& faces = *new std::map<std::pair<int, bool>, std::unique_ptr<FontFace>>;
    const std::pair key(EmFor(record.lfHeight), record.lfWeight >= kBoldFrom);
    auto& face = faces[key];
    if (!face) face = std::make_unique<FreeTypeFace>(key.first, key.second);
    return *face;
}
