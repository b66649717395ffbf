#pragma once

#include <afxwin.h>

// A child dialog that scrolls what stands on it, up and down. Its template must have WS_VSCROLL.
class WS_ScrollPane : public CDialog {
public:
    WS_ScrollPane(unsigned dialog_id, CWnd* parent);

    // Height of what the pane holds, in pixels. The scroll bar follows at the next change of size. The width
    // is not used: there is no horizontal scrolling.
    void SetContentSize(int width, int height);

protected:
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void ScrollTo(int offset);

    int content_height_ = 0;
    int view_height_ = 0;
    int offset_ = 0;  // how far the content is scrolled
};
