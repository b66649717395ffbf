// Shows every kind of control, filled from a script, and takes pictures of them.
//
//   gallery SCRIPT PICTURE.bmp [HELP_PICTURE.bmp]

#include <afxcmn.h>
#include <afxwin.h>

#include <cstdio>

#include "controls/entry_classes.h"
#include "controls/entry_wnd.h"
#include "controls/help_dlg.h"
#include "controls/scroll_pane.h"
#include "controls/slider.h"
#include "customize/entry_controls.h"
#include "customize/script_text.h"
#include "customize/tag_parser.h"
#include "resources/resource_ids.h"
#include "window_bitmap.h"

namespace {

constexpr int kMarkerId = 1008;
constexpr UINT kSliderId = 2001;

// The column of controls of one script.
class GalleryPane : public WS_ScrollPane {
public:
    GalleryPane() : WS_ScrollPane(kPanelDialog, nullptr) {}
    ~GalleryPane() override { DestroyEntryControls(list_); }

    bool Load(const char* path) {
        if (!text_.Load(path)) return false;
        CLex lex(text_.Data(), text_.Size());
        ScriptHeader header;
        ParseScriptTags(header, list_, lex);
        list_.parent = this;
        for (size_t i = 0; i < list_.entries.size(); ++i)
            CreateEntryControl(list_, i, nullptr);
        AddSliders();
        SetContentSize(0, list_.y);
        return true;
    }

    size_t Count() const { return list_.entries.size(); }

protected:
    afx_msg void OnSize(UINT type, int width, int height) {
        for (const CScriptEntry& entry : list_.entries)
            if (entry.control) entry.control->Refit();
        WS_ScrollPane::OnSize(type, width, height);
    }
    DECLARE_MESSAGE_MAP()

private:
    void AddSliders() {
        constexpr DWORD kLooks[] = {0, WS_SliderV::kTicks, WS_SliderV::kSunkenBox, WS_SliderV::kTwoThumbs};
        for (size_t i = 0; i < std::size(kLooks); ++i) {
            const RECT place = {4, list_.y, 204, list_.y + 24};
            sliders_[i].Create(this, kSliderId + static_cast<unsigned>(i), &place);
            sliders_[i].SetLook(kLooks[i]);
            sliders_[i].SetPosition(static_cast<int>(20 + 25 * i));
            list_.y += 28;
        }
    }

    ScriptText text_;
    CEntryList list_;
    WS_SliderV sliders_[4];
};

BEGIN_MESSAGE_MAP(GalleryPane, WS_ScrollPane)
ON_WM_SIZE()
END_MESSAGE_MAP()

class GalleryFrame : public CDialog {
public:
    explicit GalleryFrame(const char* script) : script_(script) {}

    bool Open() {
        if (!Create(kViewerFrameDialog)) return false;
        SetWindowText(script_);
        RegisterEntryClasses();
        RECT place = {};
        GetDlgItem(kMarkerId)->GetWindowRect(&place);
        ScreenToClient(&place);
        if (!pane_.Create(kPanelDialog, this)) return false;
        if (!pane_.Load(script_)) return false;
        pane_.MoveWindow(&place);
        pane_.ShowWindow(SW_SHOW);
        ShowWindow(SW_SHOW);
        return true;
    }

    GalleryPane& Pane() { return pane_; }

private:
    const char* script_;
    GalleryPane pane_;
};

void PumpAll() {
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

// Takes the picture of the Help dialog from inside, and closes it.
class PictureOfHelp : public CHelpDlg {
public:
    PictureOfHelp(const char* text, const char* file) : file_(file) { helpText = text; }

protected:
    BOOL OnInitDialog() override {
        CHelpDlg::OnInitDialog();
        ShowWindow(SW_SHOW);
        RedrawWindow(m_hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        SaveWindowBitmap(m_hWnd, file_);
        EndDialog(IDOK);
        return TRUE;
    }

private:
    const char* file_;
};

CWinApp gallery;

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: gallery SCRIPT PICTURE.bmp [HELP_PICTURE.bmp]\n", stderr);
        return 1;
    }
    GalleryFrame frame(argv[1]);
    if (!frame.Open()) {
        std::fprintf(stderr, "gallery: %s can't be shown\n", argv[1]);
        return 2;
    }
    PumpAll();
    if (!SaveWindowBitmap(frame.m_hWnd, argv[2])) {
        std::fprintf(stderr, "gallery: %s can't be written\n", argv[2]);
        return 2;
    }
    std::printf("%zu controls of %s, in %s\n", frame.Pane().Count(), argv[1], argv[2]);
    if (argc > 3) {
        PictureOfHelp("How fast the hero walks.\r\n\r\nQuants per tick; 5 suits a castle.", argv[3])
            .DoModal();
        std::printf("the Help dialog, in %s\n", argv[3]);
    }
    return 0;
}
