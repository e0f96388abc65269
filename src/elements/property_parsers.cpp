// The row parsers of the material and section tables.
#include "s2k/table_parsers.h"

const std::vector<S2kTableParser>& PropertyTableParsers() {
  static const std::vector<S2kTableParser> parsers = {};
  return parsers;
}
