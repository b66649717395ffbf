#include "controls/windows/panel.h"

#include <utility>

#include "controls/entry_classes.h"
#include "customize/tag_parser.h"
#include "resources/resource_ids.h"

namespace {

CWinApp test_app;

}  // namespace

Panel::Panel(const std::string& script, TarnInterface* host) {
    Open();
    if (script.empty()) return;
    text_ = ScriptText::Copy(script.data(), static_cast<long>(script.size()));
    CLex lex(text_.Data(), text_.Size());
    ScriptHeader header;
    ParseScriptTags(header, list_, lex);
    AddControls(host);
}

Panel::Panel(std::vector<CScriptEntry> entries) {
    Open();
    list_.entries = std::move(entries);
    AddControls(nullptr);
}

void Panel::Open() {
    RegisterEntryClasses();
    dialog_.Create(kViewerFrameDialog);
    dialog_.ShowWindow(SW_SHOW);
    list_.parent = &dialog_;
    Pump();
}

void Panel::AddControls(TarnInterface* host) {
    for (size_t i = 0; i < list_.entries.size(); ++i)
        CreateEntryControl(list_, i, host);
    Pump();
}

Panel::~Panel() {
    DestroyEntryControls(list_);
    dialog_.DestroyWindow();
    Pump();
}

int Panel::Width() {
    RECT client = {};
    dialog_.GetClientRect(&client);
    return client.right;
}

void Pump() {
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

CWnd* Child(CWnd& window, int id) {
    for (HWND child = GetWindow(window.m_hWnd, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetDlgCtrlID(child) == id) return CWnd::FromHandle(child);
    return nullptr;
}

std::string TextOf(CWnd& window) {
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

void Type(CWnd& window, const std::string& text) {
    for (const char ch : text)
        window.PostMessage(WM_CHAR, static_cast<unsigned char>(ch), 1);
    Pump();
}

void Press(CWnd& window, int key) {
    window.PostMessage(WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    window.PostMessage(WM_KEYUP, static_cast<WPARAM>(key), 1);
    Pump();
}

void Click(CWnd& window, int x, int y) {
    window.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    window.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Pump();
}

SIZE Measured(CWnd& window, const char* text, int length, LONG weight) {
    LOGFONTA font = {};
    GetObjectA(window.GetFont()->GetSafeHandle(), sizeof font, &font);
    font.lfWeight = weight;
    CFont own;
    own.CreateFontIndirect(&font);
    CClientDC dc(&window);
    const HGDIOBJ former = SelectObject(dc.GetSafeHdc(), own.GetSafeHandle());
    SIZE size = {};
    GetTextExtentPoint32A(dc.GetSafeHdc(), text, length, &size);
    SelectObject(dc.GetSafeHdc(), former);
    return size;
}

COLORREF Pixel(CWnd& window, int x, int y) {
    CClientDC dc(&window);
    return GetPixel(dc.GetSafeHdc(), x, y);
}
