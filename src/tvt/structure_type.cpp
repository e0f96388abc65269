// *STRUCTYPE: the active degrees of freedom (table 101) and the record.
#include "tvt/structure_type.h"

#include "dynamics/analysis_controls.h"
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kActiveDofRec> kActiveDofKeys[] = {
    FlagKey("UX=", &S2kActiveDofRec::UX), FlagKey("UY=", &S2kActiveDofRec::UY),
    FlagKey("UZ=", &S2kActiveDofRec::UZ), FlagKey("RX=", &S2kActiveDofRec::RX),
    FlagKey("RY=", &S2kActiveDofRec::RY), FlagKey("RZ=", &S2kActiveDofRec::RZ),
};

}  // namespace

const std::vector<S2kTableParser>& FrameTableParsers() {
  static const std::vector<S2kTableParser> parsers = {{101, RunStep<&CStructureType::ParseActiveDof>}};
  return parsers;
}

// The first row only; a key it lacks keeps the default of the table.
int CStructureType::ParseActiveDof() {
  S2kActiveDofRec dof{1, 0, 1, 0, 1, 0};
  if (!engine.TableRows().empty()) ReadFields(engine.TableRows()[0], kActiveDofKeys, dof);
  activeDof_ = dof;
  return 1;
}

int CStructureType::ConvertStructType() {
  const S2kActiveDofRec& dof = activeDof_;
  TvtStructTypeRec& rec = structType_;
  if (dof.UX && dof.UY && dof.UZ)
    rec.iSTYP = 0;
  else if (!dof.UX && dof.UY && dof.UZ)
    rec.iSTYP = 2;
  else if (dof.UX && !dof.UY && dof.UZ)
    rec.iSTYP = 1;
  else if (dof.UX && dof.UY && !dof.UZ)
    rec.iSTYP = 3;
  else
    rec.iSTYP = 0;
  // Masses from elements: by the structure type.
  static constexpr int kMassKinds[] = {1, 3, 3, 2};
  rec.iSMAS = engine.Get<CAnalysisControls>().MassFromElements() ? kMassKinds[rec.iSTYP] : 0;
  rec.GRAV = engine.Get<CGeometry>().GravityInModelUnits();
  rec.TEMPER = 0;
  rec.bALIGNBEAM = "NO";
  rec.bALIGNSLAB = "NO";
  rec.present = 1;
  return 1;
}

int CStructureType::WriteStructType() {
  const TvtStructTypeRec& rec = structType_;
  if (!rec.present) return 1;
  engine.WriteText("%s\n", "*STRUCTYPE    ; Structure Type");
  engine.WriteText("; iSTYP, iSMAS, GRAV, TEMPER, bALIGNBEAM, bALIGNSLAB\n");
  engine.WriteText("\t%d, %5d, %5g, %5g, %5s, %5s\n\n", rec.iSTYP, rec.iSMAS, rec.GRAV, rec.TEMPER, rec.bALIGNBEAM.c_str(),
            rec.bALIGNSLAB.c_str());
  return 1;
}
