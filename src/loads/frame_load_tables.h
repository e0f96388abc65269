// Rows and records of frame loads: point, distributed and gravity loads, and
// the gravity tables of areas and solids that are not carried over.
#pragma once

#include "s2k/text.h"
#include <string>

/// Table 235: one segment of a distributed load on a frame.
struct S2kFrameDistributedRow {
  CText Frame, LoadCase, CoordSys, Type, Dir, DistType;
  double RelDistA = 0, RelDistB = 0, AbsDistA = 0, AbsDistB = 0;
  double FOverLA = 0, FOverLB = 0, MOverLA = 0, MOverLB = 0;
};

/// Table 236: the weight of a frame times a multiplier per global axis.
struct S2kFrameGravityRow {
  CText Frame, LoadCase, CoordSys;
  double MultiplierX = 0, MultiplierY = 0, MultiplierZ = 0;
};

/// Table 237: a point load on a frame.
struct S2kFramePointRow {
  CText Frame, LoadCase, CoordSys, Type, Dir, DistType;
  double RelDist = 0, AbsDist = 0, Force = 0, Moment = 0;
};

/// Table 113: gravity on an area; refused.
struct S2kAreaGravityRow {
  CText Area, LoadCase, CoordSys;
  double MultiplierX = 0, MultiplierY = 0, MultiplierZ = 0;
};

/// Table 482: gravity on a solid; dropped.
struct S2kSolidGravityRow {
  CText Solid, LoadCase, CoordSys;
  double MultiplierX = 0, MultiplierY = 0, MultiplierZ = 0;
};

/// A row of *BEAMLOAD: positions D are fractions of the length, P the values
/// there; the element number comes at writing.
struct TvtBeamloadRec {
  CText ELEM_LIST;
  CText CMD;
  CText TYPE;
  CText DIR;
  CText LCNAME;
  CText bPROJ;
  double D1 = 0, P1 = 0, D2 = 0, P2 = 0, D3 = 0, P3 = 0, D4 = 0, P4 = 0;
};
