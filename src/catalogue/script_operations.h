#pragma once

#include <afx.h>

#include "shell/host_interface.h"

// The file work on a project's scripts. Plain functions without a state of their own; where no host is given
// they ask the one that the library was given. Messages that the operations show are told at each.

// ---- Installing. ----

// A numbered template is a file whose name ends in "_" in front of the extension "brl", in any case. It goes
// into a project any number of times: each time as a copy with the first free number behind the underscore,
// in whose text every "%_%" has become that underscore and number.
bool IsNumberedTemplate(const char* path);

enum class InstallResult {
    Installed,
    NothingToAdd,  // the script and what it needs are included already
    NoHost,
    PathTooLong,          // the script's
    NoMainScript,         // the host has none and makes none
    MainScriptNotCopied,  // into the project folder: refused by the user, or the host's copying failed
    TemplateNotCopied,    // the numbered copy could not be made
    MainScriptEmpty,      // or not readable; nothing was added
    MainScriptNotWritten,
};

// Adds include lines for a script, given by its full path, and for what it needs, and tells the host. A main
// script outside of the project folder is copied there first, a numbered template as well; other templates
// stay where they are. What was copied stays when a later step fails. Asks before it overwrites a file with
// the main script.
InstallResult Install(TarnInterface* host, const char* path);
// The same by the library's host; false when a copy failed or was refused or there is no main script.
bool InstallScript(const char* path);

// Copies a file into a folder, a numbered template under its number. `out`, of `outSize` bytes, takes the new
// path and may be `source`. Asks "%s\nFile exist! Overwrite?" where it would overwrite. False when there is
// no such file, the new path would be too long, the user refuses or the host's copying fails; `out` is
// unchanged then.
bool CopyScript(const char* source, char* out, int outSize, const char* folder);

// ---- Versions. ----

// Version and date that a script tells in its comments, from the project's copy if it has one and
// `fromTemplate` is not set, else from the template folder. False, with "-1" in both, when there is no host
// or no readable file.
bool GetScriptInfo(const char* name, CString& ver, CString& date, bool fromTemplate);

// ---- The project's copy and its template. ----

// True when the project had a copy and it was deleted; the include then takes the template's file.
bool DeleteProjectScript(const char* name);

// Brings the template's file into the project, which holds no copy any more. Shows what goes wrong: the copy
// is still there, the template's file is not, or the host's copying failed.
bool RestoreScript(TarnInterface* host, const char* name);

// True when RestoreScript would find the template's file and can read it to its end.
bool CanRestoreScript(TarnInterface* host, const char* name);

enum class TemplateSwap {
    Done,
    NotDeleted,   // the project has no copy, or it can't be read or deleted
    NotRestored,  // shown as by RestoreScript; the project's copy is as it was
    CopyLost,     // not restored, and the old bytes could not be put back either
};

// An update's middle part, DeleteProjectScript and RestoreScript, such that it never costs the project its
// copy: nothing is deleted before the template has been read, and the old copy comes back when the new one
// does not arrive.
TemplateSwap ReplaceByTemplate(TarnInterface* host, const char* name);
