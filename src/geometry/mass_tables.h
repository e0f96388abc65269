// Rows, records and tables of joint, frame and area masses.
#pragma once

#include "s2k/text.h"
#include <string>
#include <unordered_map>

#include "s2k/keyed_table.h"

/// Table 331: masses added at joints.
struct S2kJointMassRow {
  CText Joint, CoordSys;
  double Mass1 = 0, Mass2 = 0, Mass3 = 0, MMI1 = 0, MMI2 = 0, MMI3 = 0;
};

/// Table 231: mass per length of a frame.
struct S2kFrameMassRow {
  CText Frame;
  double MassPerLen = 0;
};

/// Table 111: mass per area of an area object.
struct S2kAreaMassRow {
  CText Area;
  double MassPerArea = 0;
};

/// A row of *NODALMASS: one joint's lumped masses.
struct TvtNodalmassRec {
  CText NODE_LIST;
  double mX = 0, mY = 0, mZ = 0, rmX = 0, rmY = 0, rmZ = 0;
};

/// Run flags: set in conversion, tested by the writers.
struct MassRunFlags {};

struct S2kMassTables {
  void Reset() {
    JointMasses.Reset(10001);
    FrameMasses.Reset(10001);
    AreaMasses.Reset(17);
  }

  CKeyedTable<S2kJointMassRow> JointMasses;  // 331
  CKeyedTable<S2kFrameMassRow> FrameMasses;  // 231
  CKeyedTable<S2kAreaMassRow> AreaMasses;    // 111
};

struct TvtMassTables {
  void Reset() { NodalMasses.Reset(10001); }

  /// Gets \p record ready to go into NodalMasses under \p key: when a record
  /// of \p name exists, \p key becomes its key and its values are added to
  /// \p record; otherwise \p key becomes the count plus 1. An empty table
  /// leaves \p key as the caller set it.
  void MergeNodalMass(const std::string& name, int& key, TvtNodalmassRec& record);

  CKeyedTable<TvtNodalmassRec> NodalMasses;  // *NODALMASS

 private:
  /// The key of each name in NodalMasses; rebuilt when it misses rows.
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> nodalMassKeys_;
};
