#pragma once

#include <optional>

#include "list_items.h"
#include "text_control.h"

// The list box: items in a column, one of them selected or none. The open list of a combo box is one too: it
// tells the combo box of clicks by the messages below, instead of its parent by WM_COMMAND.
class ListBox : public TextControl {
public:
    // The selected item was clicked.
    static constexpr UINT kPicked = WM_USER + 0x40;

    explicit ListBox(HWND window) : TextControl(window) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    bool InCombo() const { return (Style() & LBS_COMBOBOX) != 0; }

    std::optional<LRESULT> ItemMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> SelectionMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> InputMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT CopyItem(int index, LPARAM buffer) const;
    LRESULT Remove(int index);
    LRESULT Select(int index);
    LRESULT ItemRect(int index, RECT& rect) const;
    bool KeyDown(WPARAM key);
    void Press(POINT point);
    void Follow(POINT point);
    void Release();
    // A choice by the user.
    void Choose(int index);
    void Tell(int code);

    int VisibleRows() const;
    int RowAt(POINT point) const;
    void ScrollTo(int top);
    void ShowItem(int index);
    void FitScrollBar();
    void Scrolled(WPARAM code, int thumb);
    void Resize();
    void Paint();

    ListItems items_{false};
    int selected_ = -1;
    int top_ = 0;
    int row_height_ = 16;
};

void RegisterListBoxClass();
