// CLoadCombinations: the terms of the combination table gathered into
// *LOADCOMB records, each term tested against the static load cases.
#pragma once

#include <string>
#include <vector>

#include "frame/subject.h"
#include "loads/load_combination_tables.h"
#include "s2k/keyed_table.h"

class CLoadCombinations : public CSubject {
 public:
  using CSubject::CSubject;

  int ParseCombinations();  // 103

  /// Conversion step 19: the rows, in file order, into *LOADCOMB records.
  int ConvertCombinations();
  /// Fills \p Names with the names of the *SPLDCASE rows of spectrum case
  /// \p CaseName when \p CaseType is "Response Spectrum". \returns their count.
  int GetSpectrumCaseNames(const std::string& CaseName, const std::string& CaseType,
                           std::vector<std::string>& Names) const;
  /// Whether a term named a case type that has no word of its own.
  bool UsedUnknownCaseType() const { return usedUnknownCaseType_; }

  /// Writer step 37.
  int WriteLoadcomb();

 private:
  CKeyedTable<S2kCombinationRow> combinations_;  // 103
  CKeyedTable<TvtLoadcombRec> loadCombinations_;   // *LOADCOMB
  bool usedUnknownCaseType_ = false;
};
