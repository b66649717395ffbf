#pragma once

#include <string>
#include <string_view>

#include "control.h"
#include "edit_lines.h"
#include "edit_text.h"

// The window of the class "Edit". Its members are spread over files by subject: edit_control.cpp takes the
// messages apart and changes the text, edit_queries.cpp tells about it, edit_view.cpp knows places and
// scrolling, edit_paint.cpp draws, edit_keys.cpp and edit_mouse.cpp hear the user.
class EditControl : public Control {
public:
    explicit EditControl(HWND window);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    // ---- Messages. ----
    LRESULT HandleText(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleQuery(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleInput(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    bool Create(const CREATESTRUCTA& create);
    LRESULT DialogCode(LPARAM message);
    void SetReadOnly(bool read_only);
    void SetFont(HFONT font, bool redraw);

    bool IsReadOnly() const { return HasStyle(ES_READONLY); }

    // ---- Text. ----
    void SetText(const char* text);
    LRESULT CopyText(WPARAM size, char* buffer) const;
    // Puts text into the place of the selection, as far as there is room, and tells the parent. Nothing in
    // the place of nothing is no change.
    void ReplaceSelection(std::string_view text);
    // How much of what was just put before the caret does not fit into the window, where it must.
    size_t Overhang(size_t inserted) const;
    void TextChanged();

    // ---- Queries. ----
    LRESULT GetSelection(DWORD* start, DWORD* end) const;
    void SetSelection(WPARAM start, LPARAM end);
    LRESULT GetLine(WPARAM line, char* buffer) const;
    LRESULT LineLength(WPARAM position) const;
    LRESULT LineIndex(WPARAM line) const;
    LRESULT LineFromChar(WPARAM position) const;
    LRESULT PositionFromChar(WPARAM position) const;
    void SetLimit(WPARAM limit);

    // ---- View. ----
    void MeasureFont();
    void UpdateLayout();
    void UpdateFormat();
    void UpdateScrollBar();
    int WrapWidth() const;
    int VisibleLines() const;
    size_t CaretLine() const;
    std::string_view LineText(size_t line) const;
    POINT PlaceOf(size_t line, size_t position) const;
    size_t PositionAt(POINT point) const;
    void ShowCaretPlace() const;
    void ScrollToCaret();
    void ScrollLineToCaret();
    void ScrollLinesToCaret();
    void SetFirstLine(long long line);
    void SetScrolled(int pixels);
    void ScrollByBar(int code, int thumb);
    LRESULT ScrollBy(int characters, int lines);
    bool ScrollByWheel(int delta);
    // Moves the caret; `extend` keeps the anchor.
    void MoveCaret(size_t position, bool extend);

    // ---- Painting. ----
    void Paint();
    HBRUSH Background(HDC dc);
    void PaintLine(HDC dc, size_t line) const;
    int PaintRun(HDC dc, int origin, int x, int y, std::string_view run, bool selected) const;
    void GainFocus();
    void LoseFocus();

    // ---- Keys. ----
    void KeyDown(WPARAM key);
    bool DialogKey(WPARAM key);
    void PressDefaultButton();
    void MoveHome(bool extend, bool all);
    void MoveEnd(bool extend, bool all);
    void MoveLines(int lines, bool extend);
    void DeleteKey(bool shift, bool control);
    void Character(char c);
    void NewLine();
    void Backspace();

    // ---- Mouse. ----
    void SelectWordAt(POINT point);

    const bool multi_line_;
    bool border_ = false;  // drawn here, inside of the client area
    HFONT font_ = nullptr;
    EditText text_;
    TextMeasure measure_;
    EditLines lines_;  // of several; a single line has no table
    size_t limit_ = 30000;
    bool format_lines_ = false;  // EM_FMTLINES
    bool focused_ = false;
    bool dragging_ = false;
    bool in_dialog_ = false;  // a dialog has asked which keys are wanted
    // The caret stands at the end of a wrapped line, not at the start of the next one.
    bool caret_at_end_ = false;
    RECT format_ = {};  // where the text is
    int margin_ = 0;    // left and right, by the font that was set
    int line_height_ = 1;
    int character_width_ = 1;     // the mean of all letters, the unit of stops
    std::vector<int> tab_stops_;  // quarters of a character; empty for one of every eight characters
    size_t first_line_ = 0;       // the topmost visible line
    size_t first_char_ = 0;       // of one line
    int scrolled_ = 0;            // pixels, of several lines
};
