#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

#include "controls/entry_wnd.h"
#include "customize/entry_controls.h"
#include "customize/script_text.h"

// A visible dialog with the controls of a script, and a user for it who works by messages.
class Panel {
public:
    explicit Panel(const std::string& script = {}, TarnInterface* host = nullptr);
    explicit Panel(std::vector<CScriptEntry> entries);
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;
    ~Panel();

    CWnd& Window() { return dialog_; }
    CEntryList& List() { return list_; }
    CEntryWnd& Control(size_t index) { return *list_.entries[index].control; }
    int Width();

    // A control in the panel that is no entry.
    template <typename Kind>
    Kind& Child(Kind& control, unsigned id, RECT place) {
        control.Create(&dialog_, id, &place);
        return control;
    }

private:
    void Open();
    void AddControls(TarnInterface* host);

    CDialog dialog_;
    ScriptText text_;
    CEntryList list_;
};

// Lets everything happen that has been posted.
void Pump();

// The first child of a window with this id; null without one.
CWnd* Child(CWnd& window, int id);
std::string TextOf(CWnd& window);

void Type(CWnd& window, const std::string& text);
void Press(CWnd& window, int key);
void Click(CWnd& window, int x, int y);

// Size of a text in a window's font.
SIZE Measured(CWnd& window, const char* text, int length, LONG weight = FW_NORMAL);
COLORREF Pixel(CWnd& window, int x, int y);
