#pragma once

#include <afx.h>

#include <vector>

#include "customize/keywords.h"

class CEntryWnd;
class CWnd;

// How a control shapes its values, from a `cntl` tag.
enum LimitsMode : int {
    LimitsNone = -1,
    LimitsSpin = 0,  // minimum, maximum and step
    LimitsDrop = 1,  // a list of items
    LimitsDropPair = 2,
};

// One tag of a script with its value and the place of that value in the script's text. A copy stands for
// itself, but its place goes on pointing into the same text, which must outlive it.
struct CScriptEntry {
    int kind = KindNone;
    CString label;
    CString help;                  // lines joined by CR LF
    int id = -1;                   // from 1 on: the value is kept in the side file under this number
    CEntryWnd* control = nullptr;  // owned by the panel
    int x = 0;                     // top left of the control in the panel
    int y = 0;
    int width = 0;  // columns and rows of an `entry_text`
    int height = 0;
    CString value;                  // without quotes or brackets
    const char* textPos = nullptr;  // first byte of the value in the text; null when it has no place
    int textLen = 0;                // bytes of the value there
    int limitsMode = LimitsNone;
    double minValue = 0.0;
    double maxValue = 0.0;
    double stepValue = 0.0;
    std::vector<CString> items;
};

// Puts every field at its first value.
void ResetEntry(CScriptEntry& entry);

// The entries of one panel in the order of the script, so that `textPos` ascends along the list.
struct CEntryList {
    static constexpr int kFirstY = 4;

    CWnd* parent = nullptr;  // the controls' parent window
    int y = kFirstY;         // where the next control goes
    std::vector<CScriptEntry> entries;
};

// What a script says of itself; -1 until told.
struct ScriptHeader {
    int scriptVersion = -1;
    int scriptDate = -1;
};
