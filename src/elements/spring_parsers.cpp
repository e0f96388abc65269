// The row parsers of the spring tables.
#include "s2k/table_parsers.h"

const std::vector<S2kTableParser>& SpringTableParsers() {
  static const std::vector<S2kTableParser> parsers = {};
  return parsers;
}
