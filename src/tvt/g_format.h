// Numbers as printf's %g spells them, without printf for the common ones.
#pragma once

/// Room FormatG needs at its output.
constexpr int kFormatGRoom = 32;

/// Puts \p value, which is finite, as "%g" prints it at \p at and \returns
/// the end.
char* FormatG(char* at, double value);
