// The message box: a dialog that measures its text and buttons when it is made.

#include <message_box_answers.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <vector>

#include "message_box_icon.h"
#include "template_builder.h"

namespace {

constexpr int kTextId = 0xFFFF;
constexpr int kMarginX = 12;
constexpr int kMarginY = 8;
constexpr int kButtonGap = 18;
constexpr int kShortestButton = 52;

struct BoxButton {
    int id;
    const char* label;
};

constexpr BoxButton kOk = {IDOK, "OK"};
constexpr BoxButton kCancel = {IDCANCEL, "Cancel"};
constexpr BoxButton kAbort = {IDABORT, "&Abort"};
constexpr BoxButton kRetry = {IDRETRY, "&Retry"};
constexpr BoxButton kIgnore = {IDIGNORE, "&Ignore"};
constexpr BoxButton kYes = {IDYES, "&Yes"};
constexpr BoxButton kNo = {IDNO, "&No"};

struct Box {
    const char* text;
    std::vector<BoxButton> buttons;
    size_t default_button;
    UINT icon;
};

std::atomic<MessageBoxAnswer> message_box_answer;

std::vector<BoxButton> ButtonsOf(UINT type) {
    switch (type & MB_TYPEMASK) {
        case MB_OKCANCEL: return {kOk, kCancel};
        case MB_ABORTRETRYIGNORE: return {kAbort, kRetry, kIgnore};
        case MB_YESNOCANCEL: return {kYes, kNo, kCancel};
        case MB_YESNO: return {kYes, kNo};
        case MB_RETRYCANCEL: return {kRetry, kCancel};
        default: return {kOk};
    }
}

Box BoxOf(const char* text, UINT type) {
    Box box = {text, ButtonsOf(type), (type & MB_DEFMASK) / MB_DEFBUTTON2, type & MB_ICONMASK};
    if (box.default_button >= box.buttons.size()) box.default_button = 0;
    return box;
}

// The sizes of a box's parts in the font of its dialog.
struct Measures {
    SIZE text;
    SIZE button;
};

Measures Measure(HWND dialog, const Box& box) {
    const HDC dc = GetDC(dialog);
    const HGDIOBJ former = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
    RECT text = {0, 0, GetSystemMetrics(SM_CXSCREEN) / 4, 0};
    DrawTextA(dc, box.text, -1, &text, DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    SIZE button = {kShortestButton, 2 * metrics.tmHeight};
    for (const BoxButton& each : box.buttons) {
        RECT label = {};
        DrawTextA(dc, each.label, -1, &label, DT_CALCRECT | DT_SINGLELINE);
        button.cx = std::max(button.cx, label.right + 2 * metrics.tmHeight);
    }
    SelectObject(dc, former);
    ReleaseDC(dialog, dc);
    return {{text.right, *box.text ? text.bottom : 0}, button};
}

void Place(HWND control, int x, int y, int width, int height) {
    SetWindowPos(control, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Sizes the dialog around a client area and puts it into the middle of the screen.
void PlaceInMiddle(HWND dialog, int width, int height) {
    RECT frame = {0, 0, width, height};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongA(dialog, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongA(dialog, GWL_EXSTYLE)));
    const int whole_width = frame.right - frame.left;
    const int whole_height = frame.bottom - frame.top;
    Place(dialog, (GetSystemMetrics(SM_CXSCREEN) - whole_width) / 2,
          (GetSystemMetrics(SM_CYSCREEN) - whole_height) / 2, whole_width, whole_height);
}

void Arrange(HWND dialog, const Box& box) {
    const Measures size = Measure(dialog, box);
    const int count = static_cast<int>(box.buttons.size());
    const int buttons_width = count * size.button.cx + (count - 1) * kButtonGap;
    const int text_left = box.icon ? kMarginX + kMessageBoxIconSize + kMarginX : kMarginX;
    const int width = std::max<int>(text_left + size.text.cx, kMarginX + buttons_width + kMarginX) + kMarginX;
    const int height = std::max<int>(size.text.cy, box.icon ? kMessageBoxIconSize : 0);
    Place(GetDlgItem(dialog, kTextId), text_left, kMarginY + (height - size.text.cy) / 2,
          width - kMarginX - text_left, size.text.cy);
    const int button_top = kMarginY + height + kMarginY;
    int x = (width - buttons_width) / 2;
    for (const BoxButton& button : box.buttons) {
        Place(GetDlgItem(dialog, button.id), x, button_top, size.button.cx, size.button.cy);
        x += size.button.cx + kButtonGap;
    }
    PlaceInMiddle(dialog, width, button_top + size.button.cy + kMarginY);
}

void PaintIcon(HWND dialog, UINT icon) {
    PAINTSTRUCT paint = {};
    const HDC dc = BeginPaint(dialog, &paint);
    DrawMessageBoxIcon(dc, icon, kMarginX, kMarginY);
    EndPaint(dialog, &paint);
}

INT_PTR CALLBACK BoxProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: {
            const Box& box = *reinterpret_cast<const Box*>(lParam);
            SetWindowLongPtrA(dialog, DWLP_USER, static_cast<LONG_PTR>(box.icon));
            Arrange(dialog, box);
            SetFocus(GetDlgItem(dialog, box.buttons[box.default_button].id));
            return FALSE;
        }
        case WM_PAINT: {
            const auto icon = static_cast<UINT>(GetWindowLongPtrA(dialog, DWLP_USER));
            if (icon) PaintIcon(dialog, icon);
            return icon != 0;
        }
        case WM_COMMAND:
            // Closing the box gives IDCANCEL, whether there is such a button or not.
            if (LOWORD(wParam) >= IDOK && LOWORD(wParam) <= IDNO) EndDialog(dialog, LOWORD(wParam));
            return TRUE;
        default: return FALSE;
    }
}

int ShowBox(HWND owner, const char* caption, const Box& box) {
    TemplateBuilder dialog(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME, caption, 0, 0);
    for (size_t i = 0; i < box.buttons.size(); ++i) {
        const DWORD kind = i == box.default_button ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        const DWORD group = i == 0 ? WS_GROUP : 0;
        dialog.Add("Button", box.buttons[i].label, box.buttons[i].id, kind | group | WS_TABSTOP, {});
    }
    dialog.Add("Static", box.text, kTextId, SS_NOPREFIX | WS_GROUP, {});
    const INT_PTR answer =
        DialogBoxIndirectParamA(nullptr, dialog.Get(), owner, &BoxProcedure, reinterpret_cast<LPARAM>(&box));
    return answer > 0 ? static_cast<int>(answer) : 0;
}

}  // namespace

void SetMessageBoxAnswer(MessageBoxAnswer answer) {
    message_box_answer = answer;
}

int WINAPI MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    if (!text) text = "";
    if (!caption) caption = "Error";
    if (const MessageBoxAnswer answer = message_box_answer) return answer(owner, text, caption, type);
    if (owner && !IsWindow(owner)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return 0;
    }
    return ShowBox(owner, caption, BoxOf(text, type));
}
