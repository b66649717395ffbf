#pragma once

#include <afx.h>

#include "catalogue/template_catalogue.h"

// The report of the Notes page: the template set, the main script and each of its includes, in order, with
// its state, version and date. "*" stands in front of a script with a copy in the project, "!" in front of
// one that is in neither folder. Lines end in CR LF.
CString NotesReport(const CTemplateManager& catalogue, const CString& mainScript);
