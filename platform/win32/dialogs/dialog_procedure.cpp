// What dialogs do by themselves.

#include "dialog_class.h"
#include "dialog_state.h"

namespace {

// What a dialog procedure answers by itself, not through DWLP_MSGRESULT.
bool AnswersItself(UINT message) {
    return (message >= WM_CTLCOLOREDIT && message <= WM_CTLCOLORSTATIC) || message == WM_INITDIALOG;
}

void SetDefaultLook(HWND button, bool is_default) {
    const LRESULT code = SendMessageA(button, WM_GETDLGCODE, 0, 0);
    const LRESULT other = is_default ? DLGC_UNDEFPUSHBUTTON : DLGC_DEFPUSHBUTTON;
    if (code & other) SendMessageA(button, BM_SETSTYLE, is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

LRESULT SetDefault(HWND dialog, DialogState& state, int id) {
    if (state.default_id != 0)
        if (const HWND former = GetDlgItem(dialog, state.default_id)) SetDefaultLook(former, false);
    state.default_id = id;
    if (const HWND button = GetDlgItem(dialog, id)) SetDefaultLook(button, true);
    return TRUE;
}

void FocusControl(HWND dialog, HWND control) {
    if (!control) return;
    if (SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) SendMessageA(control, EM_SETSEL, 0, -1);
    SetFocus(control);
    const std::shared_ptr<DialogState> state = DialogStateOf(dialog);
    if (!state) return;
    // The button with the focus is the one that Return means, as long as it has it.
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (child != control && SendMessageA(child, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON)
            SetDefaultLook(child, false);
    const bool push =
        (SendMessageA(control, WM_GETDLGCODE, 0, 0) & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
    const HWND button = push ? control : GetDlgItem(dialog, state->default_id);
    if (button) SetDefaultLook(button, true);
}

LRESULT NextControl(HWND dialog, WPARAM wParam, bool is_handle) {
    FocusControl(dialog, is_handle ? reinterpret_cast<HWND>(wParam)
                                   : GetNextDlgTabItem(dialog, GetFocus(), wParam != 0));
    return 0;
}

void Activated(HWND dialog, DialogState& state, bool active) {
    if (!active) {
        const HWND focus = GetFocus();
        if (focus && IsChild(dialog, focus)) state.focus = focus;
        return;
    }
    if (state.focus && IsWindow(state.focus))
        FocusControl(dialog, state.focus);
    else if (const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE))
        FocusControl(dialog, first);
    else
        SetFocus(dialog);
}

LRESULT Erase(HWND dialog, HDC dc) {
    auto brush = reinterpret_cast<HBRUSH>(
        SendMessageA(dialog, WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(dialog)));
    if (!brush) brush = GetSysColorBrush(COLOR_BTNFACE);
    RECT client = {};
    GetClientRect(dialog, &client);
    FillRect(dc, &client, brush);
    return 1;
}

LRESULT DialogDefault(HWND dialog, DialogState& state, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: return Erase(dialog, reinterpret_cast<HDC>(wParam));
        case WM_GETFONT: return reinterpret_cast<LRESULT>(state.font);
        case DM_GETDEFID:
            if (state.default_id == 0) return 0;
            return static_cast<LRESULT>(MAKELONG(state.default_id, DC_HASDEFID));
        case DM_SETDEFID: return SetDefault(dialog, state, static_cast<int>(wParam));
        case WM_NEXTDLGCTL: return NextControl(dialog, wParam, LOWORD(lParam) != 0);
        case WM_ACTIVATE: Activated(dialog, state, LOWORD(wParam) != WA_INACTIVE); return 0;
        case WM_SETFOCUS: Activated(dialog, state, true); return 0;
        case WM_CLOSE: {
            const HWND cancel = GetDlgItem(dialog, IDCANCEL);
            if (!cancel || IsWindowEnabled(cancel))
                PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                             reinterpret_cast<LPARAM>(cancel));
            return 0;
        }
        case WM_SHOWWINDOW:
            if (!wParam) Activated(dialog, state, false);
            return DefWindowProcA(dialog, message, wParam, lParam);
        default: return DefWindowProcA(dialog, message, wParam, lParam);
    }
}

}  // namespace

LRESULT WINAPI DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    const std::shared_ptr<DialogState> kept = MakeDialogState(dialog);
    DialogState& state = *kept;
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrA(dialog, DWLP_DLGPROC));
    if (procedure) {
        SetWindowLongPtrA(dialog, DWLP_MSGRESULT, 0);
        const INT_PTR answer = procedure(dialog, message, wParam, lParam);
        if (answer != 0 || (message == WM_INITDIALOG)) {
            if (AnswersItself(message)) return answer;
            if (message != WM_NCDESTROY && IsWindow(dialog)) return GetWindowLongPtrA(dialog, DWLP_MSGRESULT);
        }
    }
    if (message == WM_NCDESTROY) {
        ForgetDialogState(dialog);
        return DefWindowProcA(dialog, message, wParam, lParam);
    }
    if (!IsWindow(dialog)) return 0;
    return DialogDefault(dialog, state, message, wParam, lParam);
}

void RegisterDialogClass() {
    WNDCLASSA record = {};
    record.style = CS_DBLCLKS;
    record.lpfnWndProc = &DefDlgProcA;
    record.cbWndExtra = DLGWINDOWEXTRA;
    record.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    record.lpszClassName = "#32770";
    RegisterClassA(&record);
}

BOOL WINAPI EndDialog(HWND dialog, INT_PTR result) {
    const std::shared_ptr<DialogState> state = DialogStateOf(dialog);
    if (!state) return FALSE;
    state->ended = true;
    state->result = result;
    const HWND owner = GetWindow(dialog, GW_OWNER);
    if (state->modal && owner) EnableWindow(owner, TRUE);
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    if (owner && GetActiveWindow() == dialog) SetActiveWindow(owner);
    PostMessageA(dialog, WM_NULL, 0, 0);
    return TRUE;
}

INT_PTR WINAPI DialogBoxIndirectParamA(HINSTANCE module, LPCDLGTEMPLATE bytes, HWND owner, DLGPROC procedure,
                                       LPARAM parameter) {
    if (owner && !IsWindow(owner)) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return -1;
    }
    const HWND top = owner ? GetAncestor(owner, GA_ROOT) : nullptr;
    const bool disable = top && IsWindowEnabled(top);
    if (disable) EnableWindow(top, FALSE);
    const HWND dialog = CreateDialogIndirectParamA(module, bytes, top, procedure, parameter);
    const std::shared_ptr<DialogState> state = dialog ? DialogStateOf(dialog) : nullptr;
    if (!state) {
        if (disable) EnableWindow(top, TRUE);
        return -1;
    }
    state->modal = disable;
    if (!state->ended && !IsWindowVisible(dialog)) ShowWindow(dialog, SW_SHOWNORMAL);
    INT_PTR result = -1;
    while (IsWindow(dialog) && !state->ended) {
        MSG message = {};
        if (!GetMessageA(&message, nullptr, 0, 0)) {
            // The loop around this one is to end as well.
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (IsDialogMessageA(dialog, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    if (IsWindow(dialog)) result = state->ended ? state->result : -1;
    if (disable) EnableWindow(top, TRUE);
    if (IsWindow(dialog)) DestroyWindow(dialog);
    return result;
}
