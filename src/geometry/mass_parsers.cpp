// The row parsers of the mass tables.
#include "s2k/table_parsers.h"

const std::vector<S2kTableParser>& MassTableParsers() {
  static const std::vector<S2kTableParser> parsers = {};
  return parsers;
}
