#include "edit_control.h"

#include <algorithm>
#include <cstring>

#include "edit.h"

namespace {

// The limit that 0 stands for.
constexpr size_t kLongestLine = 0x7FFFFFFE;
constexpr size_t kLongestText = 0xFFFFFFFF;

}  // namespace

EditControl::EditControl(HWND window)
    : Control(window), multi_line_(HasStyle(ES_MULTILINE)), text_(multi_line_), measure_([this](char c) {
          const FontContext context(Window(), font_);
          SIZE size = {};
          GetTextExtentPoint32A(context.Get(), &c, 1, &size);
          return static_cast<int>(size.cx);
      }) {}

LRESULT EditControl::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NCCREATE: return Create(*reinterpret_cast<CREATESTRUCTA*>(lParam));
        case WM_CREATE:
            MeasureFont();
            UpdateLayout();
            return 0;
        case WM_GETDLGCODE: return DialogCode(lParam);
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(); return 0;
        case WM_ENABLE: Redraw(); return 0;
        case WM_SIZE:
            UpdateLayout();
            Redraw();
            return 0;
        case WM_SETFOCUS: GainFocus(); return 0;
        case WM_KILLFOCUS: LoseFocus(); return 0;
        case WM_GETFONT: return reinterpret_cast<LRESULT>(font_);
        case WM_SETFONT: SetFont(reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0); return 0;
        default: return HandleText(message, wParam, lParam);
    }
}

LRESULT EditControl::HandleText(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETTEXT: SetText(reinterpret_cast<const char*>(lParam)); return TRUE;
        case WM_GETTEXT: return CopyText(wParam, reinterpret_cast<char*>(lParam));
        case WM_GETTEXTLENGTH: return static_cast<LRESULT>(text_.Length());
        case EM_REPLACESEL: {
            const auto* text = reinterpret_cast<const char*>(lParam);
            ReplaceSelection(text ? text : "");
            return 1;
        }
        case EM_SETREADONLY: SetReadOnly(wParam != 0); return 1;
        case EM_LIMITTEXT: SetLimit(wParam); return 0;
        case EM_FMTLINES: return format_lines_ = wParam != 0;
        default: return HandleQuery(message, wParam, lParam);
    }
}

bool EditControl::Create(const CREATESTRUCTA& create) {
    // The frame of one pixel belongs to the client area, so that clicks on it find the text.
    border_ = HasStyle(WS_BORDER);
    if (border_) {
        const DWORD style = Style() & ~static_cast<DWORD>(WS_BORDER);
        SetWindowLongA(Window(), GWL_STYLE, static_cast<LONG>(style));
    }
    if (create.lpszName) text_.Assign(create.lpszName);
    return Default(WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)) != 0;
}

LRESULT EditControl::DialogCode(LPARAM message) {
    if (message) in_dialog_ = true;
    const LRESULT code = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    return multi_line_ ? code | DLGC_WANTALLKEYS : code;
}

void EditControl::SetReadOnly(bool read_only) {
    const DWORD bit = ES_READONLY;
    SetWindowLongA(Window(), GWL_STYLE, static_cast<LONG>(read_only ? Style() | bit : Style() & ~bit));
    Redraw();
}

void EditControl::SetText(const char* text) {
    text_.Assign(text ? text : "");
    caret_at_end_ = false;
    first_line_ = first_char_ = 0;
    scrolled_ = 0;
    TextChanged();
    // Windows of several lines keep silent here.
    if (!multi_line_) Notify(EN_UPDATE);
    ScrollToCaret();
    Redraw();
    if (!multi_line_) Notify(EN_CHANGE);
}

LRESULT EditControl::CopyText(WPARAM size, char* buffer) const {
    if (size == 0 || !buffer) return 0;
    const size_t count = std::min<size_t>(size - 1, text_.Length());
    std::memcpy(buffer, text_.Text().data(), count);
    buffer[count] = '\0';
    return static_cast<LRESULT>(count);
}

void EditControl::ReplaceSelection(std::string_view text) {
    if (text.empty() && !text_.HasSelection()) return;
    const auto room = [this] {
        const size_t kept = text_.Length() - text_.SelectedText().size();
        return limit_ > kept ? limit_ - kept : 0;
    };
    if (text.size() > room() || text_.Length() - text_.SelectedText().size() > limit_) {
        Notify(EN_MAXTEXT);
        text = text.substr(0, room());
    }
    text_.Replace(text);
    caret_at_end_ = false;
    TextChanged();
    if (const size_t overhang = Overhang(text.size())) {
        Notify(EN_MAXTEXT);
        text_.CutBeforeCaret(overhang);
        TextChanged();
    }
    Notify(EN_UPDATE);
    ScrollToCaret();
    Redraw();
    Notify(EN_CHANGE);
}

size_t EditControl::Overhang(size_t inserted) const {
    if (!multi_line_ && !HasStyle(ES_AUTOHSCROLL)) {
        const int width = format_.right - format_.left;
        const int excess = measure_.WidthOf(text_.Text()) - width;
        const std::string_view last =
            std::string_view(text_.Text()).substr(text_.Caret() - inserted, inserted);
        size_t overhang = 0;
        while (overhang < inserted && measure_.WidthOf(last.substr(inserted - overhang)) < excess)
            ++overhang;
        return overhang;
    }
    const bool too_many = multi_line_ && !HasStyle(ES_AUTOVSCROLL) && !HasStyle(WS_VSCROLL) &&
                          lines_.Count() > static_cast<size_t>(VisibleLines());
    return too_many ? inserted : 0;
}

// The lines and what depends on them. The parent does not know yet.
void EditControl::TextChanged() {
    if (!multi_line_) return;
    lines_.Build(text_, measure_, WrapWidth());
    UpdateScrollBar();
}

void EditControl::SetLimit(WPARAM limit) {
    limit_ = limit ? static_cast<size_t>(limit) : multi_line_ ? kLongestText : kLongestLine;
}

void RegisterEditClass() {
    RegisterControlClass("Edit", ControlProcedure<EditControl>, CS_DBLCLKS);
}
