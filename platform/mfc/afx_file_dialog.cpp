#include <algorithm>
#include <cstring>

#include "afx_thread.h"
#include "afxdlgs.h"

CFileDialog::CFileDialog(BOOL openFileDialog, LPCSTR defaultExtension, LPCSTR fileName, DWORD flags,
                         LPCSTR filter, CWnd* parent)
    : m_filter(filter ? filter : ""), m_owner(parent) {
    ASSERT(openFileDialog);
    static_cast<void>(openFileDialog);
    std::replace(m_filter.begin(), m_filter.end(), '|', '\0');
    if (fileName) std::strncpy(m_path, fileName, sizeof m_path - 1);
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.lpstrFile = m_path;
    m_ofn.nMaxFile = sizeof m_path;
    m_ofn.lpstrFileTitle = m_title;
    m_ofn.nMaxFileTitle = sizeof m_title;
    m_ofn.lpstrDefExt = defaultExtension;
    m_ofn.Flags = flags | OFN_EXPLORER;
    if (filter) m_ofn.lpstrFilter = m_filter.c_str();
    m_ofn.hInstance = AfxGetResourceHandle();
}

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = m_owner ? m_owner->GetSafeHwnd() : ::GetActiveWindow();
    return ::GetOpenFileNameA(&m_ofn) ? IDOK : IDCANCEL;
}

CString CFileDialog::GetFileName() const {
    const char* const behind = std::strrchr(m_path, '\\');
    return behind ? behind + 1 : m_path;
}
