// Rows and records of analysis cases, the mass source and the analysis
// controls.
#pragma once

#include <string>
#include <vector>

/// Table 102: an analysis case.
struct S2kAnalysisRow {
  std::string Case, Type, InitialCond, ModalCase;
};
