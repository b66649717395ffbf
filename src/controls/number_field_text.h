#pragma once

// The rules for the text in a numeric field, the same for integers and floats.

// May this character be typed? Digits and signs may stand anywhere, and there is one point, for which a comma
// can be typed. `has_point` tells that the text holds it already. Control characters and, as they count as
// negative, all characters from 128 up pass, and so does everything while the control key is held.
bool PassesNumberFilter(char ch, bool has_point, bool control_held);

// Turns the first comma of a terminated text into a point.
void UsePointForComma(char* text);

bool HasPoint(const char* text);
