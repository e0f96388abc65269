// Rows, records and tables of joint, frame and area masses.
#pragma once

#include <string>

#include "s2k/keyed_table.h"

/// Run flags: set in conversion, tested by the writers.
struct MassRunFlags {};

struct S2kMassTables {
  void Reset() {}
};

struct TvtMassTables {
  void Reset() {}
};
