// Link objects and link properties: linear links become general elastic
// links, the other kinds nonlinear links that name a nonlinear property.
#include "dynamics/links.h"

#include "elements/elements.h"
#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

using Dof = S2kLinkDofRow;

constexpr S2kField<S2kConnectivityLinkRow> kConnectivityKeys[] = {
    TextKey("Link=", &S2kConnectivityLinkRow::Link),
    TextKey("JointI=", &S2kConnectivityLinkRow::JointI),
    TextKey("JointJ=", &S2kConnectivityLinkRow::JointJ),
    NumberKey("Length=", &S2kConnectivityLinkRow::Length),
};

constexpr S2kField<S2kLinkSummaryRow> kSummaryKeys[] = {
    TextKey("Link=", &S2kLinkSummaryRow::Link),
    TextKey("LinkType=", &S2kLinkSummaryRow::LinkType),
    TextKey("LinkJoint=", &S2kLinkSummaryRow::LinkJoint),
    TextKey("LinkProp=", &S2kLinkSummaryRow::LinkProp),
    FlagKey("LocalAxes=", &S2kLinkSummaryRow::LocalAxes),
    FlagKey("GravLoads=", &S2kLinkSummaryRow::GravLoads),
    NumberKey("Length=", &S2kLinkSummaryRow::Length),
    NumberKey("CentroidX=", &S2kLinkSummaryRow::CentroidX),
    NumberKey("CentroidY=", &S2kLinkSummaryRow::CentroidY),
    NumberKey("CentroidZ=", &S2kLinkSummaryRow::CentroidZ),
};

constexpr S2kField<S2kLinkGravityRow> kGravityKeys[] = {
    TextKey("Link=", &S2kLinkGravityRow::Link),
    TextKey("LoadCase=", &S2kLinkGravityRow::LoadCase),
    TextKey("CoordSys=", &S2kLinkGravityRow::CoordSys),
    NumberKey("MultiplierX=", &S2kLinkGravityRow::MultiplierX),
    NumberKey("MultiplierY=", &S2kLinkGravityRow::MultiplierY),
    NumberKey("MultiplierZ=", &S2kLinkGravityRow::MultiplierZ),
};

constexpr S2kField<S2kLinkLocalAxes1Row> kLocalAxes1Keys[] = {
    TextKey("Link=", &S2kLinkLocalAxes1Row::Link),
    NumberKey("Angle=", &S2kLinkLocalAxes1Row::Angle),
    FlagKey("AdvanceAxes=", &S2kLinkLocalAxes1Row::AdvanceAxes),
};

constexpr S2kField<S2kLinkLocalAxes2Row> kLocalAxes2Keys[] = {
    TextKey("Link=", &S2kLinkLocalAxes2Row::Link),
    TextKey("LocalPlane=", &S2kLinkLocalAxes2Row::LocalPlane),
    TextKey("AxOption1=", &S2kLinkLocalAxes2Row::AxOption1),
    TextKey("AxCoordSys=", &S2kLinkLocalAxes2Row::AxCoordSys),
    TextKey("AxCoordDir=", &S2kLinkLocalAxes2Row::AxCoordDir),
    TextKey("AxVecJt1=", &S2kLinkLocalAxes2Row::AxVecJt1),
    TextKey("AxVecJt2=", &S2kLinkLocalAxes2Row::AxVecJt2),
    TextKey("PlOption1=", &S2kLinkLocalAxes2Row::PlOption1),
    TextKey("PlCoordSys=", &S2kLinkLocalAxes2Row::PlCoordSys),
    TextKey("CoordDir1=", &S2kLinkLocalAxes2Row::CoordDir1),
    TextKey("CoordDir2=", &S2kLinkLocalAxes2Row::CoordDir2),
    TextKey("PlVecJt1=", &S2kLinkLocalAxes2Row::PlVecJt1),
    TextKey("PlVecJt2=", &S2kLinkLocalAxes2Row::PlVecJt2),
    NumberKey("AxVecX=", &S2kLinkLocalAxes2Row::AxVecX),
    NumberKey("AxVecY=", &S2kLinkLocalAxes2Row::AxVecY),
    NumberKey("AxVecZ=", &S2kLinkLocalAxes2Row::AxVecZ),
    NumberKey("PlVecX=", &S2kLinkLocalAxes2Row::PlVecX),
    NumberKey("PlVecY=", &S2kLinkLocalAxes2Row::PlVecY),
    NumberKey("PlVecZ=", &S2kLinkLocalAxes2Row::PlVecZ),
};

constexpr S2kField<S2kLinkPropertyRow> kPropertyKeys[] = {
    TextKey("Link=", &S2kLinkPropertyRow::Link),
    TextKey("LinkType=", &S2kLinkPropertyRow::LinkType),
    NumberKey("Mass=", &S2kLinkPropertyRow::Mass),
    NumberKey("Weight=", &S2kLinkPropertyRow::Weight),
    NumberKey("RotInert1=", &S2kLinkPropertyRow::RotInert1),
    NumberKey("RotInert2=", &S2kLinkPropertyRow::RotInert2),
    NumberKey("RotInert3=", &S2kLinkPropertyRow::RotInert3),
    NumberKey("PDM2I=", &S2kLinkPropertyRow::PDM2I),
    NumberKey("PDM2J=", &S2kLinkPropertyRow::PDM2J),
    NumberKey("PDM3I=", &S2kLinkPropertyRow::PDM3I),
    NumberKey("PDM3J=", &S2kLinkPropertyRow::PDM3J),
    NumberKey("Color=", &S2kLinkPropertyRow::Color),
};

constexpr S2kField<S2kLinkLinearRow> kLinearKeys[] = {
    TextKey("Link=", &S2kLinkLinearRow::Link),
    TextKey("DOF=", &S2kLinkLinearRow::DOF),
    NumberKey("TransKE=", &S2kLinkLinearRow::TransKE),
    NumberKey("RotKE=", &S2kLinkLinearRow::RotKE),
    NumberKey("TransCE=", &S2kLinkLinearRow::TransCE),
    NumberKey("RotCE=", &S2kLinkLinearRow::RotCE),
    NumberKey("DJ=", &S2kLinkLinearRow::DJ),
};

// The keys every table of one degree of freedom starts with.
#define QM_LINK_DOF_KEYS                                                              \
  TextKey("Link=", &Dof::Link), TextKey("DOF=", &Dof::DOF), FlagKey("NonLinear=", &Dof::NonLinear), \
      NumberKey("TransKE=", &Dof::TransKE), NumberKey("RotKE=", &Dof::RotKE),           \
      NumberKey("TransCE=", &Dof::TransCE), NumberKey("RotCE=", &Dof::RotCE), NumberKey("DJ=", &Dof::DJ)

constexpr S2kField<Dof> kNonlinearKeys[] = {QM_LINK_DOF_KEYS};
constexpr S2kField<Dof> kDamperKeys[] = {
    QM_LINK_DOF_KEYS,           NumberKey("TransK=", &Dof::TransK), NumberKey("RotK=", &Dof::RotK),
    NumberKey("TransC=", &Dof::TransC), NumberKey("RotC=", &Dof::RotC), NumberKey("CExp=", &Dof::CExp),
};
constexpr S2kField<Dof> kGapKeys[] = {
    QM_LINK_DOF_KEYS, NumberKey("TransK=", &Dof::TransK), NumberKey("RotK=", &Dof::RotK),
    NumberKey("TransOpen=", &Dof::TransOpen), NumberKey("RotOpen=", &Dof::RotOpen),
};
constexpr S2kField<Dof> kRubberIsolatorKeys[] = {
    QM_LINK_DOF_KEYS, NumberKey("TransK=", &Dof::TransK), NumberKey("TransYield=", &Dof::TransYield),
    NumberKey("Ratio=", &Dof::Ratio),
};
// This table's rows are read for Link= once more in front.
constexpr S2kField<Dof> kFrictionIsolatorKeys[] = {
    TextKey("Link=", &Dof::Link), QM_LINK_DOF_KEYS, NumberKey("TransK=", &Dof::TransK),
    NumberKey("Slow=", &Dof::Slow), NumberKey("Fast=", &Dof::Fast), NumberKey("Rate=", &Dof::Rate),
    NumberKey("Radius=", &Dof::Radius),
};
constexpr S2kField<Dof> kWenKeys[] = {
    QM_LINK_DOF_KEYS,
    NumberKey("TransK=", &Dof::TransK),
    NumberKey("RotK=", &Dof::RotK),
    NumberKey("TransYield=", &Dof::TransYield),
    NumberKey("RotYield=", &Dof::RotYield),
    NumberKey("Ratio=", &Dof::Ratio),
    NumberKey("YieldExp=", &Dof::YieldExp),
};
constexpr S2kField<Dof> kMultiLinearKeys[] = {
    QM_LINK_DOF_KEYS,          TextKey("Point=", &Dof::Point),   NumberKey("Force=", &Dof::Force),
    NumberKey("Displ=", &Dof::Displ), NumberKey("Moment=", &Dof::Moment), NumberKey("Rotation=", &Dof::Rotation),
};
#undef QM_LINK_DOF_KEYS

constexpr S2kField<S2kLinkPropertySummaryRow> kPropertySummaryKeys[] = {
    TextKey("Link=", &S2kLinkPropertySummaryRow::Link),
    TextKey("LinkType=", &S2kLinkPropertySummaryRow::LinkType),
    TextKey("LinkJoint=", &S2kLinkPropertySummaryRow::LinkJoint),
    TextKey("LinkProp=", &S2kLinkPropertySummaryRow::LinkProp),
};

/// The slot of a degree of freedom, 1 to 6; the input's axes 2 and 3 are the
/// target's z and y. 0 for any other word.
int DofSlot(const std::string& dof) {
  static const char* const kSlots[] = {"U1", "U3", "U2", "R1", "R3", "R2"};
  for (int i = 0; i < 6; ++i)
    if (dof == kSlots[i]) return i + 1;
  return 0;
}

// What each kind carries of a nonlinear degree of freedom.
void DamperValues(const Dof& row, bool translation, TvtNlPropSlot& slot) {
  slot.DSTIFF = translation ? row.TransK : row.RotK;
  slot.DAMP = translation ? row.TransC : row.RotC;
  slot.EFFDAMP = translation ? row.TransCE : row.RotCE;
  slot.DEXP = row.CExp;
}

// The rotational slots open by the translational opening as well.
void GapValues(const Dof& row, bool translation, TvtNlPropSlot& slot) {
  slot.STIFF = translation ? row.TransK : row.RotK;
  slot.EFFDAMP = translation ? row.TransCE : row.RotCE;
  slot.OPEN = row.TransOpen;
}

void RubberIsolatorValues(const Dof& row, bool translation, TvtNlPropSlot& slot) {
  if (!translation) {
    slot.EFFDAMP = row.RotCE;
    return;
  }
  slot.STIFF = row.TransK;
  slot.EFFDAMP = row.TransCE;
  slot.YSTR = row.TransYield;
  slot.PYS_RATIO = row.Ratio;
}

void FrictionIsolatorValues(const Dof& row, bool translation, TvtNlPropSlot& slot) {
  if (!translation) {
    slot.EFFDAMP = row.RotCE;
    return;
  }
  slot.STIFF = row.TransK;
  slot.EFFDAMP = row.TransCE;
  slot.FCS = row.Slow;
  slot.FCF = row.Fast;
  slot.RP = row.Rate;
  slot.RADIUS = row.Radius;
}

void WenValues(const Dof& row, bool translation, TvtNlPropSlot& slot) {
  slot.STIFF = translation ? row.TransK : row.RotK;
  slot.EFFDAMP = translation ? row.TransCE : row.RotCE;
  slot.YSTR = translation ? row.TransYield : row.RotYield;
  slot.PYS_RATIO = row.Ratio;
  slot.YEXP = row.YieldExp;
}

}  // namespace

const std::vector<S2kTableParser>& LinkTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {203, RunStep<&CLinks::ParseConnectivityLink>},
      {351, RunStep<&CLinks::ParseLinkGravity>},
      {352, RunStep<&CLinks::ParseLinkLocalAxes1>},
      {353, RunStep<&CLinks::ParseLinkLocalAxes2>},
      {354, RunStep<&CLinks::ParseLinkProperty>},
      {355, RunStep<&CLinks::ParseLinkLinear>},
      {356, RunStep<&CLinks::ParseLinkNonlinear>},
      {357, RunStep<&CLinks::ParseLinkDamper>},
      {358, RunStep<&CLinks::ParseLinkGap>},
      {359, RunStep<&CLinks::ParseLinkHook>},
      {360, RunStep<&CLinks::ParseLinkRubberIsolator>},
      {361, RunStep<&CLinks::ParseLinkFrictionIsolator>},
      {362, RunStep<&CLinks::ParseLinkWen>},
      {363, RunStep<&CLinks::ParseLinkMultiLinear>},
      {364, RunStep<&CLinks::ParseLinkPropertySummary>},
      {504, RunStep<&CLinks::ParseLinkSummary>},
  };
  return parsers;
}

CLinks::CLinks(CS2kConverter& engine) : CSubject(engine) {
  connectivity_.Reset(10001);
  summary_.Reset(10001);
  elasticLinks_.Reset(10001);
  nlLinks_.Reset(10001);
  nlProps_.Reset(10001);
}

int CLinks::ParseConnectivityLink() { return engine.ParseRows(kConnectivityKeys, connectivity_); }
int CLinks::ParseLinkSummary() { return engine.ParseRows(kSummaryKeys, summary_); }
int CLinks::ParseLinkGravity() { return engine.ParseRows(kGravityKeys, gravity_); }
int CLinks::ParseLinkLocalAxes1() { return engine.ParseRows(kLocalAxes1Keys, localAxes1_); }
int CLinks::ParseLinkLocalAxes2() { return engine.ParseRows(kLocalAxes2Keys, localAxes2_); }
int CLinks::ParseLinkProperty() { return engine.ParseRows(kPropertyKeys, properties_); }
int CLinks::ParseLinkLinear() { return engine.ParseRows(kLinearKeys, linear_); }
int CLinks::ParseLinkNonlinear() { return engine.ParseRows(kNonlinearKeys, nonlinear_); }
int CLinks::ParseLinkDamper() { return engine.ParseRows(kDamperKeys, damper_); }
int CLinks::ParseLinkGap() { return engine.ParseRows(kGapKeys, gap_); }
int CLinks::ParseLinkHook() { return engine.ParseRows(kGapKeys, hook_); }
int CLinks::ParseLinkRubberIsolator() { return engine.ParseRows(kRubberIsolatorKeys, rubberIsolator_); }
int CLinks::ParseLinkFrictionIsolator() { return engine.ParseRows(kFrictionIsolatorKeys, frictionIsolator_); }
int CLinks::ParseLinkWen() { return engine.ParseRows(kWenKeys, wen_); }
int CLinks::ParseLinkMultiLinear() { return engine.ParseRows(kMultiLinearKeys, multiLinear_); }
int CLinks::ParseLinkPropertySummary() { return engine.ParseRows(kPropertySummaryKeys, propertySummary_); }

// Without the summary table nothing of links is converted, whatever the other
// link tables hold.
int CLinks::ConvertLinks() {
  if (summary_.Empty()) return 1;
  int ok = 1;
  summary_.Walk([&](int, const S2kLinkSummaryRow& row) {
    if (ok) ok = ConvertLinkObject(row);
  });
  if (!ok) return 0;
  return ConvertLinkProperties();
}

int CLinks::ConvertLinkObject(const S2kLinkSummaryRow& row) {
  if (row.LinkJoint == "SingleJoint") {
    singleJointLinkSeen_ = 1;
    return 1;
  }
  if (row.LinkType == "Linear") return ConvertLinearLink(row.Link, row.LinkProp, row.LocalAxes);
  if (row.LinkType == "MultiLinear" || row.LinkType == "Plastic (Kinematic)") return 1;
  return ConvertNonlinearLink(row.Link, row.LinkProp, row.LocalAxes);
}

const S2kConnectivityLinkRow* CLinks::LinkJoints(const std::string& name) const {
  if (const S2kConnectivityLinkRow* row = connectivityNames_.Find(connectivity_, name)) return row;
  return connectivity_.Lookup(connectivityNames_.LastWalked(connectivity_));
}

int CLinks::ConvertLinearLink(const std::string& name, const std::string& prop, int hasLocalAxes) {
  const S2kConnectivityLinkRow* joints = LinkJoints(name);
  if (!joints) return 1;
  TvtElasticlinkRec rec;
  rec.LinkName = name;
  rec.iNODE1 = joints->JointI;
  rec.iNODE2 = joints->JointJ;
  rec.LINK = "GEN";
  if (hasLocalAxes) rec.ANGLE = FindLinkAngle(name);
  if (const auto* hit = linearNames_.Hits(linear_, prop)) {
    for (int key : hit->keys) {
      const S2kLinkLinearRow& row = *linear_.Lookup(key);
      // The damping values are not carried over.
      if (row.DOF == "U1") {
        rec.SDx = row.TransKE;
      } else if (row.DOF == "U2") {
        rec.SDz = row.TransKE;
        if (row.DJ > 0.0) {
          rec.bSHEAR = "YES";
          rec.DRz = row.DJ;
        }
      } else if (row.DOF == "U3") {
        rec.SDy = row.TransKE;
        if (row.DJ > 0.0) {
          rec.bSHEAR = "YES";
          rec.DRy = row.DJ;
        }
      } else if (row.DOF == "R1") {
        rec.SRx = row.RotKE;
      } else if (row.DOF == "R2") {
        rec.SRz = row.RotKE;
      } else if (row.DOF == "R3") {
        rec.SRy = row.RotKE;
      }
    }
  }
  return elasticLinks_.SetAt(elasticLinks_.Count() + 1, std::move(rec));
}

// The property's kind is not looked at here.
int CLinks::ConvertNonlinearLink(const std::string& name, const std::string& prop, int hasLocalAxes) {
  const S2kConnectivityLinkRow* joints = LinkJoints(name);
  if (!joints) return 1;
  TvtNlLinkRec rec;
  rec.LinkName = name;
  rec.iNODE1 = joints->JointI;
  rec.iNODE2 = joints->JointJ;
  rec.PROP = prop;
  if (hasLocalAxes) rec.ANGLE = FindLinkAngle(name);
  return nlLinks_.SetAt(nlLinks_.Count() + 1, std::move(rec));
}

double CLinks::FindLinkAngle(const std::string& name) {
  const S2kLinkLocalAxes1Row* row = angleNames_.Find(localAxes1_, name);
  if (!row) return 0;
  double angle = row->Angle;
  if (!row->AdvanceAxes) return angle;
  if (const S2kLinkLocalAxes2Row* axes = advancedAxesNames_.Find(localAxes2_, name)) {
    // The frames' rule, word for word.
    S2kFrameLocalAxes2Row plane{axes->Link,      axes->LocalPlane, axes->PlOption1, axes->PlCoordSys,
                                axes->CoordDir1, axes->CoordDir2,  axes->PlVecJt1,  axes->PlVecJt2,
                                axes->PlVecX,    axes->PlVecY,     axes->PlVecZ};
    engine.Get<CElements>().AdjustAngleForAxesRow(plane, angle);
  }
  return angle;
}

// A property is written whether or not a link uses it. Mass= and the other
// numbers of the row are not carried over.
int CLinks::ConvertLinkProperties() {
  if (properties_.Empty()) return 1;
  int count = 0;
  int ok = 1;
  properties_.Walk([&](int, const S2kLinkPropertyRow& row) {
    if (!ok) return;
    TvtNlPropRec rec;
    const std::string& type = row.LinkType;
    if (type == "Linear" || type == "MultiLinear") return;
    if (type == "Damper") {
      FillDamperProp(row.Link, rec);
      rec.TYPE = "VD";
      rec.bRIGDBR = "YES";
    } else if (type == "Gap") {
      FillGapProp(row.Link, rec);
      rec.TYPE = "GAP";
    } else if (type == "Hook") {
      FillHookProp(row.Link, rec);
      rec.TYPE = "HOOK";
    } else if (type == "Rubber Isolator") {
      FillRubberIsolatorProp(row.Link, rec);
      rec.TYPE = "LRBI";
    } else if (type == "Friction Isolator") {
      FillFrictionIsolatorProp(row.Link, rec);
      rec.TYPE = "FPSI";
    } else if (type == "Plastic (Wen)") {
      FillWenProp(row.Link, rec);
      rec.TYPE = "HS";
    } else if (type == "Plastic (Kinematic)") {
      return;
    }
    // A kind no filler knows keeps its NAME and TYPE empty.
    rec.TW = row.Weight;
    ok = nlProps_.SetAt(++count, std::move(rec));
  });
  return ok;
}

void CLinks::FillNonlinearProp(const std::string& name, const CKeyedTable<S2kLinkDofRow>& table,
                               const CNameIndex<S2kLinkDofRow>& index, FillSlot fill, TvtNlPropRec& rec) {
  rec.NAME = name;
  const auto* hit = index.Hits(table, name);
  if (!hit) return;
  for (int key : hit->keys) {
    const S2kLinkDofRow& row = *table.Lookup(key);
    const int i = DofSlot(row.DOF);
    if (i == 0) continue;
    const bool translation = i <= 3;
    TvtNlPropSlot& slot = rec.slot[i - 1];
    slot.bLD = "YES";
    slot.STIF = translation ? row.TransKE : row.RotKE;
    if (row.NonLinear) {
      slot.bND = "YES";
      fill(row, translation, slot);
    }
    // Crossed against the linear links: "U3" writes DZ, "U2" writes DY.
    if ((i == 2 || i == 3) && row.DJ > engine.ZeroTolerance) {
      rec.bSSL = "YES";
      (i == 2 ? rec.DZ : rec.DY) = row.DJ > 1.0 ? 1.0 : row.DJ;
    }
  }
}

void CLinks::FillDamperProp(const std::string& name, TvtNlPropRec& rec) {
  FillNonlinearProp(name, damper_, damperNames_, DamperValues, rec);
}
void CLinks::FillGapProp(const std::string& name, TvtNlPropRec& rec) {
  FillNonlinearProp(name, gap_, gapNames_, GapValues, rec);
}
void CLinks::FillHookProp(const std::string& name, TvtNlPropRec& rec) {
  FillNonlinearProp(name, hook_, hookNames_, GapValues, rec);
}
void CLinks::FillRubberIsolatorProp(const std::string& name, TvtNlPropRec& rec) {
  FillNonlinearProp(name, rubberIsolator_, rubberIsolatorNames_, RubberIsolatorValues, rec);
}
void CLinks::FillFrictionIsolatorProp(const std::string& name, TvtNlPropRec& rec) {
  FillNonlinearProp(name, frictionIsolator_, frictionIsolatorNames_, FrictionIsolatorValues, rec);
}
void CLinks::FillWenProp(const std::string& name, TvtNlPropRec& rec) {
  FillNonlinearProp(name, wen_, wenNames_, WenValues, rec);
}
