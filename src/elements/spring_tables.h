// Rows, records and tables of joint, coupled, frame and area springs.
#pragma once

#include "s2k/text.h"
#include <string>

#include "s2k/keyed_table.h"

/// Table 342: a joint's six uncoupled stiffnesses.
struct S2kJointSpringRow {
  CText Joint;
  CText CoordSys;
  double U1 = 0, U2 = 0, U3 = 0, R1 = 0, R2 = 0, R3 = 0;
};

/// Table 343: the 18 terms of a coupled joint spring.
struct S2kJointCoupledSpringRow {
  CText Joint;
  CText CoordSys;
  double U1 = 0, U1U2 = 0, U2 = 0, U1U3 = 0, U2U3 = 0, U3 = 0;
  double U1R1 = 0, U2R1 = 0, U3R1 = 0, R1 = 0;
  double U1R2 = 0, U2R2 = 0, U3R2 = 0, R2 = 0;
  double U1R3 = 0, U2R3 = 0, U3R3 = 0, R3 = 0;
};

/// Table 258: a line spring along a frame.
struct S2kFrameSpringRow {
  CText Frame;
  CText Dir;
  double Stiffness = 0;
};

/// Table 127: a spring on a face of an area.
struct S2kAreaSpringRow {
  CText Area;
  CText Face;
  CText Dir;
  double Stiffness = 0;
};

/// A row of *SPRING.
struct TvtSpringRec {
  CText NODE_LIST;
  double SDx = 0, SDy = 0, SDz = 0, SRx = 0, SRy = 0, SRz = 0;
};

/// A row of *GSPRING and its *GSPRTYPE: the upper triangle of the 6 by 6
/// stiffness, column by column.
struct TvtGspringRec {
  CText NODE_LIST;
  CText TYPE_NAME;
  double Terms[21] = {};
};

/// Run flags: set in conversion, tested by the writers.
struct SpringRunFlags {
  int NodeSpringNotConverted = 0;
  int FrameSpringsToNodes = 0;
  int PlateSpringsToNodes = 0;
  int PlateSpringNotConverted = 0;
};

struct S2kSpringTables {
  void Reset() {
    JointSprings.Reset(10001);
    JointCoupledSprings.Reset(10001);
    FrameSprings.Reset(17);
    AreaSprings.Reset(17);
  }

  CKeyedTable<S2kJointSpringRow> JointSprings;                // 342
  CKeyedTable<S2kJointCoupledSpringRow> JointCoupledSprings;  // 343
  CKeyedTable<S2kFrameSpringRow> FrameSprings;                // 258
  CKeyedTable<S2kAreaSpringRow> AreaSprings;                  // 127
};

struct TvtSpringTables {
  void Reset() {
    Springs.Reset(10001);
    GeneralSprings.Reset(10001);
  }

  CKeyedTable<TvtSpringRec> Springs;           // *SPRING
  CKeyedTable<TvtGspringRec> GeneralSprings;   // *GSPRING, *GSPRTYPE
};
