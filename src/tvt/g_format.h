// Numbers as printf's %g spells them, without printf for the common ones.
#pragma once

#include <charconv>
#include <cmath>

/// Room FormatG needs at its output.
constexpr int kFormatGRoom = 32;

/// FormatG for the numbers that are not integers from -999999 to 999999.
char* FormatGPart(char* at, double value);

/// Puts \p value, which is finite, as "%g" prints it at \p at and \returns
/// the end.
inline char* FormatG(char* at, double value) {
  if (value > -1e6 && value < 1e6) {
    const int whole = static_cast<int>(value);
    if (whole == value && (whole != 0 || !std::signbit(value))) return std::to_chars(at, at + kFormatGRoom, whole).ptr;
  }
  return FormatGPart(at, value);
}
