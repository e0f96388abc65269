// Rows and records of temperature loads on frames, areas and solids, their
// reference temperatures and the joint patterns that drive them.
#pragma once

#include "s2k/text.h"
#include <string>

/// Tables 238, 117 and 485: a temperature load on a frame, area or solid.
/// Name is the object; solids have no Type and no gradients.
struct S2kTemperatureRow {
  CText Name, LoadCase, Type;
  double Temp = 0, TempGrad2 = 0, TempGrad3 = 0;
  CText JtPattern;
};
using S2kFrameTemperatureRow = S2kTemperatureRow;
using S2kAreaTemperatureRow = S2kTemperatureRow;
using S2kSolidTemperatureRow = S2kTemperatureRow;

/// Tables 249, 124 and 491: the reference temperature of an object.
struct S2kReferenceTemperatureRow {
  CText Name;
  double Temp = 0;
  CText JtPattern;
};

/// Table 339: the value of a joint in a pattern.
struct S2kJointPatternRow {
  CText Joint, Pattern;
  double Value = 0;
};

/// Table 340: a pattern's name.
struct S2kJointPatternDefinitionRow {
  CText Pattern;
};

/// A row of *ELTEMPER; ETYP is the kind for the element number.
struct TvtEltemperRec {
  CText ELEM_LIST;
  CText LCNAME;
  CText ETYP;
  double TEMPER = 0;
};

/// A row of *NDTEMPER.
struct TvtNdtemperRec {
  CText NODE_LIST;
  CText LCNAME;
  double TEMPER = 0;
};

/// A row of *THERGRAD.
struct TvtThergradRec {
  CText ELEM_LIST;
  CText LCNAME;
  CText ETYP;
  int iETYP = 0;
  CText bUSEHZ, bUSEHY;
  double TZ = 0, TY = 0, HZ = 0, HY = 0;
};
