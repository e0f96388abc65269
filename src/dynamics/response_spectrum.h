// CResponseSpectrum: spectrum functions as tables of points (*SFUNCTION) and
// the spectrum loads of each spectrum case (*SPLDCASE).
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "dynamics/spectrum_tables.h"
#include "frame/subject.h"
#include "s2k/keyed_table.h"

/// The angle of a spectrum load brought to 360 or below, 360 at a time. An
/// angle above 360,000,000 or infinite is first cut with fmod (infinite gives
/// NaN); a NaN angle stays as it is.
double ReduceSpectrumAngle(double angle);

class CResponseSpectrum : public CSubject {
 public:
  using CSubject::CSubject;

  int ParseBoca96Functions();     // 272
  int ParseEurocode8Functions();  // 273
  int ParseFromFileFunctions();   // 274
  int ParseIbc2000Functions();    // 275
  int ParseNbcc95Functions();     // 276
  int ParseNehrp97Functions();    // 277
  int ParseNzs4203Functions();    // 278
  int ParseUbc94Functions();      // 279
  int ParseUbc97Functions();      // 280
  int ParseUserFunctions();       // 281
  int ParseCaseSpectrum2();       // 191

  /// Conversion step 15: every function of a carried kind, the others
  /// reported once each.
  int ConvertSpectrumFunctions();
  /// One function table each, numbered on from \p counter.
  int ConvertEurocode8Spectrum(int& counter);
  int ConvertIbc2000Spectrum(int& counter);
  int ConvertNbcc95Spectrum(int& counter);
  int ConvertUbc94Spectrum(int& counter);
  int ConvertUbc97Spectrum(int& counter);
  int ConvertUserSpectrum(int& counter);
  /// Conversion step 16: the *SPLDCASE rows of table 191.
  int ConvertSpectrumLoads();

  /// The NAMEs of the *SPLDCASE rows of spectrum case \p Case, by key.
  const std::vector<std::string>& SpectrumLoadNamesOf(const std::string& Case) const;

  int WriteSfunctions();  // writer step 26
  int WriteSpldcases();   // writer step 27

 private:
  template <class Row>
  int ConvertSpectrumTable(const CKeyedTable<Row>& table, int& counter);

  CKeyedTable<S2kSpectrumBoca96Row> boca96_;        // 272
  CKeyedTable<S2kSpectrumEurocode8Row> eurocode8_;  // 273
  CKeyedTable<S2kSpectrumFromFileRow> fromFile_;    // 274
  CKeyedTable<S2kSpectrumIbc2000Row> ibc2000_;      // 275
  CKeyedTable<S2kSpectrumNbcc95Row> nbcc95_;        // 276
  CKeyedTable<S2kSpectrumNehrp97Row> nehrp97_;      // 277
  CKeyedTable<S2kSpectrumNzs4203Row> nzs4203_;      // 278
  CKeyedTable<S2kSpectrumUbc94Row> ubc94_;          // 279
  CKeyedTable<S2kSpectrumUbc97Row> ubc97_;          // 280
  CKeyedTable<S2kSpectrumUserRow> user_;            // 281
  CKeyedTable<S2kCaseSpectrum2Row> caseSpectrum2_;  // 191

  CKeyedTable<TvtSfunctionRec> functions_;  // *SFUNCTION
  CKeyedTable<TvtSpldcaseRec> loads_;       // *SPLDCASE
  int spectrumLoadRefused_ = 0;

  mutable int namesCount_ = -1;
  mutable std::unordered_map<std::string, std::vector<std::string>> namesOfCase_;
};
