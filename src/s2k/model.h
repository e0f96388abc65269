// CS2kModel: what was read from the s2k file that no subject owns: the
// active degrees of freedom and the tables kept but not converted.
#pragma once

#include "s2k/stored_tables.h"

/// The six flags of the active degrees of freedom (table 101).
struct S2kActiveDofRec {
  int UX = 0, UY = 0, UZ = 0, RX = 0, RY = 0, RZ = 0;
};

class CS2kModel : public S2kStoredTables {
 public:
  void Reset() {
    S2kStoredTables::Reset();
    ActiveDof = {};
  }

  S2kActiveDofRec ActiveDof;
};
