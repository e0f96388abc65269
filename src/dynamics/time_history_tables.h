// Rows and records of time history cases, their loads and their functions.
#pragma once

#include "s2k/text.h"
#include <cerrno>
#include <string>
#include <vector>

// The system's error number ETIME would take the name of the end time; no
// code here needs that error number.
#undef ETIME

/// Table 173: a direct history case.
struct S2kDirectHistory1Row {
  CText Case;
  double OutSteps = 1, StepSize = 1;
};

/// Tables 174 and 182: a load of a history case.
struct S2kHistoryLoadRow {
  CText Case, LoadType, LoadName, Function;
  double LoadSF = 0, TransAccSF = 0, TimeFactor = 0, ArrivalTime = 0;
  CText CoordSys;
  double Angle = 0;
  int LoadSFGiven = 0;  ///< whether the row has "LoadSF="
};

/// Tables 175 and 184: proportional damping of a history case.
struct S2kHistoryDampingRow {
  CText Case, SpecifyType;
  double MassCoeff = 0, StiffCoeff = 0, Period1 = 0, Frequency1 = 0, Damping1 = 0, Period2 = 0, Frequency2 = 0,
         Damping2 = 0;
};

/// Table 176: the integration of a direct history case.
struct S2kDirectHistory4Row {
  CText Case, IntMethod;
  double Gamma = 0, Beta = 0, Theta = 0, Alpha = 0, AlphaM = 0;
};

/// Table 177: the nonlinear parameters of a direct history case.
struct S2kDirectHistory5Row {
  CText Case, GeoNonLin;
  double DTMax = 0, DTMin = 0, MaxIter = 0, ItConvTol = 0, EvLumpTol = 0;
  int FrameTC = 0, FrameHinge = 0, CableTC = 0, LinkTC = 0, LinkOther = 0;
};

/// Table 181: a modal history case.
struct S2kModalHistory1Row {
  CText Case, HistoryType;
  double OutSteps = 1, StepSize = 0;
  CText DampingType;
  double ConstDamp = 0;
};

/// Table 185: the damping of one mode of a modal history case.
struct S2kModalHistory5Row {
  CText Case, Mode;
  double Damping = 0;
};

/// Table 186: the nonlinear parameters of a modal history case.
struct S2kModalHistory6Row {
  CText Case;
  double PeriodStat = 0, DTMax = 0, DTMin = 0, FConvTol = 0, EConvTol = 0, ForceItMax = 0, ForceItMin = 0,
         ConvFactor = 0;
  int FrameTC = 0, FrameHinge = 0, CableTC = 0, LinkTC = 0, LinkOther = 0;
};

/// Table 283: a point of a function read from a file.
struct S2kHistoryFromFileRow {
  CText Name;
  double Time = 0, Value = 0, HeaderLines = 0, PrefixChars = 0, PtsPerLine = 0;
  CText FormatType;
  double FixedLength = 0, Interval = 0;
  CText FileName;
};

/// Table 289: a point of a user function.
struct S2kHistoryUserRow {
  CText Name;
  double Time = 0, Value = 0;
};

/// A case of *THLDCASE. iMODE and DAMPING grow together.
struct TvtThldcaseRec {
  CText NAME, DESC;
  double ETIME = 0, INC = 0;
  int iOUT = 0, iICOND = 0;
  CText FSPLC;
  int iATYPE = 0, iAMETHOD = 0, iTHTYPE = 0, iMDTYPE = 0;
  double DALL = 0;
  int iCOEF = 0, iCALC = 0;
  CText bMASSP = "NO", bSTIFFP = "NO";
  double MASSC = 0, STIFFC = 0, FP1 = 0, DR1 = 0, FP2 = 0, DR2 = 0;
  int iNMM = 0;
  double GAMMA = 0, BETA = 0;
  double MINSSS = 0;
  int iMAXITER = 0;
  double CONVTOL = 0;
  std::vector<int> iMODE;
  std::vector<double> DAMPING;
};

/// A function of *TFUNCTION.
struct TvtTfunctionRec {
  CText FUNC, DESC;
  int one = 1;    ///< the 1 of the command's line
  int iTYPE = 0;  ///< 5 force, 2 acceleration
  double SCALE = 1;
  double GRAV = 0;
  std::vector<double> TIME, VALUE;
};

/// A row of *GROUND-ACC: one per case.
struct TvtGroundAccRec {
  CText THIS, FUNCX, FUNCY, FUNCZ;
  double SCALEX = 0, ATIMEX = 0, SCALEY = 0, ATIMEY = 0, SCALEZ = 0, ATIMEZ = 0, ANGLE = 0;
};

/// A row of *DYN-SLOAD.
struct TvtDynSloadRec {
  CText THIS, SLOAD, FUNC;
  double ATIME = 0, SCALE = 0;
};
