// The row parsers of the element tables.
#include "s2k/table_parsers.h"

const std::vector<S2kTableParser>& ElementTableParsers() {
  static const std::vector<S2kTableParser> parsers = {};
  return parsers;
}
