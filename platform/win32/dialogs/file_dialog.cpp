// The dialog that asks for a file.

#include <commdlg.h>
#include <direct.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "file_dialog_paths.h"
#include "template_builder.h"

namespace {

constexpr int kWidth = 280;
constexpr int kHeight = 170;
constexpr int kFolderId = 0x0471;
constexpr int kLabelId = 0xFFFF;

thread_local DWORD dialog_error = 0;

class FileDialog {
public:
    explicit FileDialog(OPENFILENAMEA& record)
        : record_(record), filters_(ReadFileFilters(record.lpstrFilter)) {
        if (record.Flags & OFN_FILEMUSTEXIST) record.Flags |= OFN_PATHMUSTEXIST;
        if (record.nFilterIndex == 0 || record.nFilterIndex > filters_.size()) record.nFilterIndex = 1;
        patterns_ = filters_.empty() ? SplitPatterns("*") : filters_[record.nFilterIndex - 1].patterns;
        folder_ = FirstFolder();
    }

    bool Run();

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::string FirstFolder() const;
    void Begin();
    void Fill();
    void Enter(const std::string& folder);
    bool Command(int id, int code);
    bool ListHasFocus() const { return GetFocus() == GetDlgItem(window_, lst1); }
    // The folder that is selected in the list; empty for a file.
    std::string SelectedFolder() const;
    void SelectionChanged();
    void FilterChanged();
    void Accept();
    void AcceptPath(const std::string& path);
    void Complain(const char* text, const char* caption);
    bool Store(const std::string& path);
    std::string Typed() const;

    OPENFILENAMEA& record_;
    std::vector<FileFilter> filters_;
    std::vector<std::string> patterns_;
    std::string folder_;
    FolderContent content_;
    HWND window_ = nullptr;
};

std::string CurrentFolder() {
    char folder[MAX_PATH] = {};
    return _getcwd(folder, sizeof folder) ? folder : "C:\\";
}

// The name that the record brings along wins over its folder, when it has one of its own.
std::string FileDialog::FirstFolder() const {
    std::string current = CurrentFolder();
    if (std::strchr(record_.lpstrFile, '\\')) {
        std::string folder = FolderPart(ResolveName(current, record_.lpstrFile));
        if (IsFolder(folder)) return folder;
    }
    if (record_.lpstrInitialDir && *record_.lpstrInitialDir) {
        std::string folder = ResolveName(current, record_.lpstrInitialDir);
        if (IsFolder(folder)) return folder;
    }
    return current;
}

bool FileDialog::Run() {
    TemplateBuilder dialog(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME,
                           record_.lpstrTitle ? record_.lpstrTitle : "Open", kWidth, kHeight);
    dialog.Add("Static", "Look &in:", kLabelId, SS_LEFT, {7, 9, 40, 17});
    dialog.Add("Static", "", kFolderId, SS_NOPREFIX, {50, 9, 273, 17});
    dialog.Add("ListBox", "", lst1, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_BORDER | WS_TABSTOP,
               {7, 22, 273, 126});
    dialog.Add("Static", "File &name:", kLabelId, SS_LEFT, {7, 134, 50, 142});
    dialog.Add("Edit", "", cmb13, ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP, {60, 132, 210, 145});
    dialog.Add("Button", "&Open", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, {218, 131, 273, 145});
    dialog.Add("Static", "Files of &type:", kLabelId, SS_LEFT, {7, 152, 57, 160});
    dialog.Add("ComboBox", "", cmb1, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP, {60, 150, 210, 220});
    dialog.Add("Button", "Cancel", IDCANCEL, WS_TABSTOP, {218, 149, 273, 163});
    const INT_PTR answer = DialogBoxIndirectParamA(nullptr, dialog.Get(), record_.hwndOwner, &Procedure,
                                                   reinterpret_cast<LPARAM>(this));
    if (answer < 0) dialog_error = CDERR_DIALOGFAILURE;
    return answer == IDOK;
}

INT_PTR CALLBACK FileDialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        auto& dialog = *reinterpret_cast<FileDialog*>(lParam);
        dialog.window_ = window;
        dialog.Begin();
        return FALSE;
    }
    auto* const dialog = reinterpret_cast<FileDialog*>(GetWindowLongPtrA(window, DWLP_USER));
    if (!dialog || message != WM_COMMAND) return FALSE;
    return dialog->Command(LOWORD(wParam), HIWORD(wParam));
}

void FileDialog::Begin() {
    for (const FileFilter& filter : filters_)
        SendDlgItemMessageA(window_, cmb1, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(filter.label.c_str()));
    if (!filters_.empty()) SendDlgItemMessageA(window_, cmb1, CB_SETCURSEL, record_.nFilterIndex - 1, 0);
    SetDlgItemTextA(window_, cmb13, NamePart(record_.lpstrFile).c_str());
    SendDlgItemMessageA(window_, cmb13, EM_SETSEL, 0, -1);
    Fill();
    SetFocus(GetDlgItem(window_, cmb13));
}

void FileDialog::Fill() {
    content_ = ReadFolder(folder_, patterns_);
    SetDlgItemTextA(window_, kFolderId, folder_.c_str());
    SendDlgItemMessageA(window_, lst1, LB_RESETCONTENT, 0, 0);
    const auto add = [this](const std::string& line) {
        SendDlgItemMessageA(window_, lst1, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    };
    for (const std::string& folder : content_.folders)
        add('[' + folder + ']');
    for (const std::string& file : content_.files)
        add(file);
}

void FileDialog::Enter(const std::string& folder) {
    folder_ = folder;
    SetDlgItemTextA(window_, cmb13, "");
    Fill();
}

bool FileDialog::Command(int id, int code) {
    switch (id) {
        case IDOK: Accept(); return true;
        case IDCANCEL: EndDialog(window_, IDCANCEL); return true;
        case lst1:
            if (code == LBN_SELCHANGE) SelectionChanged();
            if (code == LBN_DBLCLK) Accept();
            return true;
        case cmb1:
            if (code == CBN_SELCHANGE) FilterChanged();
            return true;
        default: return false;
    }
}

std::string FileDialog::SelectedFolder() const {
    const auto selected = static_cast<size_t>(SendDlgItemMessageA(window_, lst1, LB_GETCURSEL, 0, 0));
    return selected < content_.folders.size() ? content_.folders[selected] : std::string();
}

void FileDialog::SelectionChanged() {
    const auto selected = static_cast<size_t>(SendDlgItemMessageA(window_, lst1, LB_GETCURSEL, 0, 0));
    const size_t folders = content_.folders.size();
    if (selected >= folders && selected - folders < content_.files.size())
        SetDlgItemTextA(window_, cmb13, content_.files[selected - folders].c_str());
}

void FileDialog::FilterChanged() {
    const auto selected = static_cast<size_t>(SendDlgItemMessageA(window_, cmb1, CB_GETCURSEL, 0, 0));
    if (selected >= filters_.size()) return;
    record_.nFilterIndex = static_cast<DWORD>(selected) + 1;
    patterns_ = filters_[selected].patterns;
    Fill();
}

std::string FileDialog::Typed() const {
    std::string text(static_cast<size_t>(GetWindowTextLengthA(GetDlgItem(window_, cmb13))) + 1, '\0');
    text.resize(GetDlgItemTextA(window_, cmb13, text.data(), static_cast<int>(text.size())));
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') text = text.substr(1, text.size() - 2);
    return text;
}

void FileDialog::Accept() {
    const std::string selected = ListHasFocus() ? SelectedFolder() : std::string();
    if (!selected.empty()) return Enter(ResolveName(folder_, selected));
    const std::string name = Typed();
    if (name.empty()) return;
    if (HasBadCharacters(name))
        return Complain("A filename cannot contain any of the following characters: \n\t/ : < > |",
                        "Invalid character(s) in path");
    const std::string path = ResolveName(folder_, name);
    if (IsFolder(path)) return Enter(path);
    if (HasWildcards(NamePart(path))) {
        if (!IsFolder(FolderPart(path))) return Complain("Path does not exist", nullptr);
        folder_ = FolderPart(path);
        patterns_ = SplitPatterns(NamePart(path));
        return Fill();
    }
    AcceptPath(path);
}

void FileDialog::AcceptPath(const std::string& path) {
    if (record_.Flags & OFN_PATHMUSTEXIST && !IsFolder(FolderPart(path)))
        return Complain("Path does not exist", nullptr);
    if (record_.Flags & OFN_FILEMUSTEXIST && !Exists(path)) return Complain("File does not exist", nullptr);
    const bool stored = Store(path);
    EndDialog(window_, stored ? IDOK : IDCANCEL);
}

void FileDialog::Complain(const char* text, const char* caption) {
    if (!caption) caption = record_.lpstrTitle ? record_.lpstrTitle : "";
    MessageBoxA(window_, text, caption, MB_OK | MB_ICONEXCLAMATION);
}

// The record takes what was chosen. False when its buffer is too small.
bool FileDialog::Store(const std::string& path) {
    if (path.size() >= record_.nMaxFile) {
        const auto needed = static_cast<WORD>(path.size() + 1);
        if (record_.nMaxFile >= sizeof needed) std::memcpy(record_.lpstrFile, &needed, sizeof needed);
        dialog_error = FNERR_BUFFERTOOSMALL;
        return false;
    }
    std::memcpy(record_.lpstrFile, path.c_str(), path.size() + 1);
    const std::string name = NamePart(path);
    record_.nFileOffset = static_cast<WORD>(path.size() - name.size());
    const size_t dot = name.rfind('.');
    record_.nFileExtension = static_cast<WORD>(dot == std::string::npos ? 0 : record_.nFileOffset + dot + 1);
    if (record_.lpstrFileTitle && name.size() < record_.nMaxFileTitle)
        std::memcpy(record_.lpstrFileTitle, name.c_str(), name.size() + 1);
    if (!(record_.Flags & OFN_NOCHANGEDIR)) _chdir(FolderPart(path).c_str());
    return true;
}

}  // namespace

BOOL WINAPI GetOpenFileNameA(LPOPENFILENAMEA record) {
    dialog_error = 0;
    if (!record || record->lStructSize != sizeof *record) {
        dialog_error = CDERR_STRUCTSIZE;
        return FALSE;
    }
    if (!record->lpstrFile || record->nMaxFile == 0) {
        dialog_error = CDERR_INITIALIZATION;
        return FALSE;
    }
    return FileDialog(*record).Run();
}

DWORD WINAPI CommDlgExtendedError() {
    return dialog_error;
}
