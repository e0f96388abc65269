// CS2kModel: what was read from the s2k file, one keyed table per table.
#pragma once

#include "elements/element_tables.h"
#include "elements/property_tables.h"
#include "elements/spring_tables.h"
#include "geometry/geometry_tables.h"
#include "geometry/mass_tables.h"
#include "s2k/stored_tables.h"

/// The six flags of the active degrees of freedom (table 101).
struct S2kActiveDofRec {
  int UX = 0, UY = 0, UZ = 0, RX = 0, RY = 0, RZ = 0;
};

/// Each subject adds its tables as one base; Reset gives each its buckets.
class CS2kModel : public S2kGeometryTables,
                  public S2kMassTables,
                  public S2kPropertyTables,
                  public S2kElementTables,
                  public S2kSpringTables,
                  public S2kStoredTables {
 public:
  void Reset() {
    S2kGeometryTables::Reset();
    S2kMassTables::Reset();
    S2kPropertyTables::Reset();
    S2kElementTables::Reset();
    S2kSpringTables::Reset();
    S2kStoredTables::Reset();
  }

  S2kActiveDofRec ActiveDof;
};
