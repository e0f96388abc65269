// Rows and records of joint forces and ground displacements.
#pragma once

#include "s2k/text.h"
#include <string>

/// Table 334: forces and moments on a joint.
struct S2kJointForceRow {
  CText Joint, LoadCase, CoordSys;
  double F1 = 0, F2 = 0, F3 = 0;
  double M1 = 0, M2 = 0, M3 = 0;
};

/// Table 335: displacements of a joint's support.
struct S2kJointGroundRow {
  CText Joint, LoadCase, CoordSys;
  double U1 = 0, U2 = 0, U3 = 0;
  double R1 = 0, R2 = 0, R3 = 0;
};

/// A row of *CONLOAD, in global axes; the node number comes at writing.
struct TvtConloadRec {
  CText NODE_LIST;
  CText LCNAME;
  double FX = 0, FY = 0, FZ = 0;
  double MX = 0, MY = 0, MZ = 0;
};

/// A row of *SPDISP, in the joint's local axes.
struct TvtSpdispRec {
  CText NODE_LIST;
  CText FLAG;  ///< one "0" or "1" per degree of freedom
  CText LCNAME;
  double Dx = 0, Dy = 0, Dz = 0;
  double Rx = 0, Ry = 0, Rz = 0;
};
