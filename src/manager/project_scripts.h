#pragma once

#include <afx.h>

#include <vector>

#include "catalogue/script_location.h"
#include "catalogue/template_catalogue.h"

// What the pages list of a project. It is read from the disk each time, by the host that the library was
// given; without a host there is nothing to list.

// One include of the main script.
struct ProjectScript {
    CString include;        // as the include line has it
    bool inCatalogue;       // numbered copies, for one, are not
    CString catalogueName;  // of the first record of this file
};

// All includes, in the order of the main script. The Add page shows the includes, the Remove, Customize and
// Update pages the names of those that the catalogue knows.
std::vector<ProjectScript> ListProjectScripts(const CTemplateManager& catalogue);

// What stands in front of a name in the list of the Customize page: a blank for the template's own file, "*"
// for a copy in the project, "?" for a file that is not there.
char LocationMark(ScriptLocation location);

// Adds the names of the listed scripts whose records need the file of `name`, compared exactly: one level
// deep, and twice for a record that tells the need twice. The script itself does not count.
void FindDependents(const CTemplateManager& catalogue, const std::vector<ProjectScript>& listed,
                    const CString& name, CStringArray& dependents);
