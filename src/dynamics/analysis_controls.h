// CAnalysisControls: the walk of the analysis cases, the mass source, and the
// modal, spectrum, buckling and analysis controls.
#pragma once

#include <string>

#include "dynamics/analysis_tables.h"
#include "frame/subject.h"
#include "s2k/keyed_table.h"

class CAnalysisControls : public CSubject {
 public:
  using CSubject::CSubject;

  int ParseAnalysisCases();  // 102

  /// Conversion step 17: each analysis case by its type.
  int ConvertAnalysisCases();
  /// Marks that a modal, spectrum or history case was converted, which
  /// brings *ANAL-CTRL.
  void SetDynamicCaseSeen() { dynamicCaseSeen_ = 1; }

  /// Writer step 32: the buckling control and the two empty lines behind it.
  int WriteBuckCtrl();

 private:
  CKeyedTable<S2kAnalysisRow> analysisCases_;  // 102
  int dynamicCaseSeen_ = 0;
};
