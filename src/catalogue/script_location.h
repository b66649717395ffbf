#pragma once

#include <afx.h>

#include "shell/host_interface.h"
#include "support/path_limit.h"

// Where the scripts of a project lie. The host names the folders, each time anew: nothing is kept here.
//
// A path has at most 259 bytes; one that would be longer is refused, never cut into another one. A script's
// name is a bare file name: without folder, drive and wildcards. Any other name is found nowhere.

enum ScriptLocation {
    ScriptNotFound = 0,     // in neither folder, or no host, or no such name
    ScriptInTemplates = 1,  // only in the template folder: the project uses the template's own file
    ScriptInProject = 2,    // the project has its own copy, which may hold customized values
};

using PathBuffer = char[kPathSize];

bool IsBareName(const char* name);

// Behind the last backslash, or all of it.
const char* ShortName(const char* path);

// `folder`, a backslash and `name`. False, with an empty path, when that is too long or the folder is empty.
bool JoinPath(PathBuffer& path, const char* folder, const char* name);

// What the host tells; false, with an empty path, when it tells nothing. `host` may be null.
bool GetMainScriptPath(TarnInterface* host, PathBuffer& path);
bool GetProjectFolderPath(TarnInterface* host, PathBuffer& path);
bool GetTemplateFolderPath(TarnInterface* host, PathBuffer& path);

// The path of a script in the project or in the template folder, whether a file is there or not. False for no
// bare name, too.
bool GetProjectPath(TarnInterface* host, const char* name, PathBuffer& path);
bool GetTemplatePath(TarnInterface* host, const char* name, PathBuffer& path);

// Looks into the project folder first; `path` is that of the file found.
ScriptLocation FindScript(TarnInterface* host, const char* name, PathBuffer& path);

// The same by the host that the library was given.
ScriptLocation LocateScript(const char* name);
// Replaces a name that is found by the full path.
ScriptLocation ResolveScript(CString& name);

// True when the folder part of `path`, ignoring case, is what `folder` begins with: parent folders count too,
// folders below do not. False for a path without a backslash.
bool IsInFolder(const char* folder, const char* path);
