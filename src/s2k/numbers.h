// Numbers as the run-time library of the format's day reads and converts them.
#pragma once

#include <string>
#include <string_view>

/// atof: leading white space, then the longest decimal prefix (sign, digits,
/// one point, exponent); 0 without one. No inf, nan or hexadecimal forms.
double ParseDouble(std::string_view text);

/// atoi of the platform, overflow included.
int ParseInt(std::string_view text);

/// A double cut to a 32-bit integer as x86 does it: out of range and NaN
/// give -2147483648.
int TruncateToInt(double value);
