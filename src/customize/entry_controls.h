#pragma once

#include "customize/script_entry.h"
#include "shell/host_interface.h"

// Makes the control of the entry at `index` as a child of the list's parent, at the list's running y, which
// moves on behind it: by the control's height, and by a gap unless the entry is a line of text. The control
// points into the entry, which therefore must not move as long as it lives. The host offers the names of
// entities and paths; it may be null. An entry of a kind without a control stays without one.
//
// Items of a drop list are taken out of the entry. RegisterEntryClasses must have run.
void CreateEntryControl(CEntryList& list, size_t index, TarnInterface* host);

// Destroys and deletes every control of the list, and empties it. The running y stays.
void DestroyEntryControls(CEntryList& list);
