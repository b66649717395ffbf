// Dialogs from templates.

#include <algorithm>
#include <cstring>
#include <mutex>
#include <unordered_map>

#include "dialog_state.h"
#include "dialog_template.h"
#include "resource_size.h"

namespace {

constexpr char kDialogClassName[] = "#32770";
constexpr int kPointsPerInch = 72;
constexpr size_t kLongestTemplate = 0x10000;

struct States {
    std::mutex mutex;
    std::unordered_map<HWND, std::shared_ptr<DialogState>> by_window;
};

States& TheStates() {
    static States& states = *new States;
    return states;
}

HFONT MakeFont(HWND dialog, const DialogDescription& description) {
    if (description.font_size <= 0) return nullptr;
    LOGFONTA font = {};
    const HDC dc = GetDC(dialog);
    font.lfHeight =
        -(description.font_size * GetDeviceCaps(dc, LOGPIXELSY) + kPointsPerInch / 2) / kPointsPerInch;
    ReleaseDC(dialog, dc);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::strncpy(font.lfFaceName, description.font_name.c_str(), sizeof font.lfFaceName - 1);
    return CreateFontIndirectA(&font);
}

// The average width and the height of the font's characters.
SIZE UnitsOf(HWND window, HFONT font) {
    constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr int kCount = 52;
    const HDC dc = GetDC(window);
    const HGDIOBJ former = SelectObject(dc, font ? font : GetStockObject(SYSTEM_FONT));
    SIZE size = {};
    GetTextExtentPoint32A(dc, kLetters, kCount, &size);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    SelectObject(dc, former);
    ReleaseDC(window, dc);
    return {(size.cx / (kCount / 2) + 1) / 2, metrics.tmHeight};
}

LONG Scale(LONG units, LONG pixels, LONG per) {
    const int64_t scaled = (int64_t{units} * pixels + per / 2) / per;
    return static_cast<LONG>(std::clamp<int64_t>(scaled, -0x8000, 0x7fff));
}

RECT ToPixels(const RECT& units, const SIZE& base) {
    return {Scale(units.left, base.cx, 4), Scale(units.top, base.cy, 8), Scale(units.right, base.cx, 4),
            Scale(units.bottom, base.cy, 8)};
}

// The window's rectangle around a client area of the template's size.
RECT FramedRect(const DialogDescription& description, const SIZE& units, HWND owner) {
    const DLGTEMPLATE& head = description.head;
    const RECT client = ToPixels({head.x, head.y, head.x + head.cx, head.y + head.cy}, units);
    RECT size = {0, 0, Scale(head.cx, units.cx, 4), Scale(head.cy, units.cy, 8)};
    AdjustWindowRectEx(&size, head.style, FALSE, head.dwExtendedStyle);
    if (head.style & WS_VSCROLL) size.right += GetSystemMetrics(SM_CXVSCROLL);
    const LONG width = size.right - size.left;
    const LONG height = size.bottom - size.top;
    // The template's place is that of the client area.
    POINT corner = {client.left + size.left, client.top + size.top};
    if (head.style & DS_CENTER)
        corner = {(GetSystemMetrics(SM_CXSCREEN) - width) / 2, (GetSystemMetrics(SM_CYSCREEN) - height) / 2};
    // Any other dialog lies relative to its owner's client area.
    else if (!(head.style & WS_CHILD) && owner)
        ClientToScreen(owner, &corner);
    return {corner.x, corner.y, corner.x + width, corner.y + height};
}

// A template in memory does not tell its length: there its own texts and counts must be right.
std::span<const unsigned char> BytesOf(LPCDLGTEMPLATE bytes) {
    if (!bytes) return {};
    const size_t known = ResourceSizeAt(bytes);
    return {reinterpret_cast<const unsigned char*>(bytes), known != 0 ? known : kLongestTemplate};
}

LPCSTR ClassOf(const DialogItem& item) {
    return item.class_name.empty() ? MAKEINTATOM(item.class_atom) : item.class_name.c_str();
}

bool CreateItems(HWND dialog, HINSTANCE module, const DialogDescription& description, DialogState& state) {
    for (const DialogItem& item : description.items) {
        const DLGITEMTEMPLATE& at = item.place;
        // Its far corner is not rounded by itself.
        const RECT place = ToPixels({at.x, at.y, at.cx, at.cy}, state.units);
        const HWND control =
            CreateWindowExA(at.dwExtendedStyle | WS_EX_NOPARENTNOTIFY, ClassOf(item), item.text.c_str(),
                            at.style | WS_CHILD, place.left, place.top, place.right, place.bottom, dialog,
                            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(at.id)), module, nullptr);
        if (!control) return false;
        if (state.font) SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(state.font), FALSE);
        if (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) state.default_id = at.id;
    }
    return true;
}

// The first control that wants the focus; the dialog may have set it itself.
void FirstFocus(HWND dialog, LPARAM parameter) {
    HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
    if (!first) first = GetWindow(dialog, GW_CHILD);
    const LRESULT set = SendMessageA(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), parameter);
    if (!set || !IsWindow(dialog)) return;
    if (GetWindowLongA(dialog, GWL_STYLE) & WS_CHILD && GetWindowLongA(dialog, GWL_STYLE) & DS_CONTROL)
        return;
    HWND wanted = GetNextDlgTabItem(dialog, nullptr, FALSE);
    if (!wanted) return;
    const std::shared_ptr<DialogState> state = DialogStateOf(dialog);
    if (IsWindowVisible(dialog))
        SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(wanted), TRUE);
    else if (state)
        state->focus = wanted;
}

}  // namespace

std::shared_ptr<DialogState> DialogStateOf(HWND dialog) {
    States& states = TheStates();
    const std::lock_guard lock(states.mutex);
    const auto found = states.by_window.find(dialog);
    return found == states.by_window.end() ? nullptr : found->second;
}

std::shared_ptr<DialogState> MakeDialogState(HWND dialog) {
    States& states = TheStates();
    const std::lock_guard lock(states.mutex);
    auto& state = states.by_window[dialog];
    if (!state) state = std::make_shared<DialogState>();
    return state;
}

void ForgetDialogState(HWND dialog) {
    States& states = TheStates();
    std::shared_ptr<DialogState> gone;
    const std::lock_guard lock(states.mutex);
    const auto found = states.by_window.find(dialog);
    if (found == states.by_window.end()) return;
    gone = std::move(found->second);
    states.by_window.erase(found);
}

HWND WINAPI CreateDialogIndirectParamA(HINSTANCE module, LPCDLGTEMPLATE bytes, HWND owner, DLGPROC procedure,
                                       LPARAM parameter) {
    const std::optional<DialogDescription> description = ReadDialogTemplate(BytesOf(bytes));
    if (!description) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const DWORD style = description->head.style | DS_3DLOOK;
    DWORD extended = description->head.dwExtendedStyle;
    if (style & DS_MODALFRAME) extended |= WS_EX_DLGMODALFRAME;
    if (style & DS_CONTROL || !(style & WS_CHILD)) extended |= WS_EX_CONTROLPARENT;
    // The units are those of the dialog's own font, which is measured before there is a window.
    const HFONT font = MakeFont(nullptr, *description);
    const SIZE units = UnitsOf(nullptr, font);
    DialogDescription framed = *description;
    framed.head.dwExtendedStyle = extended;
    const RECT rect = FramedRect(framed, units, owner);
    const char* const name =
        description->class_name.empty() ? kDialogClassName : description->class_name.c_str();
    const HWND dialog = CreateWindowExA(
        extended, name, description->caption.c_str(), style & ~static_cast<DWORD>(WS_VISIBLE), rect.left,
        rect.top, rect.right - rect.left, rect.bottom - rect.top, owner, nullptr, module, nullptr);
    if (!dialog) {
        if (font) DeleteObject(font);
        return nullptr;
    }
    const std::shared_ptr<DialogState> kept = MakeDialogState(dialog);
    DialogState& state = *kept;
    state.font = font;
    state.units = units;
    SetWindowLongPtrA(dialog, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(procedure));
    if (font && procedure) SendMessageA(dialog, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (!CreateItems(dialog, module, *description, state)) {
        DestroyWindow(dialog);
        return nullptr;
    }
    FirstFocus(dialog, parameter);
    const bool ended = IsWindow(dialog) && DialogStateOf(dialog) && DialogStateOf(dialog)->ended;
    if (IsWindow(dialog) && style & WS_VISIBLE && !ended) ShowWindow(dialog, SW_SHOWNORMAL);
    return IsWindow(dialog) ? dialog : nullptr;
}

BOOL WINAPI MapDialogRect(HWND dialog, LPRECT rect) {
    const std::shared_ptr<DialogState> state = DialogStateOf(dialog);
    if (!state || !rect) return FALSE;
    *rect = ToPixels(*rect, state->units);
    return TRUE;
}
