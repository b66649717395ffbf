#include "tab_control.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "text_control.h"

namespace {

constexpr int kTabMargin = 6;
constexpr int kLeastTabWidth = 54;
constexpr int kStripEdge = 2;

class TabControl : public TextControl {
public:
    explicit TabControl(HWND window) : TextControl(window) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    int Count() const { return static_cast<int>(tabs_.size()); }
    bool Has(int index) const { return index >= 0 && index < Count(); }
    int StripHeight() const { return LineHeight() + 7; }

    LRESULT Insert(int index, const TCITEMA& item);
    LRESULT Get(int index, TCITEMA& item) const;
    LRESULT SelectByProgram(int index);
    void SelectByUser(int index);
    void Press(int index);
    LRESULT Tell(UINT code);
    int TabWidth(const std::string& text) const;
    RECT TabRect(int index) const;
    int TabAt(POINT point) const;
    bool KeyDown(WPARAM key);
    void Paint();

    std::vector<std::string> tabs_;
    int selected_ = -1;
};

LRESULT TabControl::Insert(int index, const TCITEMA& item) {
    const int at = std::clamp(index, 0, Count());
    tabs_.insert(tabs_.begin() + at, item.mask & TCIF_TEXT && item.pszText ? item.pszText : "");
    // The first tab is in front at once.
    if (selected_ == -1)
        selected_ = 0;
    else if (at <= selected_)
        ++selected_;
    Redraw();
    return at;
}

LRESULT TabControl::Get(int index, TCITEMA& item) const {
    if (!Has(index)) return FALSE;
    const std::string& text = tabs_[static_cast<size_t>(index)];
    if (item.mask & TCIF_TEXT && item.pszText && item.cchTextMax > 0) {
        const size_t length = std::min(text.size(), static_cast<size_t>(item.cchTextMax) - 1);
        std::copy_n(text.data(), length, item.pszText);
        item.pszText[length] = 0;
    }
    return TRUE;
}

// The parent is told of what the user does only.
LRESULT TabControl::SelectByProgram(int index) {
    const int former = selected_;
    if (index != -1 && !Has(index)) return -1;
    selected_ = index;
    Redraw();
    return former;
}

void TabControl::SelectByUser(int index) {
    if (!Has(index) || index == selected_) return;
    if (Tell(TCN_SELCHANGING) != 0) return;
    selected_ = index;
    Redraw();
    Tell(TCN_SELCHANGE);
}

void TabControl::Press(int index) {
    if (index == -1) return;
    SetFocus(Window());
    SelectByUser(index);
}

LRESULT TabControl::Tell(UINT code) {
    NMHDR header = {Window(), static_cast<UINT_PTR>(GetDlgCtrlID(Window())), code};
    return SendMessageA(Parent(), WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

int TabControl::TabWidth(const std::string& text) const {
    return std::max(Width(text.c_str(), text.size()) + 2 * kTabMargin, kLeastTabWidth);
}

RECT TabControl::TabRect(int index) const {
    LONG left = kStripEdge;
    for (int before = 0; before < index; ++before)
        left += TabWidth(tabs_[static_cast<size_t>(before)]);
    return {left, kStripEdge, left + TabWidth(tabs_[static_cast<size_t>(index)]), StripHeight()};
}

int TabControl::TabAt(POINT point) const {
    for (int index = 0; index < Count(); ++index) {
        const RECT rect = TabRect(index);
        if (PtInRect(&rect, point)) return index;
    }
    return -1;
}

bool TabControl::KeyDown(WPARAM key) {
    switch (key) {
        case VK_LEFT: SelectByUser(selected_ - 1); return true;
        case VK_RIGHT: SelectByUser(selected_ + 1); return true;
        default: return false;
    }
}

LRESULT TabControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case TCM_INSERTITEMA: return lParam ? Insert(index, *reinterpret_cast<const TCITEMA*>(lParam)) : -1;
        case TCM_GETITEMA: return lParam ? Get(index, *reinterpret_cast<TCITEMA*>(lParam)) : FALSE;
        case TCM_GETITEMCOUNT: return Count();
        case TCM_GETITEMRECT:
            if (!Has(index) || !lParam) return FALSE;
            *reinterpret_cast<RECT*>(lParam) = TabRect(index);
            return TRUE;
        case TCM_GETCURSEL: return selected_;
        case TCM_SETCURSEL: return SelectByProgram(index);
        case WM_LBUTTONDOWN: Press(TabAt(PointOf(lParam))); return 0;
        case WM_KEYDOWN:
            if (KeyDown(wParam)) return 0;
            return Default(message, wParam, lParam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS: Redraw(); return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(); return 0;
        default: return TextControl::Handle(message, wParam, lParam);
    }
}

void TabControl::Paint() {
    const PaintContext context(Window(), font_);
    const HDC dc = context.Get();
    if (!dc) return;
    const HBRUSH face = GetSysColorBrush(COLOR_BTNFACE);
    const RECT client = ClientArea();
    FillRect(dc, &client, face);
    RECT body = {client.left, StripHeight(), client.right, client.bottom};
    DrawEdge(dc, &body, EDGE_RAISED, BF_RECT);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    for (int index = 0; index < Count(); ++index) {
        RECT rect = TabRect(index);
        // The tab in front stands out and is open to the area below.
        if (index == selected_) {
            InflateRect(&rect, kStripEdge, 0);
            rect.top -= kStripEdge;
            rect.bottom += kStripEdge;
            FillRect(dc, &rect, face);
        }
        DrawEdge(dc, &rect, EDGE_RAISED, BF_LEFT | BF_TOP | BF_RIGHT);
        const std::string& text = tabs_[static_cast<size_t>(index)];
        DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &rect,
                  DT_SINGLELINE | DT_CENTER | DT_VCENTER);
        if (index != selected_ || !Focused()) continue;
        InflateRect(&rect, -kTabMargin / 2, -3);
        DrawFocusRect(dc, &rect);
    }
}

}  // namespace

void RegisterTabControlClass() {
    RegisterControlClass("SysTabControl32", &ControlProcedure<TabControl>,
                         CS_DBLCLKS | CS_VREDRAW | CS_HREDRAW);
}
