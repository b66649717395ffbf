#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "controls/number_value.h"

// Number fields: an edit and a spin control in a small window of their own. The edit shows text, a
// NumberValue holds the number; the two meet when the value is shown and when the user commits an edit, by
// Return, Escape or Tab or by leaving the field.

class WS_NumEdit;
class WS_NumEditSpin;

// The edit of a number field. It lets through what can stand in a number.
class WS_NumEditField : public CEdit {
public:
    void Link(WS_NumEditSpin* spin, WS_NumEdit* owner);

    // Takes the number out of the text, tells the parent of a change and starts a new edit.
    void Commit();
    // Shows the owner's value.
    void ShowValue();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg void OnChange();
    afx_msg void OnSetFocus(CWnd* from);
    afx_msg void OnKillFocus(CWnd* to);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    bool Linked() const { return spin_ && owner_; }
    void WriteText();
    void SelectAll();

    WS_NumEditSpin* spin_ = nullptr;
    WS_NumEdit* owner_ = nullptr;
    char text_[NumberValue::kTextSize] = {};  // as last read from or written to the window
    bool locked_ = false;                     // change notifications come from the control itself
    bool has_point_ = false;
    bool dirty_ = false;  // the user changed the text since the last commit
};

// The arrows of a number field.
class WS_NumEditSpin : public CSpinButtonCtrl {
public:
    void Link(WS_NumEditField* field, WS_NumEdit* owner);

protected:
    afx_msg void OnDeltaPos(NMHDR* header, LRESULT* result);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    bool tracking_ = false;
    WS_NumEditField* field_ = nullptr;
    WS_NumEdit* owner_ = nullptr;
};

class WS_NumEdit : public CWnd {
public:
    // Codes that a parent gets when the arrows are first used and when the mouse lets go of them.
    static constexpr LPARAM kTrackingBegins = 0x1501;
    static constexpr LPARAM kTrackingEnds = 0x1502;

    // 1. Throws CResourceException when the class is refused.
    BOOL RegisterNumEditClass();
    BOOL Create(CWnd* parent, unsigned id, const RECT* rect, unsigned style, unsigned extended_style);

    // Lets changes be posted to the parent: wParam is `word`, lParam a pointer to the number or one of the
    // codes above. 0 as the message posts nothing, as at first.
    void SetNotify(UINT message, WPARAM word);
    void Notify(LPARAM what);
    void NotifyValue();

    virtual BOOL OwnsWindow(CWnd* window);

    // What NumberValue documents, for the number of the field. Refresh shows it.
    virtual void Refresh() = 0;
    virtual void Step(int n) = 0;
    virtual void Clamp() = 0;
    virtual BOOL SetText(char* text, BOOL final) = 0;
    virtual void FormatValue(char* dest) = 0;
    virtual BOOL ParseText(const char* text, int length) = 0;
    virtual void Remember() = 0;
    virtual BOOL IsRemembered() = 0;

    CWnd& FieldWindow() { return field_; }
    void SetHasFocus(bool has_focus) { has_focus_ = has_focus; }
    bool HasFocus() const { return has_focus_; }

protected:
    // `value` points to the number, for the parent that is notified.
    WS_NumEdit(const char* class_name, const void* value) : class_name_(class_name), value_(value) {}

    void ShowValue() { field_.ShowValue(); }

    void PostNcDestroy() override;
    afx_msg void OnSetFocus(CWnd* from);
    afx_msg LRESULT OnSetFont(WPARAM font, LPARAM redraw);
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM word, LPARAM param);

    void MakeChildren(const RECT& field, const RECT& spin);
    void MakeChildrenInClient();

    const char* class_name_;
    const void* value_;
    bool created_ = false;
    bool has_focus_ = false;
    WS_NumEditField field_;
    WS_NumEditSpin spin_;
    UINT notify_message_ = 0;
    WPARAM notify_word_ = 0;
};

// A field over one kind of number, which is the caller's and must outlive the field.
template <class NumberType>
class NumEditOver : public WS_NumEdit {
public:
    using Number = NumberType;
    using Value = typename Number::Type;

    // As the number does. SetRange does not clamp.
    void SetRange(Value minimum, Value maximum, Value step) { number_.SetRange(minimum, maximum, step); }
    void SetNumber(Value number) {
        number_.SetNumber(number);
        Refresh();
    }

    void Refresh() override { ShowValue(); }
    void Step(int n) override { number_.Step(n); }
    void Clamp() override { number_.Clamp(); }
    BOOL SetText(char* text, BOOL final) override { return number_.SetText(text, final != FALSE); }
    void FormatValue(char* dest) override { number_.FormatValue(dest); }
    BOOL ParseText(const char* text, int length) override { return number_.ParseText(text, length); }
    void Remember() override { number_.Remember(); }
    BOOL IsRemembered() override { return number_.IsRemembered(); }

protected:
    NumEditOver(Number& number, const char* class_name)
        : WS_NumEdit(class_name, &number.Value()), number_(number) {}

private:
    Number& number_;
};

// A field for a 32-bit integer.
class WS_IntEdit : public NumEditOver<IntNumber> {
public:
    explicit WS_IntEdit(IntNumber& number) : NumEditOver(number, "WS_IntEdit") {}
};

// A field for a 32-bit float.
class WS_FloatEdit : public NumEditOver<FloatNumber> {
public:
    explicit WS_FloatEdit(FloatNumber& number) : NumEditOver(number, "WS_FloatEdit") {}
};
