#include "controls/slider_painting.h"

#include "controls/slider.h"
#include "controls/toolkit_gdi.h"

namespace {

void PaintTrackLeftOf(CDC& dc, int thumb, int left, int y) {
    const LONG t = thumb - 1;
    const LONG l = left - 1;
    if (t <= left) return;
    DrawLines(dc, g_penShadow, {{t, y}, {l, y}, {l, y + 3}});
    DrawLines(dc, g_penWhite, {{l, y + 3}, {t + 1, y + 3}});
    DrawLines(dc, g_penLight, {{t, y + 2}, {l, y + 2}});
    DrawLines(dc, g_penDark, {{t, y + 1}, {l, y + 1}});
}

void PaintTrackRightOf(CDC& dc, int thumb, int right, int y) {
    const LONG a = thumb + 1;
    const LONG b = right + 1;
    if (a >= right) return;
    DrawLines(dc, g_penShadow, {{a, y}, {b, y}});
    DrawLines(dc, g_penWhite, {{b, y}, {b, y + 3}, {a - 1, y + 3}});
    DrawLines(dc, g_penLight, {{right, y + 1}, {right, y + 2}, {a - 1, y + 2}});
    DrawLines(dc, g_penDark, {{a, y + 1}, {right, y + 1}});
}

// The track is never erased by a brush, so that it does not flicker.
void FillAround(CDC& dc, const RECT& client, const RECT& inner) {
    const RECT bands[] = {{client.left, client.top, client.right, inner.top},
                          {client.left, inner.top, inner.left, inner.bottom},
                          {inner.right, inner.top, client.right, inner.bottom},
                          {client.left, inner.bottom, client.right, client.bottom}};
    for (const RECT& band : bands)
        dc.FillSolidRect(&band, g_colorFace);
}

void PaintTick(CDC& dc, int x, int y) {
    DrawLines(dc, g_penShadow, {{x, 1}, {x, y - 1}});
    DrawLines(dc, g_penLight, {{x + 1, 1}, {x + 1, y - 1}});
}

void PaintSunkenBox(CDC& dc, const RECT& client, int y) {
    const LONG l = 1;
    const LONG t = 1;
    const LONG r = client.right - 1;
    const LONG b = y - 2;
    if (l >= r || t >= b) return;
    DrawLines(dc, g_penShadow, {{l, b - 1}, {l, t}, {r + 1, t}});
    DrawLines(dc, g_penLight, {{r + 1, t}, {r, t}, {r, b}, {l - 1, b}});
}

void PaintThumb(CDC& dc, int x, int y) {
    DrawLines(dc, g_penWhite, {{x, y - 1}, {x - 1, y - 1}, {x - 1, y + 5}});
    DrawLines(dc, g_penDark, {{x - 1, y + 5}, {x + 1, y + 5}, {x + 1, y - 2}});
    DrawLines(dc, g_penLight, {{x, y}, {x, y + 4}});
    DrawLines(dc, g_penShadow, {{x, y + 4}, {x, y + 5}});
}

}  // namespace

void PaintSlider(CDC& dc, const RECT& client, const SliderRange& range, DWORD style) {
    const SliderGeometry geometry(client.right, client.bottom);
    const int left = geometry.Left();
    const int right = geometry.Right();
    const int y = geometry.TrackY();
    const int thumb = geometry.ThumbX(range);
    PaintTrackLeftOf(dc, thumb, left, y);
    PaintTrackRightOf(dc, thumb, right, y);
    FillAround(dc, client, {left - 1, y, right + 2, y + 4});
    if (style & WS_SliderV::kTicks) {
        for (const int x : {left, (right - left) / 2, right - 1})
            PaintTick(dc, x, y);
    } else if (style & WS_SliderV::kSunkenBox) {
        PaintSunkenBox(dc, client, y);
    } else if (style & WS_SliderV::kTwoThumbs) {
        PaintThumb(dc, thumb - 5, y);
        PaintThumb(dc, thumb + 5, y);
        return;
    }
    PaintThumb(dc, thumb, y);
}
