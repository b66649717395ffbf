#include "controls/entry_choose_file.h"

#include <afxdlgs.h>
#include <direct.h>

#include <string_view>

namespace {

constexpr UINT kEditId = 1011;
constexpr UINT kButtonId = 1012;
constexpr int kGap = 4;

constexpr char kPictureFilter[] =
    "Picture Files (*.bmp, *.pcx, *.tga)|*.bmp;*.pcx;*.tga|All Files (*.*)|*.*||";
constexpr char kSoundFilter[] = "Sound Files (*.wav)|*.wav|All Files (*.*)|*.*||";
constexpr char kAnyFilter[] = "All Files (*.*)|*.*||";

}  // namespace

const char* FileFilterFor(const CString& value) {
    const std::string_view text(static_cast<const char*>(value), static_cast<size_t>(value.GetLength()));
    const size_t point = text.rfind('.');
    if (point == std::string_view::npos) return kAnyFilter;
    const char* const extension = static_cast<const char*>(value) + point + 1;
    for (const char* const picture : {"bmp", "pcx", "tga"})
        if (_stricmp(extension, picture) == 0) return kPictureFilter;
    return _stricmp(extension, "wav") == 0 ? kSoundFilter : kAnyFilter;
}

BEGIN_MESSAGE_MAP(CEntryChooseFile, CEntryWnd)
ON_WM_PAINT()
ON_BN_CLICKED(kButtonId, &CEntryChooseFile::OnChooseFile)
END_MESSAGE_MAP()

void CEntryChooseFile::CreateParts() {
    const SIZE sample = MeasureText(kSampleMixed, kSampleMixedWhole);
    const LONG top = sample.cy + 1;
    const LONG row = sample.cy + kGap;
    const LONG edit_width = 2 * sample.cx;
    height_ = top + row + kGap;
    CreateEdit(edit_, WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, {0, top, edit_width, top + row},
               kEditId);
    const LONG left = edit_width + 1;
    const RECT button = {left, top, left + static_cast<LONG>(sample.cx * 0.75), top + row};
    button_.Create("...", WS_CHILD | WS_VISIBLE, button, this, kButtonId);
}

void CEntryChooseFile::SetValue(const char* text) {
    value_.SetValue(text);
    ShowText();
}

const char* CEntryChooseFile::GetValue() {
    ReadEdit();
    return value_.GetValue();
}

void CEntryChooseFile::DisplayValue(const char* text) {
    value_.DisplayValue(text);
    ShowText();
}

BOOL CEntryChooseFile::OwnsWindow(CWnd* window) {
    return window == this || window == &edit_ || window == &button_;
}

BOOL CEntryChooseFile::IsChanged() {
    ReadEdit();
    return value_.IsChanged();
}

void CEntryChooseFile::ReadEdit() {
    if (edit_.m_hWnd) value_.Show(edit_.Text());
}

void CEntryChooseFile::ShowText() {
    if (edit_.m_hWnd) edit_.SetWindowText(value_.Shown());
}

void CEntryChooseFile::OnChooseFile() {
    const CString present = edit_.Text();
    char folder[MAX_PATH] = {};
    const bool has_folder = _getcwd(folder, MAX_PATH) != nullptr;
    CFileDialog dialog(TRUE, "", nullptr, OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, FileFilterFor(present));
    if (has_folder) dialog.m_ofn.lpstrInitialDir = folder;
    dialog.m_ofn.Flags |= OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR;
    if (dialog.DoModal() == IDOK) edit_.SetWindowText(dialog.GetFileName());
}
