// Rows, records and tables of units, joints, supports, local axes and masses.
#pragma once

#include <string>

#include "s2k/keyed_table.h"

struct S2kGeometryTables {
  void Reset() {}
  /// Units of table 108; empty when the file has none.
  std::string ForceUnit, LengthUnit, TemperatureUnit;
};

/// Run flags of the geometry conversion: set in conversion, tested by writers.
struct GeometryRunFlags {};

struct TvtGeometryTables {
  void Reset() {}
  /// 1 when every joint name is an integer that is its own node number.
  int jointsKeepNumbers = 1;
};
