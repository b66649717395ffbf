#include "controls/slider.h"

#include "controls/slider_painting.h"
#include "controls/window_class.h"

namespace {
constexpr char kSliderClass[] = "WS_SliderV";
}

BEGIN_MESSAGE_MAP(WS_SliderV, CWnd)
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

void WS_SliderV::RegisterSliderClass() {
    RegisterControlClass(kSliderClass, &::DefWindowProcA, nullptr);
}

BOOL WS_SliderV::Create(CWnd* parent, unsigned id, const RECT* rect) {
    return CreateEx(0, kSliderClass, "", WS_CHILD | WS_VISIBLE, *rect, parent, id);
}

void WS_SliderV::SetLook(DWORD style) {
    style_ = style;
    Show();
}

void WS_SliderV::SetRange(int minimum, int maximum) {
    ASSERT(minimum != maximum);
    range_.minimum = minimum;
    range_.maximum = maximum;
    Show();
}

void WS_SliderV::SetPosition(int position) {
    range_.position = position;
    Show();
}

void WS_SliderV::SetNotify(UINT message, WPARAM word) {
    notify_message_ = message;
    notify_word_ = word;
}

void WS_SliderV::Show() {
    if (m_hWnd) InvalidateRect(nullptr, TRUE);
}

SliderGeometry WS_SliderV::Geometry() {
    RECT client = {};
    GetClientRect(&client);
    return SliderGeometry(client.right, client.bottom);
}

void WS_SliderV::OnPaint() {
    CPaintDC dc(this);
    RECT client = {};
    GetClientRect(&client);
    PaintSlider(dc, client, range_, style_);
}

void WS_SliderV::OnLButtonDown(UINT flags, CPoint point) {
    CWnd::OnLButtonDown(flags, point);
    Track(flags | MK_LBUTTON, point);
}

void WS_SliderV::OnMouseMove(UINT flags, CPoint point) {
    CWnd::OnMouseMove(flags, point);
    Track(flags, point);
}

// A press only takes the mouse; the position follows from the next move on. The capture ends at the first
// move without the button.
void WS_SliderV::Track(UINT flags, POINT point) {
    const bool down = (flags & MK_LBUTTON) != 0;
    CWnd* const captor = GetCapture();
    if (!captor) {
        if (down && Geometry().Hits(point, range_)) SetCapture();
        return;
    }
    if (captor != this) return;
    if (!down) {
        ReleaseCapture();
        return;
    }
    range_.position = Geometry().PositionAt(point.x, range_);
    Show();
    CWnd* const parent = GetParent();
    if (notify_message_ != 0 && parent) parent->PostMessage(notify_message_, notify_word_, range_.position);
}

void WS_SliderV::OnSetFocus(CWnd*) {}

void WS_SliderV::OnKillFocus(CWnd*) {}
