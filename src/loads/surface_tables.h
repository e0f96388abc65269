// Rows and records of uniform loads and surface pressures on areas.
#pragma once

#include <string>

/// Table 119: a uniform load on an area.
struct S2kAreaUniformRow {
  std::string Area, LoadCase, CoordSys, Dir;
  double UnifLoad = 0;
};

/// Table 116: a pressure on a face of an area.
struct S2kAreaSurfaceRow {
  std::string Area, LoadCase, Face;
  double Pressure = 0;
  std::string JtPattern;
};

/// A row of *PRESSURE, always on the face of a plate; the element number
/// comes at writing.
struct TvtPressureRec {
  std::string ELEM_LIST;
  std::string LCNAME;
  std::string ETYP;
  std::string LTYP;
  std::string DIR;
  double VX = 0, VY = 0, VZ = 0;
  double PU = 0, P1 = 0, P2 = 0, P3 = 0, P4 = 0;
  std::string bPROJ;
  std::string GROUP;
};
