// CAnalysisControls: the walk of the analysis cases, the mass source, and the
// modal, spectrum, buckling and analysis controls.
#pragma once

#include <string>

#include "dynamics/analysis_tables.h"
#include "frame/subject.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

class CAnalysisControls : public CSubject {
 public:
  using CSubject::CSubject;

  int ParseAnalysisCases();  // 102
  int ParseCaseBuckling1();  // 171
  int ParseCaseBuckling2();  // 172
  int ParseCaseModal1();     // 178
  int ParseCaseModal3();     // 180
  int ParseCaseSpectrum1();  // 190
  int ParseMassSource();     // 371

  /// Conversion step 17: each analysis case by its type, then the mass source.
  int ConvertAnalysisCases();
  /// The eigenvalue control from the first row of the modal table.
  void ConvertModalCase(const std::string& Case);
  /// The spectrum control from the first row of the spectrum table.
  void ConvertSpectrumControl(const std::string& Case);
  /// The buckling control of the first buckling case that has loads.
  void ConvertBucklingCase(const std::string& Case);
  /// *LOADTOMASS from the mass source rows that take loads.
  void ConvertLoadToMass();
  /// Conversion step 18: *ANAL-CTRL when a dynamic case was converted.
  int ConvertAnalysisControl();

  /// Marks that a modal, spectrum or history case was converted, which
  /// brings *ANAL-CTRL.
  void SetDynamicCaseSeen() { dynamicCaseSeen_ = 1; }
  /// Whether the mass source takes masses from the elements; known once the
  /// analysis cases are converted.
  int MassFromElements() const { return massFromElements_; }

  int WriteLoadToMass();  // writer step 28
  int WriteAnalCtrl();    // 29
  int WriteSpecCtrl();    // 30
  int WriteEigenCtrl();   // 31
  /// Writer step 32: the buckling control and the two empty lines behind it.
  int WriteBuckCtrl();

 private:
  CKeyedTable<S2kAnalysisRow> analysisCases_;     // 102
  CKeyedTable<S2kCaseBuckling1Row> buckling1_;    // 171
  CKeyedTable<S2kCaseBuckling2Row> buckling2_;    // 172
  CKeyedTable<S2kCaseModal1Row> modal1_;          // 178
  CKeyedTable<S2kCaseModal3Row> modal3_;          // 180
  CKeyedTable<S2kCaseSpectrum1Row> spectrum1_;    // 190
  CKeyedTable<S2kMassSourceRow> massSource_;      // 371
  CNameIndex<S2kCaseBuckling1Row> buckling1Cases_{&S2kCaseBuckling1Row::Case};
  CNameIndex<S2kCaseBuckling2Row> buckling2Cases_{&S2kCaseBuckling2Row::Case};
  CNameIndex<S2kCaseModal3Row> modal3Cases_{&S2kCaseModal3Row::Case};

  TvtEigenCtrlRec eigenCtrl_;
  TvtSpecCtrlRec specCtrl_;
  TvtBuckCtrlRec buckCtrl_;
  TvtAnalCtrlRec analCtrl_;
  TvtLoadtomassRec loadToMass_;

  int dynamicCaseSeen_ = 0;
  int bucklingDefined_ = 0;
  int bucklingLoadRefused_ = 0;
  int massFromElements_ = 0;
};
