#pragma once

#include "customize/script_entry.h"

// Reads the argument of a `cntl` tag into the record: "spin MIN MAX STEP", "drop ITEM...", "drop_list
// ITEM..." or "drop_pair". False when the mode is unknown or missing; the record then stays as it is.
bool ParseControlSpec(CScriptEntry& entry, const CString& argument);

// 0 no number, 1 integer, 2 decimal. A lone sign counts as an integer, a lone point as a decimal.
int ClassifyNumber(const CString& text);

// Takes "WIDTH, HEIGHT," off the front of an argument. 1 when both were there; 0 when it stopped early, with
// both sizes 0 and the text shortened as far as it was read.
int ParseSizePrefix(CString& text, int& width, int& height);
