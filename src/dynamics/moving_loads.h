// CMovingLoads: lanes, vehicles, vehicle classes and moving load cases, to
// *LINELANE, *VEHICLE, *VCLASS, *MVLDCASE and *MOVE-CTRL.
#pragma once

#include <string>
#include <vector>

#include "dynamics/moving_load_tables.h"
#include "frame/subject.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

class CMovingLoads : public CSubject {
 public:
  explicit CMovingLoads(CS2kConverter& engine);

  int ParseLanes();             // 161
  int ParseVehicles();          // 162
  int ParseGeneralVehicles();   // 163
  int ParseVehicleAxles();      // 164
  int ParseVehicleClasses();    // 165
  int ParseResponse();          // 166
  int ParseCaseMovingLoad1();   // 187
  int ParseCaseMovingLoad2();   // 188
  int ParseCaseMovingLoad3();   // 189

  /// Conversion steps 10 to 14.
  int ConvertLanes();
  int ConvertStandardVehicles();
  int ConvertGeneralVehicles();
  int ConvertVehicleClasses();
  int ConvertMovingCases();
  /// The moving load control, from the analysis walk's "LinMoving" case.
  void ConvertMovingCase(const std::string& Case);

  /// Whether \p word names a standard vehicle of the target.
  static bool IsStandardVehicleWord(const std::string& word);
  /// Whether a vehicle class is named \p name.
  bool HasVehicleClass(const std::string& name) const;
  /// The scale of case \p Case with \p lanes loaded lanes; 0 for none.
  double LaneScale(const std::string& Case, int lanes) const;
  /// Appends the lanes of assignment \p number of case \p Case to \p list.
  void LanesOfAssignment(const std::string& Case, double number, std::vector<std::string>& list) const;

  /// Writer steps 22 to 25; the last writes *MOVE-CTRL behind *MVLDCASE.
  int WriteLanes();
  int WriteVehicles();
  int WriteVclasses();
  int WriteMvldcases();
  int WriteMoveCtrl();

 private:
  void AddNotConvertedVehicle(const std::string& name);

  CKeyedTable<S2kBridgeLaneRow> lanes_;                    // 161
  CKeyedTable<S2kBridgeVehicleRow> vehicles_;              // 162
  CKeyedTable<S2kBridgeGeneralVehicleRow> generalVehicles_;  // 163
  CKeyedTable<S2kBridgeVehicleAxleRow> axles_;             // 164
  CKeyedTable<S2kBridgeVehicleClassRow> classes_;          // 165
  CKeyedTable<S2kBridgeResponseRow> response_;             // 166
  CKeyedTable<S2kCaseMovingLoad1Row> movingCases_;         // 187
  CKeyedTable<S2kCaseMovingLoad2Row> caseLanes_;           // 188
  CKeyedTable<S2kCaseMovingLoad3Row> caseScales_;          // 189

  CKeyedTable<TvtLinelaneRec> linelanes_;   // *LINELANE
  CKeyedTable<TvtVehicleRec> tvtVehicles_;  // *VEHICLE
  CKeyedTable<TvtVclassRec> vclasses_;      // *VCLASS
  CKeyedTable<TvtMvldcaseRec> mvldcases_;   // *MVLDCASE
  TvtMoveCtrlRec moveCtrl_;                 // *MOVE-CTRL

  CNameIndex<TvtVclassRec> vclassNames_{&TvtVclassRec::NAME};
  CNameIndex<S2kCaseMovingLoad2Row> caseLaneNames_{&S2kCaseMovingLoad2Row::Case};
  CNameIndex<S2kCaseMovingLoad3Row> caseScaleNames_{&S2kCaseMovingLoad3Row::Case};

  /// Vehicles that could not be named, joined by ", ".
  std::string notConvertedVehicles_;
  int maxLoadedFlag_ = 0;
};
