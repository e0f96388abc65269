// Rows and records of joint forces and ground displacements.
#pragma once

#include <string>

/// Table 334: forces and moments on a joint.
struct S2kJointForceRow {
  std::string Joint, LoadCase, CoordSys;
  double F1 = 0, F2 = 0, F3 = 0;
  double M1 = 0, M2 = 0, M3 = 0;
};

/// Table 335: displacements of a joint's support.
struct S2kJointGroundRow {
  std::string Joint, LoadCase, CoordSys;
  double U1 = 0, U2 = 0, U3 = 0;
  double R1 = 0, R2 = 0, R3 = 0;
};

/// A row of *CONLOAD, in global axes; the node number comes at writing.
struct TvtConloadRec {
  std::string NODE_LIST;
  std::string LCNAME;
  double FX = 0, FY = 0, FZ = 0;
  double MX = 0, MY = 0, MZ = 0;
};

/// A row of *SPDISP, in the joint's local axes.
struct TvtSpdispRec {
  std::string NODE_LIST;
  std::string FLAG;  ///< one "0" or "1" per degree of freedom
  std::string LCNAME;
  double Dx = 0, Dy = 0, Dz = 0;
  double Rx = 0, Ry = 0, Rz = 0;
};
