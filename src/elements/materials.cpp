// Materials (tables 381, 382) to *MATERIAL.
#include "elements/properties.h"

#include "frame/converter.h"
#include "geometry/geometry.h"
#include "s2k/keys.h"

CProperties::CProperties(CS2kConverter& engine) : CSubject(engine) {
  source_.Reset();
  target_.Reset();
}

int CProperties::FindMaterialNumber(std::string_view name, int& number) const {
  const CKeyedTable<S2kMaterial1Row>& table = source_.Material1;
  if (table.Empty()) return 0;
  if (const int key = materialNames_.FindKey(table, name)) {
    number = key;
    return 1;
  }
  // The walk ran to its end without a match.
  number = materialNames_.LastWalked(table);
  return 0;
}

int CProperties::ConvertOrthotropicMaterial(const std::string& name, const std::string& type, double density,
                                              int key) {
  const CKeyedTable<S2kMaterial2Row>& table = source_.Material2;
  if (table.Empty()) return 0;
  const S2kMaterial2Row* found = orthotropicNames_.Find(table, name);
  if (!found) return 0;
  const S2kMaterial2Row& row = *found;
  // The target's y and z are the source's 3 and 2, in every family.
  TvtMaterialRec rec;
  rec.kind = 2;
  rec.TYPE = type;
  rec.MNAME = row.Material;
  rec.DEN = density;
  rec.Ex = row.E1;
  rec.Ey = row.E3;
  rec.Ez = row.E2;
  rec.Tx = row.A1;
  rec.Ty = row.A3;
  rec.Tz = row.A2;
  rec.Sxy = row.G13;
  rec.Sxz = row.G12;
  rec.Syz = row.G23;
  rec.Pxy = row.U13;
  rec.Pxz = row.U12;
  rec.Pyz = row.U23;
  return target_.Materials.SetAt(key, rec);
}

int CProperties::ConvertMaterials() {
  const CKeyedTable<S2kMaterial1Row>& table = source_.Material1;
  if (table.Empty()) return 1;
  std::string temperatureUnit = engine.Get<CGeometry>().TemperatureUnit();
  UpperCase(temperatureUnit);
  int ok = 1;
  table.Walk([&](int key, const S2kMaterial1Row& row) {
    if (!ok) return;
    TvtMaterialRec rec;
    if (row.DesignType == "Concrete")
      rec.TYPE = "CONC";
    else if (row.DesignType == "Steel")
      rec.TYPE = "STEEL";
    rec.DEN = row.UnitWeight;
    if (row.Type == "Isotropic") {
      rec.MNAME = row.Material;
      rec.ELAST = row.E;
      rec.POISN = row.U;
      if (temperatureUnit == "C")
        rec.THERMAL = row.A;
      else if (temperatureUnit == "F")
        rec.THERMAL = row.A * 9.0 / 5.0;
      ok = target_.Materials.SetAt(key, rec);
      return;
    }
    ConvertOrthotropicMaterial(row.Material, rec.TYPE, rec.DEN, key);
    if (row.Type == "Anisotropic") flags_.MaterialAnisotropic = 1;
  });
  return ok;
}

int CProperties::WriteMaterials() {
  const CKeyedTable<TvtMaterialRec>& table = target_.Materials;
  if (table.Empty()) return 1;
  if (flags_.MaterialAnisotropic) engine.ShowMessage("IDS_S2KV8_MATL_ANIS_Not_Convert");
  engine.WriteText("%s\n", "*MATERIAL    ; Material\n");
  engine.WriteText("; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA1]               ; STEEL, CONC, USER\n");
  engine.WriteText("; iMAT, TYPE, MNAME, SPHEAT, HEATCO, [DATA2], [DATA2]      ; SRC\n");
  engine.WriteText("; [DATA1] : 1, DB, NAME\n");
  engine.WriteText("; [DATA1] : 2, ELAST, POISN, THERMAL, DEN\n");
  engine.WriteText("; [DATA1] : 3, Ex, Ey, Ez, Tx, Ty, Tz, Sxy, Sxz, Syz, Pxy, Pxz, Pyz, DEN  ; Orthotropic\n");
  engine.WriteText("; [DATA2] : 1, DB, NAME or 2, ELAST, POISN, THERMAL, DEN\n");
  table.Walk([&](int iMAT, const TvtMaterialRec& rec) {
    if (rec.kind == 1) {
      engine.WriteText("\t%d, %5s, %5s, %5g, %5g, 2, %5g, %5g, %5g, %5g\n", iMAT, rec.TYPE.c_str(), rec.MNAME.c_str(),
                rec.SPHEAT, rec.HEATCO, rec.ELAST, rec.POISN, rec.THERMAL, rec.DEN);
    } else {
      engine.WriteText(
          "\t%d, %5s, %5s, %5g, %5g, 3, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g\n", iMAT,
          rec.TYPE.c_str(), rec.MNAME.c_str(), rec.SPHEAT, rec.HEATCO, rec.Ex, rec.Ey, rec.Ez, rec.Tx, rec.Ty,
          rec.Tz, rec.Sxy, rec.Sxz, rec.Syz, rec.Pxy, rec.Pxz, rec.Pyz, rec.DEN);
    }
  });
  engine.WriteText("\n");
  return 1;
}

int CProperties::FindElementMaterial(std::string_view name, int& number) const {
  return source_.Material1.Empty() || FindMaterialNumber(name, number);
}
