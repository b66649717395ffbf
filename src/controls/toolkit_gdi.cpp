#include "controls/toolkit_gdi.h"

COLORREF g_colorFace;
COLORREF g_colorLight;
COLORREF g_colorShadow;
COLORREF g_colorDark;
HBRUSH g_brushFace;
HPEN g_penWhite;
HPEN g_penLight;
HPEN g_penShadow;
HPEN g_penDark;

namespace {

class CToolkitGdi {
public:
    CToolkitGdi();
    CToolkitGdi(const CToolkitGdi&) = delete;
    CToolkitGdi& operator=(const CToolkitGdi&) = delete;
    ~CToolkitGdi();
};

CToolkitGdi::CToolkitGdi() {
    g_colorFace = GetSysColor(COLOR_BTNFACE);
    g_colorLight = LightColorOf(g_colorFace);
    g_colorShadow = GetSysColor(COLOR_BTNSHADOW);
    g_colorDark = GetSysColor(COLOR_3DDKSHADOW);
    g_brushFace = CreateSolidBrush(g_colorFace);
    g_penWhite = CreatePen(PS_SOLID, 1, RGB(255, 255, 255));
    g_penLight = CreatePen(PS_SOLID, 1, g_colorLight);
    g_penShadow = CreatePen(PS_SOLID, 1, g_colorShadow);
    g_penDark = CreatePen(PS_SOLID, 1, g_colorDark);
}

CToolkitGdi::~CToolkitGdi() {
    for (HGDIOBJ object : {static_cast<HGDIOBJ>(g_brushFace), static_cast<HGDIOBJ>(g_penWhite),
                           static_cast<HGDIOBJ>(g_penLight), static_cast<HGDIOBJ>(g_penShadow),
                           static_cast<HGDIOBJ>(g_penDark)})
        DeleteObject(object);
}

const CToolkitGdi toolkit_gdi;

int LightChannelOf(int channel) {
    // The factor is that of the published colours, to the bit.
    constexpr float kTowardsWhite = -0.6666667f;
    return channel - static_cast<int>(static_cast<float>(255 - channel) * kTowardsWhite);
}

}  // namespace

COLORREF LightColorOf(COLORREF face) {
    return RGB(LightChannelOf(GetRValue(face)), LightChannelOf(GetGValue(face)),
               LightChannelOf(GetBValue(face)));
}

void DrawLines(CDC& dc, HPEN pen, std::initializer_list<POINT> points) {
    const HGDIOBJ former = SelectObject(dc.GetSafeHdc(), pen);
    if (!former) return;
    bool first = true;
    for (const POINT& point : points) {
        if (first)
            MoveToEx(dc.GetSafeHdc(), point.x, point.y, nullptr);
        else
            LineTo(dc.GetSafeHdc(), point.x, point.y);
        first = false;
    }
    SelectObject(dc.GetSafeHdc(), former);
}

void DrawEtchedLine(CDC& dc, int y, int x1, int x2) {
    DrawLines(dc, g_penShadow, {{x1, y}, {x2, y}});
    DrawLines(dc, g_penLight, {{x1, y + 1}, {x2, y + 1}});
}
