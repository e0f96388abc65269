// Material numbers by name, the temperature unit of THERMAL, the orthotropic axes.
#include <gtest/gtest.h>

#include <random>

#include "frame/converter.h"
#include "recording_ui.h"
#include "subject_access.h"

namespace {

S2kMaterial1Row Material(const std::string& name, const std::string& type = "Isotropic") {
  S2kMaterial1Row row;
  row.Material = name;
  row.Type = type;
  return row;
}

// The lookup as a plain walk that stops at the first match.
int WalkForMaterial(const CKeyedTable<S2kMaterial1Row>& table, const std::string& name, int number) {
  bool found = false;
  table.Walk([&](int key, const S2kMaterial1Row& row) {
    if (found) return;
    number = key;
    found = row.Material == name;
  });
  return number;
}

TEST(FindMaterialNumber, FoundNotFoundAndEmpty) {
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  engine.ResetConversion();
  int number = 1;
  EXPECT_EQ(0, engine.Get<CProperties>().FindMaterialNumber("STEEL", number));
  EXPECT_EQ(1, number) << "an empty table leaves the number";

  // 20 rows in 17 buckets walk 15..1, then 20..16.
  CKeyedTable<S2kMaterial1Row>& table = SourceOf<CProperties>(engine).Material1;
  for (int key = 1; key <= 20; ++key) table.SetAt(key, Material("M" + std::to_string(key)));
  table.SetAt(2, Material("TWIN"));
  table.SetAt(5, Material("TWIN"));
  table.SetAt(3, Material("LATE"));
  table.SetAt(18, Material("LATE"));

  struct Case {
    std::string name;
    int found, want;
  };
  for (const Case& c : {Case{"M1", 1, 1}, Case{"M20", 1, 20}, Case{"TWIN", 1, 5}, Case{"LATE", 1, 3},
                        Case{"steel", 0, 16}, Case{"m1", 0, 16}, Case{"", 0, 16}}) {
    number = -7;
    EXPECT_EQ(c.found, engine.Get<CProperties>().FindMaterialNumber(c.name, number)) << c.name;
    EXPECT_EQ(c.want, number) << c.name;
  }
}

TEST(FindMaterialNumber, AgreesWithTheWalkOnLargeTables) {
  // Past key 271 the 17 buckets wrap, so key 272 and up walk first.
  std::mt19937 random(7);
  for (int rows : {1, 16, 17, 271, 272, 300, 1000}) {
    RecordingUserInterface ui;
    CS2kConverter engine(ui);
    engine.ResetConversion();
    for (int key = 1; key <= rows; ++key)
      SourceOf<CProperties>(engine).Material1.SetAt(key, Material("N" + std::to_string(random() % (rows / 3 + 1))));
    for (int probe = 0; probe < 60; ++probe) {
      const std::string name = "N" + std::to_string(probe);
      int number = 1;
      engine.Get<CProperties>().FindMaterialNumber(name, number);
      EXPECT_EQ(WalkForMaterial(SourceOf<CProperties>(engine).Material1, name, 1), number) << rows << " " << name;
    }
  }
}

TEST(ConvertMaterials, ThermalFollowsTheTemperatureUnit) {
  struct Case {
    std::string unit;
    double a, want;
  };
  for (const Case& c : {Case{"C", 1.2, 1.2}, Case{"c", 1.2, 1.2}, Case{"F", 1.2, 1.2 * 9.0 / 5.0},
                        Case{"f", 5, 9}, Case{"K", 1.2, 0}, Case{"", 1.2, 0}, Case{"CF", 1.2, 0}}) {
    RecordingUserInterface ui;
    CS2kConverter engine(ui);
    engine.ResetConversion();
    SourceOf<CGeometry>(engine).TemperatureUnit = c.unit;
    S2kMaterial1Row row = Material("STEEL");
    row.DesignType = "Steel";
    row.A = c.a;
    SourceOf<CProperties>(engine).Material1.SetAt(1, row);
    ASSERT_EQ(1, engine.Get<CProperties>().ConvertMaterials());
    const TvtMaterialRec* rec = TargetOf<CProperties>(engine).Materials.Lookup(1);
    ASSERT_NE(nullptr, rec) << c.unit;
    EXPECT_EQ(c.want, rec->THERMAL) << c.unit;
    EXPECT_EQ("STEEL", rec->TYPE);
  }
}

TEST(ConvertMaterials, OrthotropicPathSwapsTheSecondAndThirdAxes) {
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  engine.ResetConversion();
  SourceOf<CGeometry>(engine).TemperatureUnit = "F";
  S2kMaterial1Row material = Material("ORTHO", "Orthotropic");
  material.DesignType = "Concrete";
  material.UnitWeight = 24;
  SourceOf<CProperties>(engine).Material1.SetAt(1, material);
  SourceOf<CProperties>(engine).Material1.SetAt(2, Material("LOST", "Anisotropic"));
  S2kMaterial2Row axes;
  axes.Material = "ORTHO";
  axes.E1 = 1, axes.E2 = 5, axes.E3 = 7;
  axes.G12 = 12, axes.G13 = 13, axes.G23 = 23;
  axes.U12 = 0.12, axes.U13 = 0.13, axes.U23 = 0.23;
  axes.A1 = 1, axes.A2 = 2, axes.A3 = 3;
  SourceOf<CProperties>(engine).Material2.SetAt(1, axes);

  ASSERT_EQ(1, engine.Get<CProperties>().ConvertMaterials());
  EXPECT_EQ(1, SubjectAccess::Flags<CProperties>(engine).MaterialAnisotropic);
  EXPECT_EQ(nullptr, TargetOf<CProperties>(engine).Materials.Lookup(2)) << "no row in table 382";
  const TvtMaterialRec* rec = TargetOf<CProperties>(engine).Materials.Lookup(1);
  ASSERT_NE(nullptr, rec);
  EXPECT_EQ(2, rec->kind);
  EXPECT_EQ("CONC", rec->TYPE);
  EXPECT_EQ("ORTHO", rec->MNAME);
  EXPECT_EQ(24, rec->DEN);
  const double got[] = {rec->Ex,  rec->Ey,  rec->Ez,  rec->Tx,  rec->Ty,  rec->Tz,
                        rec->Sxy, rec->Sxz, rec->Syz, rec->Pxy, rec->Pxz, rec->Pyz};
  const double want[] = {1, 7, 5, 1, 3, 2, 13, 12, 23, 0.13, 0.12, 0.23};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(want[i], got[i]) << i;
  EXPECT_EQ(0, rec->ELAST + rec->POISN + rec->THERMAL) << "the isotropic fields stay 0, unscaled by F";
}

}  // namespace
