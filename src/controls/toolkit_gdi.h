#pragma once

#include <afxwin.h>

#include <initializer_list>

// The colours, pens and the brush that the entry controls share. They are made when the library is loaded,
// with the system's colours of that moment, and freed when it is unloaded; nobody else deletes one.

extern COLORREF g_colorFace;
extern COLORREF g_colorLight;
extern COLORREF g_colorShadow;
extern COLORREF g_colorDark;
extern HBRUSH g_brushFace;
extern HPEN g_penWhite;
extern HPEN g_penLight;
extern HPEN g_penShadow;
extern HPEN g_penDark;

// Two thirds of the way from a face colour to white, channel by channel.
COLORREF LightColorOf(COLORREF face);

// Draws from point to point with one pen, as LineTo does, and puts the earlier pen back. Nothing is drawn
// when the pen can't be selected.
void DrawLines(CDC& dc, HPEN pen, std::initializer_list<POINT> points);

// A sunken line two pixels high.
void DrawEtchedLine(CDC& dc, int y, int x1, int x2);
