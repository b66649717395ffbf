#pragma once

#include <cstddef>

// Numbers out of text that need not be terminated, the same on every C library and in every locale.

// The leading decimal integer, as atoi reads it: white space, one sign, digits; 0 without digits.
// A number beyond 32 bits gives the nearest one that fits.
int ParseInt(const char* text, size_t length);

// The leading decimal number, as atof reads it: white space, one sign, digits with a point, exponent; 0.0
// when there is none. No hexadecimal form, no "inf", no "nan"; a number beyond the range gives the nearest
// one in it.
double ParseDouble(const char* text, size_t length);
