// Rows and records of load combinations.
#pragma once

#include <string>
#include <vector>

/// Table 103: one term of a combination.
struct S2kCombinationRow {
  std::string ComboName, ComboType, CaseType, CaseName;
  double ScaleFactor = 0;
  std::string SteelDesign, ConcreteDesign, AlumDesign, ColdDesign;
};

/// A row of *LOADCOMB: one combination and its terms.
struct TvtLoadcombRec {
  std::string NAME;
  std::string KIND = "GEN";
  std::string ACTIVE = "ACTIVE";
  std::string DESC;
  int iTYPE = 0;
  std::vector<std::string> ANAL;
  std::vector<std::string> LCNAME;
  std::vector<double> FACT;
};
