#pragma once

#include <afxwin.h>

#include <vector>

#include "catalogue/script_info.h"
#include "manager/project_scripts.h"

// The list of the Update page: scripts with a copy in the project that differs from its template in version
// or date. Nothing is taken for newer or older.

struct UpdateEntry {
    CString include;
    CString name;         // in the catalogue
    bool compared;        // false in a forced list, which reads no file
    ScriptInfo local;     // of the project's copy
    ScriptInfo original;  // of the template; "-1" for a file that is not there
};

// In the order of the main script, of the scripts that the catalogue knows. `force` lists every script with a
// copy. Reads each file once: the copy and the template.
std::vector<UpdateEntry> ListUpdates(const CTemplateManager& catalogue, bool force);

// "NAME--[Local ver: 1 date: 2 --> Template ver: 3 date: 4]", or the name alone in a forced list.
CString UpdateText(const UpdateEntry& entry);

// Asks whether all listed scripts are to be updated. With nothing listed it says so instead, and the answer
// is no.
bool UserWantsAllUpdates(HWND owner, const std::vector<UpdateEntry>& listed);
