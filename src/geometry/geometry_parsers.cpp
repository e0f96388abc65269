// The row parsers of the geometry tables.
#include "s2k/table_parsers.h"

const std::vector<S2kTableParser>& GeometryTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {104, &CS2kConverter::ParseCoordinateSystem},
      {108, &CS2kConverter::ParseProgramControl},
  };
  return parsers;
}
