#pragma once

#include <optional>

#include "text_control.h"

// The combo box: a field, an arrow and a list that opens below them. The field is the text of the selected
// item, or an edit.
class ComboBox : public TextControl {
public:
    explicit ComboBox(HWND window) : TextControl(window) {}

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    bool HasEdit() const { return (Style() & 3) == CBS_DROPDOWN; }
    bool Dropped() const { return IsWindowVisible(list_); }

    void CreateParts();
    void Layout();
    LRESULT Resize(const WINDOWPOS& place);
    int FieldHeight() const;
    RECT ButtonRect() const;
    RECT ListPlace() const;

    std::optional<LRESULT> ListMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> TextMessage(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> InputMessage(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT List(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(list_, message, wParam, lParam);
    }
    LRESULT Select(int index);
    void ShowSelectedText();
    LRESULT SetEditText(LPARAM text);
    int FindTyped() const;
    void SelectFound();
    std::string TextOfEdit() const;
    void Open();
    void Close(bool taken);
    int MovedBy(WPARAM key, int at, int last) const;
    void Move(WPARAM key);
    bool KeyDown(WPARAM key);
    void EditNotification(int code);
    std::string SelectedText() const;
    void Paint();

    HWND list_ = nullptr;
    HWND edit_ = nullptr;
    int open_height_ = 0;  // of field and open list
    bool resizing_ = false;
    bool setting_text_ = false;
};

// Keys that step through the items, and keys that close the open list.
bool MovesSelection(WPARAM key);
bool ClosesList(WPARAM key);

void RegisterComboBoxClass();
