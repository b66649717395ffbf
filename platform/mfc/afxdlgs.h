#pragma once

// The class framework's header of the system's dialogs.

#include <string>

#include "afxwin.h"
// behind the header of windows
#include <commdlg.h>

// Asks for a file to open. `filter` holds pairs of a text and its patterns, each ended by a bar, and one more
// bar at the end.
class CFileDialog : public CDialog {
public:
    explicit CFileDialog(BOOL openFileDialog, LPCSTR defaultExtension = nullptr, LPCSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCSTR filter = nullptr,
                         CWnd* parent = nullptr);

    // IDOK or IDCANCEL.
    INT_PTR DoModal() override;

    // Without its folder.
    CString GetFileName() const;

    OPENFILENAMEA m_ofn = {};

private:
    std::string m_filter;
    CWnd* m_owner;
    char m_path[MAX_PATH] = {};
    char m_title[64] = {};
};
