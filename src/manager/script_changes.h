#pragma once

#include <afxwin.h>

#include "manager/project_scripts.h"

// What the buttons of the Remove and Customize pages do, with their questions and messages. `owner` is the
// page, or null.

enum class RemoveResult {
    Removed,
    Needed,       // by other scripts of the project, which were named to the user
    NotIncluded,  // or the main script can't be read
    NotWritten,   // the main script is as it was
};

// Takes a script of the catalogue out of the main script. Its file stays, and so do the scripts that came
// with it.
RemoveResult RemoveFromProject(const CTemplateManager& catalogue, const std::vector<ProjectScript>& listed,
                               const CString& name, HWND owner);

enum class ResetResult {
    Done,
    Declined,
    NoCopy,      // the project uses the template's file as it is
    NotFound,    // there is no file of this name
    NotDeleted,  // the copy
};

// Deletes the project's copy of a script, given by its file name, so that the template's file counts again.
// Asks first, and shows everything but success.
ResetResult ResetToTemplate(const CString& file, HWND owner);
