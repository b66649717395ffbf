#include "text.h"

#include <algorithm>
#include <cstring>

#include "../errors.h"
#include "fonts.h"

namespace {

uint32_t Mix(uint32_t under, uint32_t over, uint32_t share) {
    uint32_t mixed = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const uint32_t a = (under >> shift) & 0xff;
        const uint32_t b = (over >> shift) & 0xff;
        mixed |= ((a * (255 - share) + b * share + 127) / 255) << shift;
    }
    return mixed;
}

void DrawGlyph(const PixelView& target, const RECT& clip, int x, int y, const Glyph& glyph, uint32_t color,
               uint32_t value) {
    const RECT part = Intersection({x, y, x + glyph.width, y + glyph.height}, clip);
    for (int row = part.top; row < part.bottom; ++row) {
        const uint8_t* coverage = glyph.coverage.data() + ptrdiff_t{row - y} * glyph.width - x;
        for (int column = part.left; column < part.right; ++column) {
            const uint32_t share = coverage[column];
            if (share == 0) continue;
            const uint32_t dot =
                share == 255 ? value : Encode(target, Mix(PixelAt(target, column, row), color, share));
            PutPixel(target, column, row, dot);
        }
    }
}

int Width(const DeviceContext& dc, std::string_view text, const INT* widths) {
    if (!widths) return dc.font->face.Width(text);
    int64_t width = 0;
    for (size_t i = 0; i < text.size(); ++i)
        width += widths[i];
    return static_cast<int>(std::clamp<int64_t>(width, 0, 0x0fff'ffff));
}

// A text pointer is looked at only where there is something to draw.
bool ReadText(LPCSTR text, int64_t length, std::string_view& read) {
    if (length < 0 || (length > 0 && !text)) return Fail(ERROR_INVALID_PARAMETER);
    read = length > 0 ? std::string_view(text, static_cast<size_t>(length)) : std::string_view();
    return true;
}

}  // namespace

int DrawString(const DeviceContext& dc, POINT start, std::string_view text, const RECT* clip,
               const INT* widths) {
    FontFace& face = dc.font->face;
    const PixelView target = dc.Target();
    const uint32_t color = dc.attributes.text;
    const uint32_t value = Encode(target, color);
    const int width = Width(dc, text, widths);
    const int base = start.y + face.Metrics().tmAscent;
    if (dc.attributes.backgroundMode == OPAQUE) {
        const RECT cell{start.x, start.y, start.x + width, start.y + face.Metrics().tmHeight};
        FillClipped(dc, clip ? Intersection(cell, *clip) : cell, dc.attributes.background);
    }
    for (const RECT& each : dc.Clip().Rects()) {
        const RECT part = clip ? Intersection(each, *clip) : each;
        if (IsEmpty(part)) continue;
        int64_t x = start.x;
        for (size_t i = 0; i < text.size(); ++i) {
            const auto character = static_cast<unsigned char>(text[i]);
            const int step = widths ? widths[i] : face.Advance(character);
            // Pictures reach a little beyond their step, by less than the height of the font.
            const int reach = face.Metrics().tmHeight + face.Metrics().tmMaxCharWidth;
            if (x + reach > part.left && x - reach < part.right) {
                const Glyph& glyph = face.Of(character);
                DrawGlyph(target, part, static_cast<int>(x) + glyph.left, base - glyph.top, glyph, color,
                          value);
            }
            x += step;
        }
    }
    return width;
}

BOOL WINAPI TextOutA(HDC dc, int x, int y, LPCSTR text, int length) {
    if (length < 0) return Fail(ERROR_INVALID_PARAMETER);
    return ExtTextOutA(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL WINAPI ExtTextOutA(HDC handle, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                        const INT* widths) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    std::string_view string;
    if (!dc || !ReadText(text, length, string)) return FALSE;
    RECT frame{};
    if (rect) frame = dc->ToTarget(*rect);
    const bool filled = rect && (options & ETO_OPAQUE);
    if (filled) FillClipped(*dc, frame, dc->attributes.background);
    if (string.empty()) return TRUE;

    const RECT* clip = rect && (options & ETO_CLIPPED) ? &frame : nullptr;
    DrawString(*dc, dc->ToTarget(x, y), string, clip, widths);
    return TRUE;
}

BOOL WINAPI GetTextExtentPoint32A(HDC handle, LPCSTR text, int length, LPSIZE size) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    std::string_view string;
    if (!dc || !ReadText(text, length, string)) return FALSE;
    if (!size) return Fail(ERROR_INVALID_PARAMETER);
    const FontFace& face = dc->font->face;
    *size = {face.Width(string), string.empty() ? 0 : face.Metrics().tmHeight};
    return TRUE;
}

BOOL WINAPI GetTextMetricsA(HDC handle, LPTEXTMETRICA metrics) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    if (!metrics) return Fail(ERROR_INVALID_PARAMETER);
    *metrics = dc->font->face.Metrics();
    return TRUE;
}
