#include "controls/help_dlg.h"

#include <mutex>

#include "resources/resource_ids.h"

namespace {

constexpr int kEditId = 1013;
constexpr int kTabStop = 8;  // dialog units
constexpr int kTextEnd = 65535;

// Where the last dialog was left, in screen coordinates. Each viewer's thread may show one; the last wins.
RECT g_helpRect;
std::mutex help_rect_mutex;

RECT LastPlace() {
    const std::lock_guard lock(help_rect_mutex);
    return g_helpRect;
}

}  // namespace

BEGIN_MESSAGE_MAP(CHelpDlg, CDialog)
ON_WM_SIZE()
ON_WM_MOVE()
END_MESSAGE_MAP()

CHelpDlg::CHelpDlg(CWnd* parent) : CDialog(kHelpDialog, parent) {}

void CHelpDlg::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, kEditId, edit_);
}

BOOL CHelpDlg::OnInitDialog() {
    initialising = 1;
    CDialog::OnInitDialog();
    ReadLayout();
    edit_.SendMessage(EM_FMTLINES, TRUE, 0);
    const int stop = kTabStop;
    edit_.SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&stop));
    if (helpText) {
        edit_.SetWindowText(helpText);
        edit_.SendMessage(EM_SETSEL, kTextEnd, kTextEnd);
        edit_.SendMessage(EM_SCROLLCARET, 0, 0);
    }
    const RECT place = LastPlace();
    if (place.left < place.right && place.top < place.bottom) MoveWindow(&place, TRUE);
    ready = 1;
    initialising = 0;
    return TRUE;
}

void CHelpDlg::ReadLayout() {
    RECT client = {};
    GetClientRect(&client);
    RECT edit = {};
    edit_.GetWindowRect(&edit);
    ScreenToClient(&edit);
    edit_left_ = edit.left;
    edit_top_ = edit.top;
    edit_right_gap_ = client.right - edit.right;
    edit_bottom_gap_ = client.bottom - edit.bottom;
    RECT ok = {};
    GetDlgItem(IDOK)->GetWindowRect(&ok);
    ScreenToClient(&ok);
    ok_bottom_gap_ = client.bottom - ok.top;
    ok_width_ = ok.right - ok.left;
}

void CHelpDlg::RememberPlace() {
    if (initialising || !ready) return;
    RECT place = {};
    GetWindowRect(&place);
    const std::lock_guard lock(help_rect_mutex);
    g_helpRect = place;
}

void CHelpDlg::OnSize(UINT type, int width, int height) {
    CDialog::OnSize(type, width, height);
    RememberPlace();
    if (edit_left_ <= 0 || edit_right_gap_ <= 0) return;
    edit_.SetWindowPos(nullptr, 0, 0, width - edit_left_ - edit_right_gap_,
                       height - edit_top_ - edit_bottom_gap_, SWP_NOMOVE | SWP_NOZORDER);
    GetDlgItem(IDOK)->SetWindowPos(nullptr, (width - ok_width_) / 2, height - ok_bottom_gap_, 0, 0,
                                   SWP_NOSIZE | SWP_NOZORDER);
}

void CHelpDlg::OnMove(int x, int y) {
    CDialog::OnMove(x, y);
    RememberPlace();
}

void ShowHelp(const char* text) {
    CHelpDlg dialog;
    dialog.helpText = text;
    dialog.DoModal();
}
