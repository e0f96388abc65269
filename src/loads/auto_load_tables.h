// Rows and records of automatic wind and seismic loads.
#pragma once

#include "s2k/text.h"
#include <string>

/// Table 151: UBC 97 wind of a load pattern.
struct S2kAutoWindUbc97Row {
  CText LoadCase, ExposeFrom;
  double Angle = 0, WindwardCq = 0, LeewardCq = 0, MaxZ = 0, MinZ = 0, WindSpeed = 0;
  CText Exposure;
  double I = 0;
  CText ExpWidth;
};

/// Table 146: ASCE 7-98 wind of a load pattern.
struct S2kAutoWindAsce798Row {
  CText LoadCase, ExposeFrom;
  double Angle = 0, WindwardCp = 0, LeewardCp = 0, MaxZ = 0, MinZ = 0, WindSpeed = 0;
  CText Exposure;
  double I = 0, Kzt = 0, GustFactor = 0, Kd = 0;
  CText ExpWidth;
};

/// Table 149: NBCC 95 wind of a load pattern.
struct S2kAutoWindNbcc95Row {
  CText LoadCase, ExposeFrom;
  double Angle = 0, WindwardCp = 0, LeewardCp = 0, MaxZ = 0, MinZ = 0, VelPressure = 0, Cg = 0;
  CText ExpWidth;
};

/// Table 136: UBC97 seismic load of a load pattern.
struct S2kAutoSeismicUbc97Row {
  CText LoadCase, Dir;
  double PercentEcc = 0;
  CText EccOverride, PeriodCalc;
  double Ct = 0, UserT = 0, MaxZ = 0, MinZ = 0, R = 0;
  CText SoilType, Z;
  double Ca = 0, Cv = 0;
  CText SourceType;
  double SourceDist = 0, Na = 0, Nv = 0, I = 0, TUsed = 0, WeightUsed = 0, BaseShear = 0, FtUsed = 0;
};

/// Table 133: NBCC95 seismic load of a load pattern.
struct S2kAutoSeismicNbcc95Row {
  CText LoadCase, Dir;
  double PercentEcc = 0;
  CText EccOverride, StructType, PeriodCalc;
  double Ds = 0, UserT = 0, MaxZ = 0, MinZ = 0, R = 0;
  CText Za, Zv, VType;
  double V = 0, I = 0, F = 0, TUsed = 0, FSUsed = 0, WeightUsed = 0, BaseShear = 0, FtUsed = 0;
};

/// A *WIND block under the code word UBC1997.
struct TvtWindUbc1997Rec {
  CText LCNAME, DESC;
  CText EC = "B";
  int iMETHOD = 2;
  double SFX = 1, SFY = 1, BWS = 80, IF = 1, PC = 0, MRH = 0;
};

/// A *WIND block under the code word IBC2000.
struct TvtWindIbc2000Rec {
  CText LCNAME, DESC;
  CText EC;
  int iPROC = 2, iST = 1;
  double SFX = 1, SFY = 1, BWS = 85, IF = 1, WDF = 0, MRH = 0, GFX = 0.85, GFY = 0.85;
};

/// A *WIND block under the code word NBC1995.
struct TvtWindNbc1995Rec {
  CText LCNAME, DESC;
  CText EC;
  int iPROC = 1;
  double SFX = 1, SFY = 1, RWS = 30, GEF = 2;
};

/// A *SEIS block under the code word UBC1997.
struct TvtSeisUbc1997Rec {
  CText LCNAME, DESC;
  CText ECCX = "POS", ECCY = "POS", SPT = "Sa", SST = "A";
  double ZF = 0.075, CD = 10, IF = 1, PX = 0, PY = 0, NCX = 0, NCY = 0, SFX = 1, SFY = 1;
};

/// A *SEIS block under the code word NBC1995.
struct TvtSeisNbc1995Rec {
  CText LCNAME, DESC;
  CText ECCX = "POS", ECCY = "POS";
  int AZ = 1, VZ = 1;
  double ZVR = 0.05, IF = 1, FF = 1, PAX = 0, PAY = 0, PCX = 0, PCY = 0, FMFX = 0, FMFY = 0, SFX = 1, SFY = 1;
};
