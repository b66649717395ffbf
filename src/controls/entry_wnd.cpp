#include "controls/entry_wnd.h"

#include <cstring>

#include "controls/help_dlg.h"
#include "controls/toolkit_gdi.h"
#include "controls/window_class.h"

namespace {

constexpr char kEntryClass[] = "BV_ENTRY";

// Selects a font for as long as it lives; an empty one leaves the context's own.
class SelectedFont {
public:
    SelectedFont(CDC& dc, CFont& font) : dc_(dc.GetSafeHdc()) {
        if (font.GetSafeHandle()) former_ = SelectObject(dc_, font.GetSafeHandle());
    }
    SelectedFont(const SelectedFont&) = delete;
    SelectedFont& operator=(const SelectedFont&) = delete;
    ~SelectedFont() {
        if (former_) SelectObject(dc_, former_);
    }

private:
    HDC dc_;
    HGDIOBJ former_ = nullptr;
};

}  // namespace

BEGIN_MESSAGE_MAP(CEntryWnd, CWnd)
ON_WM_SIZE()
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

BOOL CEntryWnd::Create(CWnd* parent, unsigned id, const RECT* rect, const char* label, const char* help) {
    if (!CreateEx(0, GetWndClassName(), "", WS_CHILD | WS_VISIBLE, *rect, parent, id)) return FALSE;
    label_ = label;
    help_ = help;
    MakeFont();
    x_ = rect->left;
    y_ = rect->top;
    width_ = rect->right - rect->left;
    height_ = rect->bottom - rect->top;
    CreateParts();
    FitWidth();
    MoveWindow(x_, y_, width_, height_, FALSE);
    return TRUE;
}

void CEntryWnd::Refit() {
    FitWidth();
    SetWindowPos(nullptr, 0, 0, width_, height_, SWP_NOMOVE | SWP_NOZORDER);
}

BOOL CEntryWnd::RegisterWndClass() {
    return RegisterEntryClass(GetWndClassName());
}

void CEntryWnd::SetValue(const char*) {}

void CEntryWnd::DisplayValue(const char*) {}

BOOL CEntryWnd::OwnsWindow(CWnd* window) {
    return window == this;
}

void CEntryWnd::SetLimits(int, const double*, const CStringArray&) {}

void CEntryWnd::FitWidth() {
    width_ = ParentWidth() - 2 * x_;
}

void CEntryWnd::MakeFont() {
    LOGFONTA font = {};
    if (ParentFont(font)) font_.CreateFontIndirect(&font);
}

void CEntryWnd::MakeFontOfWeight(LONG weight) {
    LOGFONTA font = {};
    if (!ParentFont(font)) return;
    font.lfWeight = weight;
    font_.CreateFontIndirect(&font);
}

bool CEntryWnd::ParentFont(LOGFONTA& font) {
    CFont* const parents = GetParent()->GetFont();
    return parents && GetObjectA(parents->GetSafeHandle(), sizeof font, &font) != 0;
}

const char* CEntryWnd::GetWndClassName() {
    return kEntryClass;
}

SIZE CEntryWnd::MeasureText(const char* text, int length) {
    CClientDC dc(this);
    const SelectedFont selected(dc, font_);
    SIZE size = {};
    GetTextExtentPoint32A(dc.GetSafeHdc(), text, length, &size);
    return size;
}

SIZE CEntryWnd::MeasureLabel(const char* sample, int sample_length) {
    return label_ ? MeasureText(label_, static_cast<int>(std::strlen(label_)))
                  : MeasureText(sample, sample_length);
}

void CEntryWnd::PaintLabel(CDC& dc) {
    const SelectedFont selected(dc, font_);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(RGB(0, 0, 0));
    if (label_) TextOutA(dc.GetSafeHdc(), 0, 0, label_, static_cast<int>(std::strlen(label_)));
}

void CEntryWnd::OnPaint() {
    CPaintDC dc(this);
    PaintLabel(dc);
}

int CEntryWnd::ParentWidth() {
    RECT client = {};
    GetParent()->GetClientRect(&client);
    return client.right;
}

BOOL CEntryWnd::CreateEdit(CEdit& edit, DWORD style, const RECT& place, UINT id) {
    const BOOL made =
        edit.CreateEx(WS_EX_CLIENTEDGE | WS_EX_NOPARENTNOTIFY, "EDIT", "", style, place, this, id);
    if (made) GiveFont(edit);
    return made;
}

void CEntryWnd::GiveFont(CWnd& child) {
    child.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font_.GetSafeHandle()), TRUE);
}

void CEntryWnd::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    width_ = width;
    height_ = height;
}

void CEntryWnd::OnRButtonDown(UINT, CPoint) {
    if (help_) ShowHelp(*help_ ? help_ : "No Help Available");
}

BOOL RegisterEntryClass(const char* name) {
    RegisterControlClass(name, &::DefWindowProcA, g_brushFace);
    return TRUE;
}
