#include <cstring>

#include "controls/num_edit.h"
#include "controls/number_field_text.h"

namespace {

// Bytes of a field's text that are read, the terminator included.
constexpr int kReadSize = 63;
constexpr LPARAM kSelectionEnd = 0xFFFF;
// The bit of a key's state that is looked at: set in the sign extension of a key that is held.
constexpr SHORT kKeyHeld = 0x1000;

bool IsCommitKey(WPARAM key) {
    return key == VK_RETURN || key == VK_ESCAPE || key == VK_TAB;
}

}  // namespace

BEGIN_MESSAGE_MAP(WS_NumEditField, CEdit)
ON_CONTROL_REFLECT(EN_CHANGE, &WS_NumEditField::OnChange)
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

void WS_NumEditField::Link(WS_NumEditSpin* spin, WS_NumEdit* owner) {
    spin_ = spin;
    owner_ = owner;
}

BOOL WS_NumEditField::PreTranslateMessage(MSG* message) {
    if (Linked() && message->message == WM_CHAR) {
        const bool control_held = (GetKeyState(VK_CONTROL) & kKeyHeld) != 0;
        if (!PassesNumberFilter(static_cast<char>(message->wParam), has_point_, control_held)) return TRUE;
    }
    const bool down = message->message == WM_KEYDOWN;
    if (Linked() && down && IsCommitKey(message->wParam)) Commit();
    if ((down || message->message == WM_KEYUP) && message->wParam == VK_RETURN) return TRUE;
    return CEdit::PreTranslateMessage(message);
}

void WS_NumEditField::Commit() {
    locked_ = true;
    if (!owner_->SetText(text_, TRUE)) WriteText();
    if (dirty_ && !owner_->IsRemembered()) owner_->NotifyValue();
    dirty_ = false;
    owner_->Remember();
    locked_ = false;
}

void WS_NumEditField::ShowValue() {
    if (!Linked()) return;
    owner_->FormatValue(text_);
    locked_ = true;
    dirty_ = false;
    WriteText();
    locked_ = false;
}

void WS_NumEditField::WriteText() {
    has_point_ = HasPoint(text_);
    SetWindowText(text_);
}

void WS_NumEditField::SelectAll() {
    SendMessage(EM_SETSEL, 0, kSelectionEnd);
    SendMessage(EM_SCROLLCARET, 0, 0);
}

void WS_NumEditField::OnChange() {
    if (locked_) return;
    locked_ = true;
    dirty_ = true;
    ::GetWindowTextA(m_hWnd, text_, kReadSize);
    if (*text_) {
        UsePointForComma(text_);
        has_point_ = HasPoint(text_);
    }
    locked_ = false;
}

void WS_NumEditField::OnSetFocus(CWnd* from) {
    CEdit::OnSetFocus(from);
    if (!Linked()) return;
    owner_->SetHasFocus(true);
    dirty_ = false;
    owner_->Remember();
    SelectAll();
}

void WS_NumEditField::OnKillFocus(CWnd* to) {
    CEdit::OnKillFocus(to);
    if (!Linked()) return;
    Commit();
    owner_->SetHasFocus(false);
}

void WS_NumEditField::OnLButtonDown(UINT flags, CPoint point) {
    const bool had_focus = Linked() && owner_->HasFocus();
    CEdit::OnLButtonDown(flags, point);
    if (!had_focus) SelectAll();
}

BEGIN_MESSAGE_MAP(WS_NumEditSpin, CSpinButtonCtrl)
ON_NOTIFY_REFLECT(UDN_DELTAPOS, &WS_NumEditSpin::OnDeltaPos)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

void WS_NumEditSpin::Link(WS_NumEditField* field, WS_NumEdit* owner) {
    field_ = field;
    owner_ = owner;
    // The arrow keys in the field reach the spin only through its buddy.
    SetBuddy(field);
}

void WS_NumEditSpin::OnDeltaPos(NMHDR* header, LRESULT* result) {
    *result = 0;
    if (!field_ || !owner_) return;
    if (!tracking_) {
        owner_->Notify(WS_NumEdit::kTrackingBegins);
        tracking_ = true;
    }
    // The up arrow has a negative delta.
    owner_->Step(-reinterpret_cast<const NMUPDOWN*>(header)->iDelta);
    field_->ShowValue();
    owner_->NotifyValue();
}

void WS_NumEditSpin::OnLButtonDown(UINT flags, CPoint point) {
    tracking_ = false;
    CSpinButtonCtrl::OnLButtonDown(flags, point);
}

void WS_NumEditSpin::OnLButtonUp(UINT flags, CPoint point) {
    if (tracking_ && owner_) {
        owner_->Notify(WS_NumEdit::kTrackingEnds);
        tracking_ = false;
    }
    CSpinButtonCtrl::OnLButtonUp(flags, point);
}
