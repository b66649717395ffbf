// A dialog with every kind of control. Answers the user, and takes a picture for the guide:
//
//   controls_demo [PICTURE.bmp]

#include <afxcmn.h>
#include <afxwin.h>

#include <cstdio>

#include "window_bitmap.h"

namespace {

enum ControlId : int {
    kDialog = 100,
    kName = 101,
    kQuests = 103,
    kJump = 104,
    kPlace = 107,
    kTool = 108,
    kLevel = 109,
    kSpin = 110,
    kTabs = 111,
    kNotes = 112,
};

constexpr const char* kPages[] = {"Notes", "Inventory", "Friends"};
constexpr const char* kTexts[] = {
    "Mira keeps the lamps of the harbour.\r\nShe knows every stair and most of the cats.\r\n\r\nLast seen: "
    "the old "
    "light-house, on a ladder.",
    "Ladder, oil, matches, a brass key.", "Tomas, the cats."};

class ControlsDialog : public CDialog {
public:
    explicit ControlsDialog(const char* picture) : CDialog(kDialog), picture_(picture) {}

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, kQuests, quests_);
        DDX_Control(exchange, kPlace, place_);
        DDX_Control(exchange, kTool, tool_);
        DDX_Control(exchange, kTabs, tabs_);
    }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        for (const char* const quest :
             {"Light the pier", "Find the key", "Ask Tomas", "Oil the gears", "Cross the bay"})
            quests_.AddString(quest);
        quests_.SetCurSel(1);
        for (const char* const place : {"Harbour", "Stairs", "Light-house"})
            place_.AddString(place);
        place_.SetCurSel(0);
        for (const char* const tool : {"matches", "ladder", "brass key"})
            tool_.AddString(tool);
        tool_.SetCurSel(0);
        for (int i = 0; i < 3; ++i)
            tabs_.InsertItem(i, kPages[i]);
        SetDlgItemText(kNotes, kTexts[0]);
        GetDlgItem(kJump)->SendMessage(BM_SETCHECK, BST_CHECKED);
        if (picture_) PostMessage(WM_APP);
        return TRUE;
    }

    // Everything has been painted by the time this posted message comes.
    LRESULT OnTakePicture(WPARAM, LPARAM) {
        RedrawWindow(m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        EndDialog(SaveWindowBitmap(m_hWnd, picture_) ? IDOK : IDABORT);
        return 0;
    }

    void OnPageChanged(NMHDR*, LRESULT* result) {
        SetDlgItemText(kNotes, kTexts[tabs_.GetCurSel()]);
        *result = 0;
    }

    // The number goes with the arrows.
    void OnLevelStep(NMHDR* header, LRESULT* result) {
        const auto& step = *reinterpret_cast<const NMUPDOWN*>(header);
        CString text;
        GetDlgItem(kLevel)->GetWindowText(text);
        CString next;
        next.Format("%d", std::atoi(text) - step.iDelta);
        GetDlgItem(kLevel)->SetWindowText(next);
        *result = 0;
    }

    DECLARE_MESSAGE_MAP()

private:
    const char* picture_;
    CListBox quests_;
    CComboBox place_;
    CComboBox tool_;
    CTabCtrl tabs_;
};

BEGIN_MESSAGE_MAP(ControlsDialog, CDialog)
ON_MESSAGE(WM_APP, &ControlsDialog::OnTakePicture)
ON_NOTIFY(TCN_SELCHANGE, kTabs, &ControlsDialog::OnPageChanged)
ON_NOTIFY(UDN_DELTAPOS, kSpin, &ControlsDialog::OnLevelStep)
END_MESSAGE_MAP()

CWinApp controls_demo;

}  // namespace

int main(int argc, char** argv) {
    const char* const picture = argc > 1 ? argv[1] : nullptr;
    const INT_PTR result = ControlsDialog(picture).DoModal();
    if (picture) std::printf("%s\n", result == IDOK ? picture : "no picture could be taken");
    return result == IDOK || (!picture && result == IDCANCEL) ? 0 : 2;
}
