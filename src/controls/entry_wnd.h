#pragma once

#include <afxwin.h>

// Base of the controls on a panel: one child window per entry of a script.
//
// A panel makes a control, calls Create, then SetValue, and stacks it by GetHeight. Label and help are not
// copied: the entry that owns them must outlive the control. The window is destroyed by the panel before the
// object. Everything happens on the panel's thread.
class CEntryWnd : public CWnd {
public:
    CEntryWnd() = default;

    // Makes the window at `rect` in the client area of `parent`, measures it and gives it its own height and
    // the parent's width. 0 when there could be no window.
    BOOL Create(CWnd* parent, unsigned id, const RECT* rect, const char* label, const char* help);

    int GetHeight() const { return height_; }

    // Follows a change of the parent's width.
    void Refit();

    // Registers the class of the window; always 1. Throws CResourceException when it is refused.
    virtual BOOL RegisterWndClass();

    // Takes the text as the loaded value, the baseline of IsChanged, and shows it.
    virtual void SetValue(const char* text);
    // The value text to write into the script, null when the control has no value. What is shown becomes the
    // baseline. The text belongs to the control and lives until the next call.
    virtual const char* GetValue() { return nullptr; }
    // Shows the text and leaves the baseline.
    virtual void DisplayValue(const char* text);
    // True for the control and its child windows.
    virtual BOOL OwnsWindow(CWnd* window);
    virtual BOOL IsChanged() { return FALSE; }
    // Minimum, maximum and step of a number. Mode and items are for controls that come to need them.
    virtual void SetLimits(int mode, const double* limits, const CStringArray& items);

protected:
    // Measures the control, sets height_ and makes the child windows.
    virtual void CreateParts() = 0;
    virtual void FitWidth();
    // Makes font_ out of the parent's font; without one it stays empty.
    virtual void MakeFont();
    virtual const char* GetWndClassName();

    // MakeFont with another weight.
    void MakeFontOfWeight(LONG weight);
    // Size of the first `length` bytes of a text in the control's font.
    SIZE MeasureText(const char* text, int length);
    // Size of the label, or of the sample where there is none.
    SIZE MeasureLabel(const char* sample, int sample_length);
    // Draws the label at the top left.
    void PaintLabel(CDC& dc);
    // Draws the label and nothing else. It is in no map here: a class with a label adds ON_WM_PAINT.
    afx_msg void OnPaint();
    int ParentWidth();
    // Makes a child "EDIT" with a sunken edge and the control's font.
    BOOL CreateEdit(CEdit& edit, DWORD style, const RECT& place, UINT id);
    void GiveFont(CWnd& child);

    CFont font_;
    int x_ = 0;
    int y_ = 0;
    int width_ = 0;
    int height_ = 0;
    const char* label_ = nullptr;
    const char* help_ = nullptr;

    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    bool ParentFont(LOGFONTA& font);
};

// Registers a window class for entry controls under `name`, unless this module has it already; always 1.
// Throws CResourceException when it is refused.
BOOL RegisterEntryClass(const char* name);

// The texts by which controls are measured where there is no label, in Windows-1252.
inline constexpr char kSampleShort[] = "Abcd";
inline constexpr int kSampleShortLength = 4;
inline constexpr char kSampleMixed[] = "Ag01\xDCqQT";
inline constexpr int kSampleMixedLength = 7;
inline constexpr int kSampleMixedWhole = 8;
inline constexpr char kSampleWide[] = "Q\xDCGGGGGGG";
inline constexpr int kSampleWideLength = 8;

// Pixels beyond which no label and no size of a tag makes a window wider or higher.
inline constexpr int kLongestSide = 0x7fff;
