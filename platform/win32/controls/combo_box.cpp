#include "combo_box.h"

#include <algorithm>

#include "list_box.h"

namespace {

constexpr int kEditId = 1001;
constexpr int kListId = 1000;
constexpr int kEdge = 2;

// The messages that are the list's own, under another number.
struct ListTwin {
    UINT combo;
    UINT list;
};
constexpr ListTwin kTwins[] = {{CB_ADDSTRING, LB_ADDSTRING},     {CB_GETCOUNT, LB_GETCOUNT},
                               {CB_GETCURSEL, LB_GETCURSEL},     {CB_GETLBTEXT, LB_GETTEXT},
                               {CB_GETLBTEXTLEN, LB_GETTEXTLEN}, {CB_FINDSTRINGEXACT, LB_FINDSTRINGEXACT}};

// The field leaves the keys of the list to the combo box.
LRESULT CALLBACK FieldProcedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND combo = GetParent(edit);
    const bool dropped = SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0) != 0;
    if (message == WM_KEYDOWN && (MovesSelection(wParam) || wParam == VK_F4))
        return SendMessageA(combo, message, wParam, lParam);
    if (message == WM_CHAR && dropped && ClosesList(wParam))
        return SendMessageA(combo, WM_KEYDOWN, wParam, lParam);
    WNDCLASSA edits = {};
    GetClassInfoA(nullptr, "Edit", &edits);
    const LRESULT answer = CallWindowProcA(edits.lpfnWndProc, edit, message, wParam, lParam);
    const auto* const key = reinterpret_cast<const MSG*>(lParam);
    if (message == WM_GETDLGCODE && dropped && key && key->message == WM_KEYDOWN && ClosesList(key->wParam))
        return answer | DLGC_WANTMESSAGE;
    return answer;
}

}  // namespace

// The field, its inner edge and the frame of the window.
int ComboBox::FieldHeight() const {
    return LineHeight() + 4 + 2 * kEdge;
}

RECT ComboBox::ButtonRect() const {
    const RECT client = ClientArea();
    const LONG width = GetSystemMetrics(SM_CXVSCROLL);
    return {client.right - kEdge - width, kEdge, client.right - kEdge, client.bottom - kEdge};
}

RECT ComboBox::ListPlace() const {
    RECT rect = {};
    GetWindowRect(Window(), &rect);
    const LONG room = std::max<LONG>(open_height_ - (rect.bottom - rect.top), LineHeight() + 2);
    const LONG count = std::max<LONG>(static_cast<LONG>(List(LB_GETCOUNT)), 1);
    const LONG wanted = count * static_cast<LONG>(List(LB_GETITEMHEIGHT)) + 2;
    return {rect.left, rect.bottom, rect.right, rect.bottom + std::min(room, wanted)};
}

void ComboBox::CreateParts() {
    const DWORD style = Style();
    DWORD list_style =
        WS_POPUP | WS_BORDER | WS_CLIPSIBLINGS | LBS_COMBOBOX | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    if (style & CBS_SORT) list_style |= LBS_SORT;
    if (style & WS_VSCROLL) list_style |= WS_VSCROLL;
    // It lies beside all windows, not to be cut off by those around the combo box.
    list_ = CreateWindowExA(WS_EX_TOOLWINDOW, "ComboLBox", nullptr, list_style, 0, 0, 10, 10, Window(),
                            nullptr, nullptr, nullptr);
    SetWindowLongPtrA(list_, GWLP_ID, kListId);
    SetWindowLongPtrA(list_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(Window()));
    if (HasEdit())
        edit_ = CreateWindowExA(0, "Edit", nullptr, WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 10, 10,
                                Window(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kEditId)), nullptr,
                                nullptr);
    if (edit_) SetWindowLongPtrA(edit_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&FieldProcedure));
}

// The height that is asked for is that of the open list; the closed one has that of its field.
LRESULT ComboBox::Resize(const WINDOWPOS& place) {
    if (!(place.flags & SWP_NOSIZE) && !resizing_) open_height_ = std::max(place.cy, 0);
    return 0;
}

void ComboBox::Layout() {
    RECT rect = {};
    GetWindowRect(Window(), &rect);
    const LONG height = FieldHeight();
    if (rect.bottom - rect.top != height && !resizing_) {
        resizing_ = true;
        SetWindowPos(Window(), nullptr, 0, 0, rect.right - rect.left, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        resizing_ = false;
    }
    if (!edit_) return;
    const RECT button = ButtonRect();
    const RECT client = ClientArea();
    MoveWindow(edit_, kEdge + 1, kEdge + 1, std::max<LONG>(button.left - kEdge - 1, 0),
               std::max<LONG>(client.bottom - 2 * (kEdge + 1), 0), TRUE);
}

LRESULT ComboBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    if (list_) {
        if (const auto result = ListMessage(message, wParam, lParam)) return *result;
        if (const auto result = TextMessage(message, wParam, lParam)) return *result;
        if (const auto result = InputMessage(message, wParam, lParam)) return *result;
    }
    switch (message) {
        case WM_CREATE:
            open_height_ = std::max(reinterpret_cast<const CREATESTRUCTA*>(lParam)->cy, 0);
            CreateParts();
            // The bar is the list's.
            SetWindowLongA(Window(), GWL_STYLE, GetWindowLongA(Window(), GWL_STYLE) & ~WS_VSCROLL);
            Layout();
            return 0;
        case WM_NCCALCSIZE: return 0;  // it draws its edge itself
        case WM_WINDOWPOSCHANGING: return list_ ? Resize(*reinterpret_cast<const WINDOWPOS*>(lParam)) : 0;
        case WM_SIZE:
            if (list_) Layout();
            return 0;
        case WM_SETFONT:
            TextControl::Handle(message, wParam, lParam);
            List(WM_SETFONT, wParam, lParam);
            if (edit_) SendMessageA(edit_, WM_SETFONT, wParam, lParam);
            Layout();
            return 0;
        case WM_ENABLE:
            if (edit_) EnableWindow(edit_, wParam != 0);
            return TextControl::Handle(message, wParam, lParam);
        case WM_NCPAINT:
        case WM_ERASEBKGND: return 1;
        case WM_PAINT: Paint(); return 0;
        case WM_GETDLGCODE: {
            const auto* const key = reinterpret_cast<const MSG*>(lParam);
            const bool leave =
                key && key->message == WM_KEYDOWN && ClosesList(key->wParam) && list_ && Dropped();
            return DLGC_WANTARROWS | DLGC_WANTCHARS | (leave ? DLGC_WANTMESSAGE : 0);
        }
        case WM_DESTROY:
            if (list_) DestroyWindow(list_);
            list_ = nullptr;
            return 0;
        default: return TextControl::Handle(message, wParam, lParam);
    }
}

// ---- Items and selection. ----

std::string ComboBox::SelectedText() const {
    const LRESULT index = List(LB_GETCURSEL);
    const LRESULT length = index == LB_ERR ? 0 : List(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    std::string text(static_cast<size_t>(length) + 1, '\0');
    if (index != LB_ERR) List(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return text;
}

void ComboBox::ShowSelectedText() {
    if (edit_) {
        const std::string text = SelectedText();
        SetEditText(reinterpret_cast<LPARAM>(text.c_str()));
        SendMessageA(edit_, EM_SETSEL, 0, -1);
    }
    Redraw();
}

// A change by the program is not told.
LRESULT ComboBox::SetEditText(LPARAM text) {
    setting_text_ = true;
    const LRESULT result = SendMessageA(edit_, WM_SETTEXT, 0, text);
    setting_text_ = false;
    return result;
}

LRESULT ComboBox::Select(int index) {
    const LRESULT result = List(LB_SETCURSEL, static_cast<WPARAM>(index));
    if (index == -1 || result != LB_ERR) ShowSelectedText();
    return result;
}

std::optional<LRESULT> ComboBox::ListMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    for (const ListTwin& twin : kTwins)
        if (twin.combo == message) return List(twin.list, wParam, lParam);
    switch (message) {
        case CB_SETCURSEL: return Select(static_cast<int>(wParam));
        case CB_DELETESTRING: {
            const bool shown = List(LB_GETCURSEL) == static_cast<int>(wParam);
            const LRESULT left = List(LB_DELETESTRING, wParam);
            if (shown && left != LB_ERR && !edit_) Redraw();
            return left;
        }
        case CB_SHOWDROPDOWN:
            if (wParam)
                Open();
            else
                Close(false);
            return TRUE;
        case CB_GETDROPPEDSTATE: return Dropped();
        case ListBox::kPicked:
            Select(static_cast<int>(List(LB_GETCURSEL)));
            Close(true);
            Notify(CBN_SELCHANGE);
            return 0;
        default: return std::nullopt;
    }
}

// The window's text is that of the edit or of the selected item, which can't be set.
std::optional<LRESULT> ComboBox::TextMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETTEXT: return edit_ ? SetEditText(lParam) : CB_ERR;
        case WM_GETTEXT: {
            if (edit_) return SendMessageA(edit_, message, wParam, lParam);
            if (wParam == 0 || !lParam) return 0;
            const std::string text = SelectedText();
            const size_t length = std::min<size_t>(text.size(), wParam - 1);
            std::copy_n(text.data(), length, reinterpret_cast<char*>(lParam));
            reinterpret_cast<char*>(lParam)[length] = 0;
            return static_cast<LRESULT>(length);
        }
        case WM_GETTEXTLENGTH:
            return edit_ ? SendMessageA(edit_, message, 0, 0) : static_cast<LRESULT>(SelectedText().size());
        case WM_COMMAND:
            if (reinterpret_cast<HWND>(lParam) == edit_ && edit_) EditNotification(HIWORD(wParam));
            return 0;
        default: return std::nullopt;
    }
}

void ComboBox::EditNotification(int code) {
    switch (code) {
        case EN_CHANGE:
            if (setting_text_) break;
            // A typed text is no selected item any more; an open list shows what it may become.
            List(LB_SETCURSEL, static_cast<WPARAM>(Dropped() ? FindTyped() : -1));
            Notify(CBN_EDITCHANGE);
            break;
        case EN_UPDATE:
            if (!setting_text_) Notify(CBN_EDITUPDATE);
            break;
        case EN_SETFOCUS: Notify(CBN_SETFOCUS); break;
        case EN_KILLFOCUS:
            Close(false);
            Notify(CBN_KILLFOCUS);
            break;
        default: break;
    }
}

// The item that begins with the text of the edit.
int ComboBox::FindTyped() const {
    const std::string text = TextOfEdit();
    return static_cast<int>(
        List(LB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str())));
}

std::string ComboBox::TextOfEdit() const {
    std::string text(static_cast<size_t>(GetWindowTextLengthA(edit_)) + 1, '\0');
    text.resize(static_cast<size_t>(GetWindowTextA(edit_, text.data(), static_cast<int>(text.size()))));
    return text;
}

void ComboBox::Paint() {
    const PaintContext context(Window(), font_);
    const HDC dc = context.Get();
    if (!dc) return;
    const HBRUSH background = BackgroundBrush(Enabled() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC, dc);
    RECT client = ClientArea();
    FillRect(dc, &client, background);
    DrawEdge(dc, &client, EDGE_SUNKEN, BF_RECT);
    RECT button = ButtonRect();
    FillRect(dc, &button, GetSysColorBrush(COLOR_BTNFACE));
    DrawEdge(dc, &button, Dropped() ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
    const LONG x = (button.left + button.right) / 2;
    const LONG y = (button.top + button.bottom) / 2 + 2;
    for (LONG i = 0; i < 4; ++i) {
        MoveToEx(dc, x - i, y - i, nullptr);
        LineTo(dc, x + i + 1, y - i);
    }
    if (!edit_) {
        RECT field = {kEdge + 1, kEdge + 1, button.left - 1, client.bottom - kEdge - 1};
        const bool marked = Focused() && !Dropped();
        if (marked) FillRect(dc, &field, GetSysColorBrush(COLOR_HIGHLIGHT));
        SetBkMode(dc, TRANSPARENT);
        if (marked) SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
        if (!Enabled()) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
        const std::string text = SelectedText();
        RECT inner = field;
        inner.left += 2;
        DrawTextA(dc, text.c_str(), static_cast<int>(text.size()), &inner,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        if (marked) DrawFocusRect(dc, &field);
    }
}

void RegisterComboBoxClass() {
    RegisterControlClass("ComboBox", &ControlProcedure<ComboBox>, CS_DBLCLKS | CS_VREDRAW | CS_HREDRAW);
}
