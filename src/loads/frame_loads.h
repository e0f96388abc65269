// CFrameLoads: loads on frames (*BEAMLOAD): gravity worked out from the
// sections' weight, point loads and distributed loads.
#pragma once

#include <string>

#include "frame/subject.h"
#include "loads/frame_load_tables.h"
#include "s2k/keyed_table.h"

class CFrameLoads : public CSubject {
 public:
  explicit CFrameLoads(CS2kConverter& engine);

  int ParseAreaGravity();         // 113
  int ParseFrameDistributed();    // 235
  int ParseFrameGravity();        // 236
  int ParseFramePoint();          // 237
  int ParseSolidGravity();        // 482

  /// Phase 1 (conversion step 2): a uniform or tapered load per axis of each
  /// frame gravity row. Phase 2 (step 4): refuses area gravity, once.
  int ConvertFrameGravity(int Phase);
  /// Conversion step 2, after the frames. A zero length under an absolute
  /// distance ends the table there.
  int ConvertFramePointLoads();
  int ConvertFrameDistributedLoads();

  /// The length of \p Frame; for a frame that no row names, the length of
  /// the last row a walk meets. An empty table leaves \p Length.
  void GetFrameLength(const std::string& Frame, double& Length);
  /// The analysis section of \p Frame. \returns 0 when it has none.
  int GetFrameSection(const std::string& Frame, int Phase, std::string& Section);
  /// Unit weight times area of \p Section; of its two end sections when it
  /// is nonprismatic. Zero for a section or material that doesn't exist.
  void GetUnitWeightTimesArea(const std::string& Section, int Phase, int& bNonprismatic, double& WeightI,
                              double& WeightJ);

  /// The *BEAMLOAD block of \p loadCase, in the order of the keys.
  int WriteBeamload(const std::string& loadCase);

 private:
  /// Inserts under the next running number. \returns the insert's result.
  int AddBeamload(TvtBeamloadRec rec);
  /// How a row's distances become fractions of the length: 1 as they are,
  /// 2 over \p length, 0 not at all (an unknown word); -1 for an absolute
  /// distance on a zero length, which is flagged and ends the table.
  int DistanceForm(const std::string& DistType, const std::string& Frame, double& length);

  CKeyedTable<S2kAreaGravityRow> areaGravity_;           // 113
  CKeyedTable<S2kFrameDistributedRow> distributed_;      // 235
  CKeyedTable<S2kFrameGravityRow> gravity_;              // 236
  CKeyedTable<S2kFramePointRow> points_;                 // 237
  CKeyedTable<S2kSolidGravityRow> solidGravity_;         // 482
  CKeyedTable<TvtBeamloadRec> beamloads_;                // *BEAMLOAD
};
