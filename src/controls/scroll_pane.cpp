#include "controls/scroll_pane.h"

#include <algorithm>

#include "controls/scroll_steps.h"

BEGIN_MESSAGE_MAP(WS_ScrollPane, CDialog)
ON_WM_VSCROLL()
ON_WM_SIZE()
END_MESSAGE_MAP()

WS_ScrollPane::WS_ScrollPane(unsigned dialog_id, CWnd* parent) : CDialog(dialog_id, parent) {}

void WS_ScrollPane::SetContentSize(int, int height) {
    content_height_ = height;
}

// The system moves the child windows with the picture.
void WS_ScrollPane::ScrollTo(int offset) {
    const int distance = offset_ - offset;
    offset_ = offset;
    if (distance != 0) ScrollWindow(0, distance, nullptr, nullptr);
}

void WS_ScrollPane::OnVScroll(UINT code, UINT position, CScrollBar*) {
    const int former = GetScrollPos(SB_VERT);
    const auto wanted = ScrolledPosition(code, static_cast<int>(position), former, GetScrollLimit(SB_VERT));
    if (!wanted) return;
    ScrollTo(*wanted);
    if (*wanted != former) SetScrollPos(SB_VERT, *wanted, TRUE);
}

void WS_ScrollPane::OnSize(UINT type, int width, int height) {
    CDialog::OnSize(type, width, height);
    view_height_ = height;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = content_height_ - 1;
    info.nPage = static_cast<UINT>(height);
    const bool fits = view_height_ >= content_height_;
    if (!SetScrollInfo(SB_VERT, &info, TRUE))
        SetScrollRange(SB_VERT, 0, fits ? view_height_ : content_height_, TRUE);
    ScrollTo(fits ? 0 : std::min(std::max(GetScrollPos(SB_VERT), 0), GetScrollLimit(SB_VERT)));
}
