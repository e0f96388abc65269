// Area sections to *THICKNESS.
#include "frame/converter.h"

// Axisymmetric sections have no thickness line; their number stays free.
int CS2kConverter::ConvertAreaSections() {
  int ok = 1;
  sourceModel->AreaSection.Walk([&](int key, const S2kAreaSectionRow& row) {
    if (!ok || row.AreaType == "Asolid") return;
    TvtThicknessRec rec;
    rec.TYPE = "VALUE";
    rec.bSAME = "YES";
    if (row.Thickness != row.BendThick) {
      rec.bSAME = "NO";
      rec.THIK_OUT = row.BendThick;
    }
    rec.THIK_IN = row.Thickness;
    ok = targetModel->Thickness.SetAt(key, rec);
  });
  return ok;
}

int CS2kConverter::WriteThicknesses() {
  const auto& table = targetModel->Thickness;
  if (table.Empty()) return 1;
  if (elementFlags.AreaStiffModifiers) ShowMessage("IDS_S2KV8_AREA_Thik_Mod_Not_Confert");
  if (targetModel->AreaPropNotConverted) ShowMessage("IDS_S2KV8_AREA_Prop_Not_Convert");
  WriteText("%s\n", "*THICKNESS    ; Thickness");
  WriteText("; iTHK, TYPE, bSAME, THIK-IN, THIK-OUT                 ; TYPE=VALUE\n");
  table.Walk([&](int key, const TvtThicknessRec& rec) {
    WriteText("\t%d, %5s, %5s, %5g, %5g\n", key, rec.TYPE.c_str(), rec.bSAME.c_str(), rec.THIK_IN, rec.THIK_OUT);
  });
  WriteText("\n");
  return 1;
}
