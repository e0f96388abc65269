// Area sections to *THICKNESS.
#include "elements/elements.h"

#include "frame/converter.h"

// Axisymmetric sections have no thickness line; their number stays free.
int CElements::ConvertAreaSections() {
  int ok = 1;
  source_.AreaSection.Walk([&](int key, const S2kAreaSectionRow& row) {
    if (!ok || row.AreaType == "Asolid") return;
    TvtThicknessRec rec;
    rec.TYPE = "VALUE";
    rec.bSAME = "YES";
    if (row.Thickness != row.BendThick) {
      rec.bSAME = "NO";
      rec.THIK_OUT = row.BendThick;
    }
    rec.THIK_IN = row.Thickness;
    ok = target_.Thickness.SetAt(key, rec);
  });
  return ok;
}

int CElements::WriteThicknesses() {
  const auto& table = target_.Thickness;
  if (table.Empty()) return 1;
  if (flags_.AreaStiffModifiers) engine.ShowMessage("IDS_S2KV8_AREA_Thik_Mod_Not_Confert");
  if (target_.AreaPropNotConverted) engine.ShowMessage("IDS_S2KV8_AREA_Prop_Not_Convert");
  engine.WriteText("%s\n", "*THICKNESS    ; Thickness");
  engine.WriteText("; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE\n");
  table.Walk([&](int key, const TvtThicknessRec& rec) {
    engine.WriteText("\t%d, %5s, %5s, %5g, %5g\n", key, rec.TYPE.c_str(), rec.bSAME.c_str(), rec.THIK_IN, rec.THIK_OUT);
  });
  engine.WriteText("\n");
  return 1;
}
