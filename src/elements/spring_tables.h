// Rows, records and tables of joint, coupled, frame and area springs.
#pragma once

#include <string>

#include "s2k/keyed_table.h"

/// Run flags: set in conversion, tested by the writers.
struct SpringRunFlags {};

struct S2kSpringTables {
  void Reset() {}
};

struct TvtSpringTables {
  void Reset() {}
};
