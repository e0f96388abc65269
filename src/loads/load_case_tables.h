// Rows and records of load patterns, static cases and self weight.
#pragma once

#include <string>

/// Table 107: a load pattern.
struct S2kLoadRow {
  std::string LoadCase, DesignType, AutoLoad;
  double SelfWtMult = 0;
};

/// Table 195: a load pattern applied in an analysis case.
struct S2kCaseStatic1Row {
  std::string Case, LoadType, LoadName;
  double LoadSF = 0, TransAccSF = 0;
};

/// A row of *STLDCASE. One name may stand in several rows.
struct TvtStldcaseRec {
  std::string LCNAME;
  std::string LCTYPE;
  int bAutoLoad = 0;
};

/// A row of *SELFWEIGHT.
struct TvtSelfweightRec {
  std::string LCNAME;
  double X = 0, Y = 0, Z = 0;
};
