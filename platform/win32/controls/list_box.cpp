#include "list_box.h"

#include <algorithm>
#include <cstring>

LRESULT ListBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto result = ItemMessage(message, wParam, lParam)) return *result;
    if (const auto result = SelectionMessage(message, wParam, lParam)) return *result;
    if (const auto result = InputMessage(message, wParam, lParam)) return *result;
    switch (message) {
        case WM_NCCREATE:
            items_ = ListItems(HasStyle(LBS_SORT));
            row_height_ = 16;
            return TextControl::Handle(message, wParam, lParam);
        case WM_CREATE:
            row_height_ = LineHeight();
            Resize();
            return 0;
        case WM_SETFONT:
            TextControl::Handle(message, wParam, lParam);
            row_height_ = LineHeight();
            Resize();
            return 0;
        case WM_SIZE: FitScrollBar(); return 0;
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(); return 0;
        case WM_VSCROLL: Scrolled(LOWORD(wParam), HIWORD(wParam)); return 0;
        case WM_GETDLGCODE: return DLGC_WANTARROWS | DLGC_WANTCHARS;
        default: return TextControl::Handle(message, wParam, lParam);
    }
}

LRESULT ListBox::CopyItem(int index, LPARAM buffer) const {
    if (!items_.Has(index) || !buffer) return LB_ERR;
    const std::string& text = items_.Text(index);
    std::memcpy(reinterpret_cast<char*>(buffer), text.c_str(), text.size() + 1);
    return static_cast<LRESULT>(text.size());
}

LRESULT ListBox::Remove(int index) {
    if (!items_.Has(index)) return LB_ERR;
    items_.Remove(index);
    if (selected_ == index)
        selected_ = -1;
    else if (selected_ > index)
        --selected_;
    FitScrollBar();
    Redraw();
    return items_.Count();
}

std::optional<LRESULT> ListBox::ItemMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    const auto* const text = reinterpret_cast<LPCSTR>(lParam);
    switch (message) {
        case LB_ADDSTRING: {
            if (!text) return LB_ERR;
            const int at = items_.Add(text);
            if (selected_ >= at) ++selected_;
            FitScrollBar();
            Redraw();
            return at;
        }
        case LB_DELETESTRING: return Remove(index);
        case LB_RESETCONTENT:
            items_.Clear();
            selected_ = -1;
            top_ = 0;
            FitScrollBar();
            Redraw();
            return 0;
        case LB_GETCOUNT: return items_.Count();
        case LB_GETTEXT: return CopyItem(index, lParam);
        case LB_GETTEXTLEN:
            return items_.Has(index) ? static_cast<LRESULT>(items_.Text(index).size()) : LB_ERR;
        case LB_FINDSTRING:
        case LB_FINDSTRINGEXACT:
            return text ? items_.Find(index, text, message == LB_FINDSTRINGEXACT) : LB_ERR;
        default: return std::nullopt;
    }
}

LRESULT ListBox::Select(int index) {
    if (index != -1 && !items_.Has(index)) return LB_ERR;
    selected_ = index;
    if (index != -1) ShowItem(index);
    Redraw();
    return index == -1 ? LB_ERR : index;
}

LRESULT ListBox::ItemRect(int index, RECT& rect) const {
    if (!items_.Has(index)) return LB_ERR;
    const RECT client = ClientArea();
    const LONG top = (index - top_) * row_height_;
    rect = {client.left, top, client.right, top + row_height_};
    return rect.bottom > 0 && rect.top < client.bottom;
}

std::optional<LRESULT> ListBox::SelectionMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const int index = static_cast<int>(wParam);
    switch (message) {
        case LB_SETCURSEL: return Select(index);
        case LB_GETCURSEL: return selected_;
        case LB_GETITEMHEIGHT: return row_height_;
        case LB_GETITEMRECT: return lParam ? ItemRect(index, *reinterpret_cast<RECT*>(lParam)) : LB_ERR;
        default: return std::nullopt;
    }
}

// ---- Keyboard and mouse. ----

void ListBox::Tell(int code) {
    if (!InCombo() && Style() & LBS_NOTIFY) Notify(code);
}

void ListBox::Choose(int index) {
    if (!items_.Has(index)) return;
    Select(index);
    Tell(LBN_SELCHANGE);
}

bool ListBox::KeyDown(WPARAM key) {
    const int last = items_.Count() - 1;
    const int at = std::max(selected_, 0);
    const auto go = [this, last](int to) {
        if (last >= 0) Choose(std::clamp(to, 0, last));
        return true;
    };
    switch (key) {
        case VK_UP:
        case VK_LEFT: return go(at - 1);
        case VK_DOWN:
        case VK_RIGHT: return go(selected_ == -1 ? 0 : at + 1);
        case VK_HOME: return go(0);
        case VK_END: return go(last);
        case VK_PRIOR: return go(at - VisibleRows() + 1);
        case VK_NEXT: return go(at + VisibleRows() - 1);
        default: return false;
    }
}

void ListBox::Press(POINT point) {
    if (!InCombo()) SetFocus(Window());
    const int row = RowAt(point);
    if (row == -1) return;
    SetCapture(Window());
    Select(row);
}

// With the button down the selection stays in the list; that of an open list needs no button.
void ListBox::Follow(POINT point) {
    const bool pressed = GetCapture() == Window();
    if (!pressed && !InCombo()) return;
    const RECT client = ClientArea();
    if (pressed) {
        point.x = std::clamp(point.x, client.left, std::max(client.left, client.right - 1));
        point.y = std::clamp(point.y, client.top, std::max(client.top, client.bottom - 1));
    }
    const int row = RowAt(point);
    if (row != -1) Select(row);
}

void ListBox::Release() {
    if (GetCapture() != Window()) return;
    ReleaseCapture();
    if (InCombo())
        SendMessageA(reinterpret_cast<HWND>(GetWindowLongPtrA(Window(), GWLP_USERDATA)), kPicked, 0, 0);
    else if (items_.Count() > 0)
        Tell(LBN_SELCHANGE);
}

std::optional<LRESULT> ListBox::InputMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN: Press(PointOf(lParam)); return 0;
        case WM_MOUSEMOVE: Follow(PointOf(lParam)); return 0;
        case WM_LBUTTONUP: Release(); return 0;
        case WM_LBUTTONDBLCLK: Tell(LBN_DBLCLK); return 0;
        case WM_KEYDOWN:
            if (!KeyDown(wParam)) return std::nullopt;
            return 0;
        case WM_CHAR: {
            const char typed[] = {static_cast<char>(wParam), 0};
            const int found = items_.Find(selected_, typed, false);
            if (found != -1) Choose(found);
            return 0;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            Redraw();
            // Told without LBS_NOTIFY, too.
            if (!InCombo()) Notify(message == WM_SETFOCUS ? LBN_SETFOCUS : LBN_KILLFOCUS);
            return 0;
        default: return std::nullopt;
    }
}

// ---- View. ----

int ListBox::VisibleRows() const {
    return std::max(1, static_cast<int>(ClientArea().bottom) / row_height_);
}

int ListBox::RowAt(POINT point) const {
    const RECT client = ClientArea();
    if (!PtInRect(&client, point)) return -1;
    const int row = top_ + point.y / row_height_;
    return items_.Has(row) ? row : -1;
}

void ListBox::ScrollTo(int top) {
    const int last = std::max(0, items_.Count() - VisibleRows());
    top_ = std::clamp(top, 0, last);
    FitScrollBar();
    Redraw();
}

void ListBox::ShowItem(int index) {
    if (index < top_) ScrollTo(index);
    if (index >= top_ + VisibleRows()) ScrollTo(index - VisibleRows() + 1);
}

void ListBox::FitScrollBar() {
    top_ = std::clamp(top_, 0, std::max(0, items_.Count() - VisibleRows()));
    if (!(Style() & WS_VSCROLL) && items_.Count() <= VisibleRows()) return;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = std::max(0, items_.Count() - 1);
    info.nPage = static_cast<UINT>(VisibleRows());
    info.nPos = top_;
    SetScrollInfo(Window(), SB_VERT, &info, TRUE);
}

void ListBox::Scrolled(WPARAM code, int thumb) {
    switch (code) {
        case SB_LINEUP: ScrollTo(top_ - 1); break;
        case SB_LINEDOWN: ScrollTo(top_ + 1); break;
        case SB_PAGEUP: ScrollTo(top_ - VisibleRows()); break;
        case SB_PAGEDOWN: ScrollTo(top_ + VisibleRows()); break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK: ScrollTo(thumb); break;
        case SB_TOP: ScrollTo(0); break;
        case SB_BOTTOM: ScrollTo(items_.Count()); break;
        default: break;
    }
}

// Without LBS_NOINTEGRALHEIGHT only whole rows are shown.
void ListBox::Resize() {
    if (Style() & LBS_NOINTEGRALHEIGHT) return;
    const int client = ClientArea().bottom;
    const int surplus = client % row_height_;
    if (client < row_height_ || surplus == 0) return;
    RECT rect = {};
    GetWindowRect(Window(), &rect);
    SetWindowPos(Window(), nullptr, 0, 0, rect.right - rect.left, rect.bottom - rect.top - surplus,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ListBox::Paint() {
    const PaintContext context(Window(), font_);
    const HDC dc = context.Get();
    if (!dc) return;
    const HBRUSH background = BackgroundBrush(WM_CTLCOLORLISTBOX, dc);
    const RECT client = ClientArea();
    FillRect(dc, &client, background);
    SetBkMode(dc, TRANSPARENT);
    const COLORREF color = Enabled() ? GetTextColor(dc) : GetSysColor(COLOR_GRAYTEXT);
    RECT row = {client.left, 0, client.right, row_height_};
    for (int index = top_; items_.Has(index) && row.top < client.bottom; ++index) {
        const bool selected = index == selected_;
        if (selected) FillRect(dc, &row, GetSysColorBrush(COLOR_HIGHLIGHT));
        SetTextColor(dc, selected ? GetSysColor(COLOR_HIGHLIGHTTEXT) : color);
        const std::string& text = items_.Text(index);
        TextOutA(dc, row.left + 2, row.top, text.c_str(), static_cast<int>(text.size()));
        if (selected && Focused()) DrawFocusRect(dc, &row);
        OffsetRect(&row, 0, row_height_);
    }
}

void RegisterListBoxClass() {
    RegisterControlClass("ListBox", &ControlProcedure<ListBox>, CS_DBLCLKS);
    RegisterControlClass("ComboLBox", &ControlProcedure<ListBox>, CS_DBLCLKS);
}
