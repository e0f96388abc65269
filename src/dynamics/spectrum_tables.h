// Rows and records of spectrum functions and spectrum load cases.
#pragma once

#include "s2k/text.h"
#include <string>
#include <vector>

/// Tables 272 to 281: the points of a spectrum function, one row each, with
/// the code's parameters, which are kept and never used.
struct S2kSpectrumBoca96Row {
  CText Name;
  double Period = 0, Accel = 0, Aa = 0, Av = 0, R = 0, S = 0;
};
struct S2kSpectrumEurocode8Row {
  CText Name;
  double Period = 0, Accel = 0, Ag = 0;
  CText SoilClass;
  double DampFactor = 0;
};
struct S2kSpectrumFromFileRow {
  CText Name;
  double Frequency = 0, Period = 0, Accel = 0;
  CText HeaderLines, DataType, FileName;
};
struct S2kSpectrumIbc2000Row {
  CText Name;
  double Period = 0, Accel = 0, SDS = 0, SD1 = 0;
};
struct S2kSpectrumNbcc95Row {
  CText Name;
  double Period = 0, Accel = 0, V = 0, Za = 0, Zv = 0;
};
struct S2kSpectrumNehrp97Row {
  CText Name;
  double Period = 0, Accel = 0, SDS = 0, SD1 = 0;
};
struct S2kSpectrumNzs4203Row {
  CText Name;
  double Period = 0, Accel = 0, ScaleFactor = 0;
  CText SoilCat;
};
struct S2kSpectrumUbc94Row {
  CText Name;
  double Period = 0, Accel = 0, Z = 0;
  CText SoilType;
};
struct S2kSpectrumUbc97Row {
  CText Name;
  double Period = 0, Accel = 0, Ca = 0, Cv = 0;
};
struct S2kSpectrumUserRow {
  CText Name;
  double Period = 0, Accel = 0;
};

/// Table 191: a spectrum applied in a spectrum case.
struct S2kCaseSpectrum2Row {
  CText Case, LoadType, LoadName, CoordSys, Function;
  double Angle = 0, TransAccSF = 0;
};

/// A row of *SFUNCTION: one function as a table of points.
struct TvtSfunctionRec {
  CText FUNC;
  CText DESC;
  int iTYPE = 2;
  double SCALE = 1;
  double GRAV = 0;
  std::vector<double> PERIOD;
  std::vector<double> VALUE;
};

/// A row of *SPLDCASE. Case is the analysis case it came from, not written.
struct TvtSpldcaseRec {
  CText NAME, FUNC, DIR, DESC;
  CText Case;
  double ANGLE = 0;
  double SCALE = 0;
};
