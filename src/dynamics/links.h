// CLinks: link objects and their properties, to *ELASTICLINK, *NL-PROP and
// *NL-LINK.
#pragma once

#include <string>

#include "dynamics/link_tables.h"
#include "frame/subject.h"
#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

class CLinks : public CSubject {
 public:
  explicit CLinks(CS2kConverter& engine);

  int ParseConnectivityLink();  // 203
  int ParseLinkSummary();       // 504
  int ParseLinkGravity();       // 351
  int ParseLinkLocalAxes1();    // 352
  int ParseLinkLocalAxes2();    // 353
  int ParseLinkProperty();      // 354
  int ParseLinkLinear();        // 355
  int ParseLinkNonlinear();     // 356
  int ParseLinkDamper();        // 357
  int ParseLinkGap();           // 358
  int ParseLinkHook();          // 359
  int ParseLinkRubberIsolator();    // 360
  int ParseLinkFrictionIsolator();  // 361
  int ParseLinkWen();           // 362
  int ParseLinkMultiLinear();   // 363
  int ParseLinkPropertySummary();  // 364

  /// Conversion step 3: each link object, then the properties.
  int ConvertLinks();
  /// One row of the link summary. \returns 0 when an insert fails.
  int ConvertLinkObject(const S2kLinkSummaryRow& row);
  int ConvertLinearLink(const std::string& name, const std::string& prop, int hasLocalAxes);
  int ConvertNonlinearLink(const std::string& name, const std::string& prop, int hasLocalAxes);
  /// The angle of link \p name's local axes; 0 when it has none.
  double FindLinkAngle(const std::string& name);
  /// Every property of table 354 but the linear and multi-linear ones.
  int ConvertLinkProperties();

  void FillDamperProp(const std::string& name, TvtNlPropRec& rec);
  void FillGapProp(const std::string& name, TvtNlPropRec& rec);
  void FillHookProp(const std::string& name, TvtNlPropRec& rec);
  void FillRubberIsolatorProp(const std::string& name, TvtNlPropRec& rec);
  void FillFrictionIsolatorProp(const std::string& name, TvtNlPropRec& rec);
  void FillWenProp(const std::string& name, TvtNlPropRec& rec);

  /// Writer steps 18, 19 and 20.
  int WriteElasticLinks();
  int WriteNlProps();
  int WriteNlLinks();

 private:
  /// Which values of a row a kind carries; \p translation for slots 1 to 3.
  using FillSlot = void (*)(const S2kLinkDofRow& row, bool translation, TvtNlPropSlot& slot);
  void FillNonlinearProp(const std::string& name, const CKeyedTable<S2kLinkDofRow>& table,
                         const CNameIndex<S2kLinkDofRow>& index, FillSlot fill, TvtNlPropRec& rec);
  /// The row of table 203 a link takes its joints from: its own, or the last
  /// walked when none is its own. nullptr for an empty table.
  const S2kConnectivityLinkRow* LinkJoints(const std::string& name) const;

  CKeyedTable<S2kConnectivityLinkRow> connectivity_;  // 203
  CKeyedTable<S2kLinkSummaryRow> summary_;            // 504
  CKeyedTable<S2kLinkGravityRow> gravity_;            // 351
  CKeyedTable<S2kLinkLocalAxes1Row> localAxes1_;      // 352
  CKeyedTable<S2kLinkLocalAxes2Row> localAxes2_;      // 353
  CKeyedTable<S2kLinkPropertyRow> properties_;        // 354
  CKeyedTable<S2kLinkLinearRow> linear_;              // 355
  CKeyedTable<S2kLinkDofRow> nonlinear_;              // 356
  CKeyedTable<S2kLinkDofRow> damper_;                 // 357
  CKeyedTable<S2kLinkDofRow> gap_;                    // 358
  CKeyedTable<S2kLinkDofRow> hook_;                   // 359
  CKeyedTable<S2kLinkDofRow> rubberIsolator_;         // 360
  CKeyedTable<S2kLinkDofRow> frictionIsolator_;       // 361
  CKeyedTable<S2kLinkDofRow> wen_;                    // 362
  CKeyedTable<S2kLinkDofRow> multiLinear_;            // 363
  CKeyedTable<S2kLinkPropertySummaryRow> propertySummary_;  // 364

  CKeyedTable<TvtElasticlinkRec> elasticLinks_;  // *ELASTICLINK
  CKeyedTable<TvtNlLinkRec> nlLinks_;            // *NL-LINK
  CKeyedTable<TvtNlPropRec> nlProps_;            // *NL-PROP

  CNameIndex<S2kConnectivityLinkRow> connectivityNames_{&S2kConnectivityLinkRow::Link};
  CNameIndex<S2kLinkLocalAxes1Row> angleNames_{&S2kLinkLocalAxes1Row::Link};
  CNameIndex<S2kLinkLocalAxes2Row> advancedAxesNames_{&S2kLinkLocalAxes2Row::Link};
  CNameIndex<S2kLinkLinearRow> linearNames_{&S2kLinkLinearRow::Link};
  CNameIndex<S2kLinkDofRow> damperNames_{&S2kLinkDofRow::Link};
  CNameIndex<S2kLinkDofRow> gapNames_{&S2kLinkDofRow::Link};
  CNameIndex<S2kLinkDofRow> hookNames_{&S2kLinkDofRow::Link};
  CNameIndex<S2kLinkDofRow> rubberIsolatorNames_{&S2kLinkDofRow::Link};
  CNameIndex<S2kLinkDofRow> frictionIsolatorNames_{&S2kLinkDofRow::Link};
  CNameIndex<S2kLinkDofRow> wenNames_{&S2kLinkDofRow::Link};

  int singleJointLinkSeen_ = 0;
  // Never set: multi-linear and kinematic links go without a word.
  int multiLinearLinkSeen_ = 0;
  int kinematicLinkSeen_ = 0;
};
