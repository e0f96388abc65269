// CPrestressLoads: tendons of frames (*PRESTRESS, in the blocks of their
// case) and initial axial forces (*INIFORCE, a command of its own).
#pragma once

#include <string>

#include "frame/subject.h"
#include "loads/prestress_tables.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

class CPrestressLoads : public CSubject {
 public:
  explicit CPrestressLoads(CS2kConverter& engine);

  int ParseFramePDelta();       // 245
  int ParseFramePatterns();     // 246
  int ParseFrameMultipliers();  // 247

  /// Conversion step 2: a tendon per pattern row, in the case of its frame.
  int ConvertFramePrestress();
  /// Conversion step 2: an initial force per P-Delta row.
  int ConvertFrameInitialForces();
  /// The case and factor of the first multiplier row of \p Frame; both left
  /// as they were when there is none.
  void GetFrameTendonCase(const std::string& Frame, CText& LCNAME, double& Multiplier) const;

  /// The *PRESTRESS block of \p loadCase, in the order of the keys.
  int WritePrestress(const std::string& loadCase);
  /// Writer step 17: *INIFORCE.
  int WriteIniforce();

 private:
  CKeyedTable<S2kFramePDeltaRow> pDeltaForces_;       // 245
  CKeyedTable<S2kFramePatternsRow> tendons_;          // 246
  CKeyedTable<S2kFrameMultipliersRow> multipliers_;   // 247
  CKeyedTable<TvtPrestressRec> prestress_;            // *PRESTRESS
  CKeyedTable<TvtIniforceRec> initialForces_;         // *INIFORCE

  CNameIndex<S2kFrameMultipliersRow> multiplierFrames_{&S2kFrameMultipliersRow::Frame};
};
