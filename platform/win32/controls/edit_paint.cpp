#include <algorithm>

#include "edit_control.h"

namespace {

bool IsMarked(size_t position, size_t start, size_t end) {
    return position >= start && position < end;
}

}  // namespace

HBRUSH EditControl::Background(HDC dc) {
    const bool plain = IsReadOnly() || !IsWindowEnabled(Window());
    return BackgroundBrush(plain ? WM_CTLCOLORSTATIC : WM_CTLCOLOREDIT, dc);
}

void EditControl::Paint() {
    const PaintContext context(Window(), font_);
    const HDC dc = context.Get();
    if (!dc) return;
    const RECT area = ClientArea();
    FillRect(dc, &area, Background(dc));
    if (border_) FrameRect(dc, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
    if (!IsWindowEnabled(Window())) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, format_.left, format_.top, format_.right, format_.bottom);
    if (multi_line_) {
        // The line that is cut off by the lower edge, too.
        const size_t end = std::min(lines_.Count(), first_line_ + static_cast<size_t>(VisibleLines()) + 1);
        for (size_t line = first_line_; line < end; ++line)
            PaintLine(dc, line);
    } else {
        PaintLine(dc, 0);
    }
    RestoreDC(dc, saved);
}

// A line in runs that are selected, or not.
void EditControl::PaintLine(HDC dc, size_t line) const {
    const size_t line_start = multi_line_ ? lines_[line].start : 0;
    const size_t skipped = multi_line_ ? 0 : first_char_;
    const std::string_view text = LineText(line);
    const POINT origin = PlaceOf(line, line_start + skipped);
    const bool shows = focused_ || HasStyle(ES_NOHIDESEL);
    const size_t from = shows ? text_.SelectionStart() : 0;
    const size_t to = shows ? text_.SelectionEnd() : 0;
    int x = 0;
    for (size_t start = skipped; start < text.size() && origin.x + x < format_.right;) {
        const bool marked = IsMarked(line_start + start, from, to);
        size_t end = text.size();
        for (const size_t edge : {from, to}) {
            if (edge > line_start + start) end = std::min(end, edge - line_start);
        }
        x = PaintRun(dc, origin.x, x, origin.y, text.substr(start, end - start), marked);
        start = end;
    }
}

// Draws from `x` behind the line's start and tells where it ended.
int EditControl::PaintRun(HDC dc, int origin, int x, int y, std::string_view run, bool selected) const {
    const COLORREF text_color = GetTextColor(dc);
    const COLORREF background = GetBkColor(dc);
    if (selected) {
        SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
        SetBkColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    }
    while (!run.empty()) {
        const bool tab = multi_line_ && run[0] == '\t';
        const size_t stop = tab ? 1 : multi_line_ ? std::min(run.find('\t'), run.size()) : run.size();
        int end = x;
        for (const char c : run.substr(0, stop))
            end = measure_.Advance(end, c);
        const RECT cell = {origin + x, y, origin + end, y + line_height_};
        const UINT options = selected ? ETO_OPAQUE | ETO_CLIPPED : 0;
        ExtTextOutA(dc, cell.left, y, options, &cell, run.data(), tab ? 0 : static_cast<UINT>(stop), nullptr);
        x = end;
        run.remove_prefix(stop);
    }
    SetTextColor(dc, text_color);
    SetBkColor(dc, background);
    return x;
}

void EditControl::GainFocus() {
    focused_ = true;
    CreateCaret(Window(), nullptr, 1, line_height_);
    ShowCaretPlace();
    ShowCaret(Window());
    if (text_.HasSelection()) Redraw();
    Notify(EN_SETFOCUS);
}

void EditControl::LoseFocus() {
    focused_ = false;
    DestroyCaret();
    if (text_.HasSelection()) Redraw();
    Notify(EN_KILLFOCUS);
}
