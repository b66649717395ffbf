#pragma once

#include <afxwin.h>

// Shows the help text of an entry in a small dialog that can be resized. It opens where the last one was
// left, for as long as the library stays loaded.
class CHelpDlg : public CDialog {
public:
    explicit CHelpDlg(CWnd* parent = nullptr);

    // What is shown; it must outlive the dialog. Null shows an empty field.
    const char* helpText = nullptr;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnMove(int x, int y);
    DECLARE_MESSAGE_MAP()

private:
    void ReadLayout();
    void RememberPlace();

    CEdit edit_;
    // While the first is clear and the second set, sizes and places are the user's, and remembered.
    int initialising = 0;
    int ready = 0;
    int edit_left_ = 0;
    int edit_top_ = 0;
    int edit_right_gap_ = 0;
    int edit_bottom_gap_ = 0;
    int ok_bottom_gap_ = 0;
    int ok_width_ = 0;
};

// Runs the dialog; it has no parent.
void ShowHelp(const char* text);
