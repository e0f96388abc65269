// Rows and records of load combinations.
#pragma once

#include "s2k/text.h"
#include <string>
#include <vector>

/// Table 103: one term of a combination.
struct S2kCombinationRow {
  CText ComboName, ComboType, CaseType, CaseName;
  double ScaleFactor = 0;
  CText SteelDesign, ConcreteDesign, AlumDesign, ColdDesign;
};

/// A row of *LOADCOMB: one combination and its terms.
struct TvtLoadcombRec {
  CText NAME;
  CText KIND = "GEN";
  CText ACTIVE = "ACTIVE";
  CText DESC;
  int iTYPE = 0;
  std::vector<std::string> ANAL;
  std::vector<std::string> LCNAME;
  std::vector<double> FACT;
};
