// Rows and records of load patterns, static cases and self weight.
#pragma once

#include "s2k/text.h"
#include <string>

/// Table 107: a load pattern.
struct S2kLoadRow {
  CText LoadCase, DesignType, AutoLoad;
  double SelfWtMult = 0;
};

/// Table 195: a load pattern applied in an analysis case.
struct S2kCaseStatic1Row {
  CText Case, LoadType, LoadName;
  double LoadSF = 0, TransAccSF = 0;
};

/// A row of *STLDCASE. One name may stand in several rows.
struct TvtStldcaseRec {
  CText LCNAME;
  CText LCTYPE;
  int bAutoLoad = 0;
};

/// A row of *SELFWEIGHT.
struct TvtSelfweightRec {
  CText LCNAME;
  double X = 0, Y = 0, Z = 0;
};
