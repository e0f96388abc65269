// CLoadCases: load patterns, the static cases made of them, self weight, and
// the frame of *STLDCASE and the per-case load blocks.
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "frame/subject.h"
#include "loads/load_case_tables.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

/// How a block writer runs through its table: in walk order, or by keys 1 to
/// the count, a missing key printing the record before it again.
enum class CaseBlockOrder { Walk, KeyOrder };

class CLoadCases : public CSubject {
 public:
  explicit CLoadCases(CS2kConverter& engine);

  int ParseLoads();        // 107
  int ParseCaseStatic1();  // 195

  /// Conversion step 6: a *SELFWEIGHT row for each pattern with a multiplier.
  int ConvertSelfWeight();
  /// A *STLDCASE row for each pattern that analysis case \p Case applies.
  /// \p Type is not used. \returns 0 when an insert fails.
  int ConvertStaticCase(const std::string& Case, const std::string& Type);
  /// The load type of pattern \p LoadName, converting its automatic wind or
  /// seismic load on the way. \returns 1 when the pattern exists; else the
  /// outputs stay as they were.
  int GetLoadCaseType(const std::string& LoadName, CText& LCTYPE, int& bAutoLoad);
  /// \returns 1 when a *STLDCASE row bears the name \p Name.
  int IsStaticLoadCase(const std::string& Name) const { return staticCaseRows_.FindKey(staticCases_, Name) != 0; }

  /// Writer step 13: *STLDCASE, then the blocks of each case.
  int WriteStaticLoads();
  int WriteStaticLoadCases();
  int WriteLoadCaseBlocks();
  /// The *SELFWEIGHT block of \p loadCase.
  int WriteSelfWeight(const std::string& loadCase);

  /// The keys of a table's rows of each case, in the order of its blocks;
  /// kept by WriteCaseBlock so that each table is read once, not per case.
  struct SCaseRowIndex {
    int count = -1;
    std::unordered_map<std::string, std::vector<int>> keysOf;
  };
  SCaseRowIndex& CaseRowIndex(const void* table, CaseBlockOrder order) {
    return caseRowIndexes_[{table, static_cast<int>(order)}];
  }

 private:
  CKeyedTable<S2kLoadRow> loads_;               // 107
  CKeyedTable<S2kCaseStatic1Row> caseStatic1_;  // 195
  CKeyedTable<TvtStldcaseRec> staticCases_;     // *STLDCASE
  CKeyedTable<TvtSelfweightRec> selfWeights_;   // *SELFWEIGHT

  CNameIndex<S2kLoadRow> loadNames_{&S2kLoadRow::LoadCase};
  CNameIndex<S2kCaseStatic1Row> staticCaseNames_{&S2kCaseStatic1Row::Case};
  CNameIndex<TvtStldcaseRec> staticCaseRows_{&TvtStldcaseRec::LCNAME};
  std::map<std::pair<const void*, int>, SCaseRowIndex> caseRowIndexes_;
};
