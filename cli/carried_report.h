#pragma once

#include <ostream>
#include <vector>

#include "customize/carry_values.h"
#include "customize/splice.h"

// Tells what became of each value, one line each. `target` has its own values still; `changes` are those that
// it takes.
void ReportCarried(const std::vector<CarriedValue>& carried, const CEntryList& old, const CEntryList& target,
                   const std::vector<NewValue>& changes, std::ostream& out);
