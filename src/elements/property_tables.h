// Rows, records and tables of materials, frame sections and nonprismatic sections.
#pragma once

#include <string>

#include "s2k/keyed_table.h"

/// Run flags: set in conversion, tested by the writers.
struct PropertyRunFlags {};

struct S2kPropertyTables {
  void Reset() {}
};

struct TvtPropertyTables {
  void Reset() {}
};
