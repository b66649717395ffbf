#pragma once

#include <string_view>

#include "context.h"

// Draws the characters with their upper left corner at `start`, in coordinates of the target, inside `clip`,
// which may be null, over the background where that is opaque. `widths` are the steps to take instead of each
// character's own, or null. Gives the width.
int DrawString(const DeviceContext& dc, POINT start, std::string_view text, const RECT* clip,
               const INT* widths);
