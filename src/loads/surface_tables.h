// Rows and records of uniform loads and surface pressures on areas.
#pragma once

#include "s2k/text.h"
#include <string>

/// Table 119: a uniform load on an area.
struct S2kAreaUniformRow {
  CText Area, LoadCase, CoordSys, Dir;
  double UnifLoad = 0;
};

/// Table 116: a pressure on a face of an area.
struct S2kAreaSurfaceRow {
  CText Area, LoadCase, Face;
  double Pressure = 0;
  CText JtPattern;
};

/// A row of *PRESSURE, always on the face of a plate; the element number
/// comes at writing.
struct TvtPressureRec {
  CText ELEM_LIST;
  CText LCNAME;
  CText ETYP;
  CText LTYP;
  CText DIR;
  double VX = 0, VY = 0, VZ = 0;
  double PU = 0, P1 = 0, P2 = 0, P3 = 0, P4 = 0;
  CText bPROJ;
  CText GROUP;
};
