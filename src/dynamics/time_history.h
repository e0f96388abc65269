// CTimeHistory: modal and direct history cases (*THLDCASE), their loads
// (*GROUND-ACC, *DYN-SLOAD) and the functions those loads use (*TFUNCTION).
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "dynamics/time_history_tables.h"
#include "frame/subject.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

/// iOUT of a direct nonlinear case: the whole part of \p outSteps divided by
/// the whole part of \p dtMax; 0 where the division has no whole result
/// (a divisor of 0, or the lowest whole number divided by -1).
int DirectOutputSteps(double outSteps, double dtMax);

class CTimeHistory : public CSubject {
 public:
  explicit CTimeHistory(CS2kConverter& engine);

  int ParseDirectHistory1();  // 173
  int ParseDirectHistory2();  // 174
  int ParseDirectHistory3();  // 175
  int ParseDirectHistory4();  // 176
  int ParseDirectHistory5();  // 177
  int ParseModalHistory1();   // 181
  int ParseModalHistory2();   // 182
  int ParseModalHistory4();   // 184
  int ParseModalHistory5();   // 185
  int ParseModalHistory6();   // 186
  int ParseFromFileFunctions();  // 283
  int ParseUserFunctions();      // 289

  /// The *THLDCASE records of history case \p Case: \p iATYPE 1 linear, 2
  /// nonlinear; \p iAMETHOD 1 modal, 2 direct. \returns 0 when the case
  /// table is empty.
  int ConvertHistoryCase(const std::string& Case, int iATYPE, int iAMETHOD, const std::string& initialCond);
  /// The functions and loads of a case. \returns 0 when a function has no
  /// points; the loads after it are then left out.
  int ConvertModalHistoryLoads(const std::string& Case);
  int ConvertDirectHistoryLoads(const std::string& Case);
  /// The points of function \p name: from the "from file" table when it has
  /// rows, else from the user table. \returns 0 when no row bears the name.
  int CollectFunctionPoints(const std::string& name, std::vector<double>& times, std::vector<double>& values);

  int WriteTfunctions();  // writer step 33
  int WriteThldcases();   // 34
  int WriteGroundAcc();   // 35
  int WriteDynSloads();   // 36

 private:
  int ConvertModalHistoryCase(const std::string& Case, int iATYPE, const std::string& initialCond);
  int ConvertDirectHistoryCase(const std::string& Case, int iATYPE, const std::string& initialCond);
  /// The fields every history case shares.
  void StartCase(TvtThldcaseRec& rec, const std::string& Case, double outSteps, double stepSize, int iATYPE,
                 int iAMETHOD, const std::string& initialCond) const;
  void FillModeDamping(const std::string& Case, TvtThldcaseRec& rec);
  /// \p mode "Direct", "Period" or "Frequency", from table 184 (modal) or
  /// 175 (direct).
  void FillProportionalDamping(const std::string& Case, const std::string& mode, bool direct, TvtThldcaseRec& rec);
  void FillNewmark(const std::string& Case, TvtThldcaseRec& rec);
  void FillNonlinearDirect(const std::string& Case, double outSteps, TvtThldcaseRec& rec);
  void FillNonlinearModal(const std::string& Case, double outSteps, TvtThldcaseRec& rec);
  int ConvertHistoryLoads(const CKeyedTable<S2kHistoryLoadRow>& table, const CNameIndex<S2kHistoryLoadRow>& cases,
                          const std::string& Case, bool modal);
  int InsertCase(TvtThldcaseRec&& rec);

  CKeyedTable<S2kDirectHistory1Row> direct1_;     // 173
  CKeyedTable<S2kHistoryLoadRow> directLoads_;    // 174
  CKeyedTable<S2kHistoryDampingRow> direct3_;     // 175
  CKeyedTable<S2kDirectHistory4Row> direct4_;     // 176
  CKeyedTable<S2kDirectHistory5Row> direct5_;     // 177
  CKeyedTable<S2kModalHistory1Row> modal1_;       // 181
  CKeyedTable<S2kHistoryLoadRow> modalLoads_;     // 182
  CKeyedTable<S2kHistoryDampingRow> modal4_;      // 184
  CKeyedTable<S2kModalHistory5Row> modal5_;       // 185
  CKeyedTable<S2kModalHistory6Row> modal6_;       // 186
  CKeyedTable<S2kHistoryFromFileRow> fromFile_;   // 283
  CKeyedTable<S2kHistoryUserRow> user_;           // 289

  CNameIndex<S2kDirectHistory1Row> direct1Cases_{&S2kDirectHistory1Row::Case};
  CNameIndex<S2kHistoryLoadRow> directLoadCases_{&S2kHistoryLoadRow::Case};
  CNameIndex<S2kHistoryDampingRow> direct3Cases_{&S2kHistoryDampingRow::Case};
  CNameIndex<S2kDirectHistory4Row> direct4Cases_{&S2kDirectHistory4Row::Case};
  CNameIndex<S2kDirectHistory5Row> direct5Cases_{&S2kDirectHistory5Row::Case};
  CNameIndex<S2kModalHistory1Row> modal1Cases_{&S2kModalHistory1Row::Case};
  CNameIndex<S2kHistoryLoadRow> modalLoadCases_{&S2kHistoryLoadRow::Case};
  CNameIndex<S2kHistoryDampingRow> modal4Cases_{&S2kHistoryDampingRow::Case};
  CNameIndex<S2kModalHistory5Row> modal5Cases_{&S2kModalHistory5Row::Case};
  CNameIndex<S2kModalHistory6Row> modal6Cases_{&S2kModalHistory6Row::Case};
  /// Keys of each function's points, in key order, for the table in use.
  std::unordered_map<std::string, std::vector<int>> functionKeys_;
  int functionKeysCount_ = -1;

  CKeyedTable<TvtThldcaseRec> cases_;        // *THLDCASE
  CKeyedTable<TvtTfunctionRec> functions_;   // *TFUNCTION
  CKeyedTable<TvtGroundAccRec> groundAcc_;   // *GROUND-ACC
  CKeyedTable<TvtDynSloadRec> dynSloads_;    // *DYN-SLOAD
  /// The *GROUND-ACC key of each case.
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> groundAccOf_;

  int historyDampingRefused_ = 0;
  int historyDataRefused_ = 0;
  int historyMethodRefused_ = 0;
  int historyFunctionRefused_ = 0;
};
