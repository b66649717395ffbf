#pragma once

#include <functional>
#include <span>
#include <vector>

#include "customize/script_entry.h"
#include "customize/side_file.h"

// One saved value and the record that it goes to: the first with its id.
struct CarriedValue {
    const SavedValue* saved;
    int entry;  // index in the list, -1 when no record has this id
};

// Brings the saved values, in their order, to the records of a script: `take` is called with the index of the
// record and the value text and shows it there without making it the value to compare with. Values beyond
// what a side file can hold in a line come the same way, so that nothing is lost between two versions of a
// script.
std::vector<CarriedValue> CarryValues(const CEntryList& list, std::span<const SavedValue> values,
                                      const std::function<void(size_t entry, const CString& value)>& take);
