// Tables whose rows are stored and that no conversion reads.
#pragma once

struct S2kStoredTables {
  void Reset() {}
};
