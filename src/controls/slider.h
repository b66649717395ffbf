#pragma once

#include <afxwin.h>

#include "controls/slider_geometry.h"

// A horizontal slider that draws itself. It shows no focus.
class WS_SliderV : public CWnd {
public:
    // Looks; without any of them the slider has its thumb alone.
    static constexpr DWORD kTicks = 0x01000000;  // three ticks
    static constexpr DWORD kSunkenBox = 0x02000000;
    static constexpr DWORD kTwoThumbs = 0x04000000;

    // Registers the window class, unless this module has it already. Throws CResourceException when it is
    // refused.
    static void RegisterSliderClass();

    BOOL Create(CWnd* parent, unsigned id, const RECT* rect);

    void SetLook(DWORD style);
    // The limits must differ; the position stays as it is.
    void SetRange(int minimum, int maximum);
    void SetPosition(int position);
    int GetPosition() const { return range_.position; }
    // Posts `message` with wParam `word` and the position to the parent at each change by the user; 0 posts
    // nothing.
    void SetNotify(UINT message, WPARAM word);

protected:
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnSetFocus(CWnd* from);
    afx_msg void OnKillFocus(CWnd* to);
    DECLARE_MESSAGE_MAP()

private:
    SliderGeometry Geometry();
    void Track(UINT flags, POINT point);
    void Show();

    DWORD style_ = 0;
    SliderRange range_ = {50, 1, 100};
    UINT notify_message_ = 0;
    WPARAM notify_word_ = 0;
};
