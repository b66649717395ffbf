#include <algorithm>

#include "edit_control.h"

namespace {

constexpr int kTabCharacters = 8;
constexpr int kTabUnits = 4;          // of a character
constexpr int kFarthestTab = 0x7fff;  // in these units
constexpr int kScrollFraction = 3;  // of the width, that stays before or behind a caret that was scrolled to
constexpr int kWheelStep = 120;
constexpr int kWheelLines = 3;

}  // namespace

void EditControl::MeasureFont() {
    static constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = static_cast<int>(kLetters.size());
    const FontContext context(Window(), font_);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(context.Get(), &metrics);
    SIZE size = {};
    GetTextExtentPoint32A(context.Get(), kLetters.data(), kCount, &size);
    line_height_ = std::max<int>(1, metrics.tmHeight);
    character_width_ = std::max(1, (static_cast<int>(size.cx) + kCount / 2) / kCount);
    measure_.Forget();
}

void EditControl::SetFont(HFONT font, bool redraw) {
    font_ = font;
    MeasureFont();
    // A window that has no room for them keeps its margins.
    const int margin = line_height_ / 4;
    if (ClientArea().right >= 2 * (margin + character_width_)) margin_ = margin;
    UpdateLayout();
    if (focused_) {
        DestroyCaret();
        CreateCaret(Window(), nullptr, 1, line_height_);
        ShowCaret(Window());
    }
    ShowCaretPlace();
    if (redraw) Redraw();
}

// Everything that the size and the font decide.
void EditControl::UpdateLayout() {
    UpdateFormat();
    if (multi_line_) {
        std::vector<int> stops;
        for (const int stop : tab_stops_)
            stops.push_back(std::clamp(stop, 0, kFarthestTab) * character_width_ / kTabUnits);
        // A single stop is meant for all.
        const int tab = stops.size() == 1 ? std::max(1, stops[0]) : kTabCharacters * character_width_;
        measure_.SetTabs(std::move(stops), tab);
        TextChanged();
    }
    ScrollToCaret();
}

void EditControl::UpdateFormat() {
    format_ = ClientArea();
    const bool edge = (static_cast<DWORD>(GetWindowLongA(Window(), GWL_EXSTYLE)) & WS_EX_CLIENTEDGE) != 0;
    const int inset = border_ ? 2 : edge ? 1 : 0;
    const bool high = format_.bottom - format_.top >= line_height_ + 2 * inset;
    InflateRect(&format_, -inset, high ? -inset : 0);
    format_.left += margin_;
    format_.right = std::max(format_.left, format_.right - margin_);
}

int EditControl::WrapWidth() const {
    return HasStyle(ES_AUTOHSCROLL) ? 0 : std::max<int>(1, format_.right - format_.left);
}

int EditControl::VisibleLines() const {
    return std::max<int>(1, (format_.bottom - format_.top) / line_height_);
}

void EditControl::UpdateScrollBar() {
    const auto count = static_cast<int>(lines_.Count());
    const int page = std::min(VisibleLines(), count);
    first_line_ = std::min(first_line_, static_cast<size_t>(count - page));
    if (!HasStyle(WS_VSCROLL)) return;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = count - 1;
    info.nPage = static_cast<UINT>(page);
    info.nPos = static_cast<int>(first_line_);
    SetScrollInfo(Window(), SB_VERT, &info, TRUE);
}

std::string_view EditControl::LineText(size_t line) const {
    const std::string_view all = text_.Text();
    return multi_line_ ? all.substr(lines_[line].start, lines_[line].length) : all;
}

size_t EditControl::CaretLine() const {
    if (!multi_line_) return 0;
    const size_t line = lines_.LineOf(text_.Caret());
    return caret_at_end_ && line > 0 && lines_.IsWrapped(line - 1) ? line - 1 : line;
}

POINT EditControl::PlaceOf(size_t line, size_t position) const {
    if (!multi_line_) {
        const std::string_view all = text_.Text();
        const size_t from = std::min(first_char_, position);
        const int width = measure_.WidthOf(all.substr(from, std::max(first_char_, position) - from));
        return {format_.left + width, format_.top};
    }
    const size_t column = std::min(position - lines_[line].start, lines_[line].length);
    const auto row = static_cast<LONG>(line) - static_cast<LONG>(first_line_);
    return {format_.left - scrolled_ + measure_.WidthOf(LineText(line).substr(0, column)),
            format_.top + row * line_height_};
}

// Of a place outside, the nearest visible line counts.
size_t EditControl::PositionAt(POINT point) const {
    const int x = point.x - format_.left;
    if (!multi_line_) {
        const size_t first = std::min(first_char_, text_.Length());
        return first + measure_.PositionAt(std::string_view(text_.Text()).substr(first), x);
    }
    const LONG row = point.y < format_.top ? 0 : (point.y - format_.top) / line_height_;
    const size_t visible =
        std::min<size_t>(static_cast<size_t>(row), static_cast<size_t>(VisibleLines()) - 1);
    const size_t line = std::min(first_line_ + visible, lines_.Count() - 1);
    return lines_[line].start + measure_.PositionAt(LineText(line), x + scrolled_);
}

void EditControl::ShowCaretPlace() const {
    if (!focused_) return;
    const POINT place = PlaceOf(CaretLine(), text_.Caret());
    SetCaretPos(place.x, place.y);
}

void EditControl::ScrollToCaret() {
    if (multi_line_) {
        ScrollLinesToCaret();
    } else {
        ScrollLineToCaret();
    }
    ShowCaretPlace();
}

void EditControl::ScrollLineToCaret() {
    const std::string_view all = text_.Text();
    const int width = format_.right - format_.left;
    const size_t caret = text_.Caret();
    if (!HasStyle(ES_AUTOHSCROLL) && measure_.WidthOf(all) <= width) first_char_ = 0;
    if (caret < first_char_) {
        // Some of what stands before the caret is to be seen.
        int before = 0;
        first_char_ = caret;
        while (first_char_ > 0 && before < width / kScrollFraction) {
            --first_char_;
            before = measure_.WidthOf(all.substr(first_char_, caret - first_char_));
        }
        Redraw();
        return;
    }
    int left = measure_.WidthOf(all.substr(first_char_, caret - first_char_));
    if (left <= width) return;
    const int goal = width - width / kScrollFraction;
    int rest = left + measure_.WidthOf(all.substr(caret));
    while (first_char_ < caret && left > goal && rest > width) {
        const int gone = measure_.WidthOf(all.substr(first_char_, 1));
        left -= gone;
        rest -= gone;
        ++first_char_;
    }
    Redraw();
}

void EditControl::ScrollLinesToCaret() {
    const size_t line = CaretLine();
    const auto visible = static_cast<size_t>(VisibleLines());
    if (line < first_line_) {
        SetFirstLine(static_cast<long long>(line));
    } else if (line >= first_line_ + visible) {
        SetFirstLine(static_cast<long long>(line) - VisibleLines() + 1);
    }
    if (!HasStyle(ES_AUTOHSCROLL)) return;
    const int width = format_.right - format_.left;
    // Not `line`: whoever was told of the scrolling may have changed the text.
    const int x = PlaceOf(CaretLine(), text_.Caret()).x - format_.left;
    if (x < 0) {
        SetScrolled(scrolled_ + x - width / kScrollFraction);
    } else if (x > width) {
        SetScrolled(scrolled_ + x - width + width / kScrollFraction);
    }
}

void EditControl::SetFirstLine(long long line) {
    const long long last = static_cast<long long>(lines_.Count()) - VisibleLines();
    const auto first = static_cast<size_t>(std::clamp(line, 0LL, std::max(0LL, last)));
    if (first == first_line_) return;
    first_line_ = first;
    if (HasStyle(WS_VSCROLL)) SetScrollPos(Window(), SB_VERT, static_cast<int>(first), TRUE);
    Redraw();
    ShowCaretPlace();
    Notify(EN_VSCROLL);
}

void EditControl::SetScrolled(int pixels) {
    pixels = std::max(0, pixels);
    if (pixels == scrolled_) return;
    scrolled_ = pixels;
    Redraw();
    ShowCaretPlace();
    Notify(EN_HSCROLL);
}

void EditControl::ScrollByBar(int code, int thumb) {
    const auto first = static_cast<long long>(first_line_);
    switch (code) {
        case SB_LINEUP: SetFirstLine(first - 1); break;
        case SB_LINEDOWN: SetFirstLine(first + 1); break;
        case SB_PAGEUP: SetFirstLine(first - VisibleLines()); break;
        case SB_PAGEDOWN: SetFirstLine(first + VisibleLines()); break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK: SetFirstLine(thumb); break;
        case SB_TOP: SetFirstLine(0); break;
        case SB_BOTTOM: SetFirstLine(static_cast<long long>(lines_.Count())); break;
        default: break;
    }
}

// No line is longer.
constexpr int kFarthest = 0x8000;

LRESULT EditControl::ScrollBy(int characters, int lines) {
    if (!multi_line_) return FALSE;
    if (characters != 0)
        SetScrolled(scrolled_ + std::clamp(characters, -kFarthest, kFarthest) * character_width_);
    SetFirstLine(static_cast<long long>(first_line_) + lines);
    return TRUE;
}

bool EditControl::ScrollByWheel(int delta) {
    if (!multi_line_) return false;
    ScrollBy(0, -delta * kWheelLines / kWheelStep);
    return true;
}

void EditControl::MoveCaret(size_t position, bool extend) {
    const bool marked = text_.HasSelection();
    text_.Select(extend ? text_.Anchor() : position, position);
    ScrollToCaret();
    if (marked || text_.HasSelection()) Redraw();
}
