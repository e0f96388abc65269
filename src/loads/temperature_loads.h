// CTemperatureLoads: temperatures of frames, areas and solids as element
// temperatures (*ELTEMPER), nodal temperatures (*NDTEMPER) and gradients
// (*THERGRAD), all as differences from the object's reference, in Celsius.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "frame/subject.h"
#include "loads/temperature_tables.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

class CTemperatureLoads : public CSubject {
 public:
  explicit CTemperatureLoads(CS2kConverter& engine);

  int ParseFrameTemperatures();      // 238
  int ParseAreaTemperatures();       // 117
  int ParseSolidTemperatures();      // 485
  int ParseFrameReferences();        // 249
  int ParseAreaReferences();         // 124
  int ParseSolidReferences();        // 491
  int ParseJointPatterns();          // 339
  int ParseJointPatternDefinitions();  // 340

  /// Mode 1 frames (conversion step 2), 2 areas (step 4), 3 solids (step 5).
  int ConvertTemperatureLoads(int Mode);
  /// The reference of object \p Name of \p Mode in Celsius; \p Temp left
  /// when it has none.
  void GetReferenceTemperature(const std::string& Name, int Mode, double& Temp) const;
  /// The value of \p Joint in \p Pattern; \p Value left when there is none.
  void GetJointPatternValue(const std::string& Joint, const std::string& Pattern, double& Value);
  /// The key a nodal temperature of \p Joint in \p LCNAME goes under; one
  /// that exists adds its temperature to \p record. An empty table leaves
  /// \p Key.
  void AddNodeTemperature(const std::string& Joint, const std::string& LCNAME, int& Key, TvtNdtemperRec& record);
  /// "t2=" and "t3=" of the frame's section; left when it has none.
  void GetFrameSectionDepths(const std::string& Frame, double& t2, double& t3);
  /// "Thickness=" of the area's section; left when it has none.
  void GetAreaThickness(const std::string& Area, double& Thickness);

  /// The blocks of \p loadCase.
  int WriteEltemper(const std::string& loadCase);
  int WriteNdtemper(const std::string& loadCase);
  int WriteThergrad(const std::string& loadCase);

 private:
  /// The joints of object \p name of \p Mode, in order; none for an unknown
  /// object, and a corner with no name is no joint.
  std::vector<std::string> JointsOf(int Mode, const std::string& name);

  CKeyedTable<S2kTemperatureRow> frameTemperatures_;            // 238
  CKeyedTable<S2kTemperatureRow> areaTemperatures_;             // 117
  CKeyedTable<S2kTemperatureRow> solidTemperatures_;            // 485
  CKeyedTable<S2kReferenceTemperatureRow> frameReferences_;     // 249
  CKeyedTable<S2kReferenceTemperatureRow> areaReferences_;      // 124
  CKeyedTable<S2kReferenceTemperatureRow> solidReferences_;     // 491
  CKeyedTable<S2kJointPatternRow> jointPatterns_;               // 339
  CKeyedTable<S2kJointPatternDefinitionRow> patternDefinitions_;  // 340
  CKeyedTable<TvtEltemperRec> eltempers_;                       // *ELTEMPER
  CKeyedTable<TvtNdtemperRec> ndtempers_;                       // *NDTEMPER
  CKeyedTable<TvtThergradRec> thergrads_;                       // *THERGRAD

  CNameIndex<S2kReferenceTemperatureRow> frameReferenceNames_{&S2kReferenceTemperatureRow::Name};
  CNameIndex<S2kReferenceTemperatureRow> areaReferenceNames_{&S2kReferenceTemperatureRow::Name};
  CNameIndex<S2kReferenceTemperatureRow> solidReferenceNames_{&S2kReferenceTemperatureRow::Name};
  /// Joint, a zero character and pattern, to the first value in walk order.
  std::unordered_map<std::string, double> patternValues_;
  int patternValuesCount_ = -1;
  /// Joint, a zero character and case, to the key of its nodal row.
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> nodeKeys_;
};
