// Tables whose rows are stored and that no conversion reads.
#include "s2k/table_parsers.h"

const std::vector<S2kTableParser>& StoredTableParsers() {
  static const std::vector<S2kTableParser> parsers = {};
  return parsers;
}
