// Rows, records and tables of frames, areas, solids, thickness, end offsets and releases.
#pragma once

#include <string>

#include "s2k/keyed_table.h"

struct S2kElementTables {
  void Reset() {}
};

/// Run flags of the element conversion: set in conversion, tested by writers.
struct ElementRunFlags {};

/// The element map: old to new element numbers, filled by *ELEMENT.
struct TvtElementMapEntry {
  int iEL = 0;
  int number = 0;
  std::string name;
  std::string kind;
};

struct TvtElementTables {
  void Reset() {}
};
