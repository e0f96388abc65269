// Areas and solids to plate and solid elements.
#include <cmath>

#include "frame/converter.h"

namespace {

// Strictly after the first character: a type that begins with the word
// does not count.
bool HoldsAfterStart(const std::string& text, const char* word) {
  std::size_t at = text.find(word);
  return at != std::string::npos && at > 0;
}

}  // namespace

int CS2kConverter::ConvertAreas() {
  int ok = 1;
  sourceModel->ConnectivityArea.Walk([&](int key, const S2kConnectivityAreaRow& row) {
    if (!ok) return;
    TvtPlateElementRec rec;
    rec.iEL = row.Area;
    rec.iN1 = row.Joint1;
    rec.iN2 = row.Joint2;
    rec.iN3 = row.Joint3;
    rec.iN4 = row.Joint4;
    std::string section;
    FindAreaSectionName(row.Area, 2, section);
    int iPRO = rec.iPRO, iMAT = rec.iMAT, iSUB = 1;
    if (FindAreaSectionData(section, row, iPRO, iMAT, iSUB, rec.TYPE)) {
      rec.iPRO = iPRO;
      rec.iMAT = iMAT;
      rec.iSUB = iSUB;
    }
    ok = targetModel->PlateElements.SetAt(key, rec);
    NoteElementName(row.Area);
  });
  // Local axes of areas are dropped, in every model that has areas.
  elementFlags.PlateLocalAxesWarning = ok;
  return ok;
}

int CS2kConverter::ConvertSolids() {
  int ok = 1;
  sourceModel->ConnectivitySolid.Walk([&](int key, const S2kConnectivitySolidRow& row) {
    if (!ok) return;
    TvtSolidElementRec rec;
    rec.iEL = row.Solid;
    rec.TYPE = "SOLID";
    rec.iN1 = row.Joint1;
    rec.iN2 = row.Joint2;
    rec.iN3 = row.Joint3;
    rec.iN4 = row.Joint4;
    rec.iN5 = row.Joint5;
    rec.iN6 = row.Joint6;
    rec.iN7 = row.Joint7;
    rec.iN8 = row.Joint8;
    int material = 0;
    FindSolidMaterial(row.Solid, material);
    rec.iMAT = material;
    rec.iPRO = 0;
    ok = targetModel->SolidElements.SetAt(key, rec);
    NoteElementName(row.Solid);
  });
  elementFlags.SolidLocalAxesWarning = ok;
  return ok;
}

int CS2kConverter::FindAreaSectionName(const std::string& name, int kind, std::string& section) {
  if (kind == 1) {
    const S2kFrameSectionAssignRow* row = frameSectionAssignFrames.Find(sourceModel->FrameSectionAssigns, name);
    if (!row) return 0;
    section = row->AnalSect;
    return 1;
  }
  if (kind == 2) {
    const S2kAreaSectionAssignRow* row = areaSectionAssignNames.Find(sourceModel->AreaSectionAssign, name);
    if (!row) return 0;
    section = row->Section;
    return 1;
  }
  return 0;
}

// Every row of the section's name is tried in walk order until one names a
// known material; each leaves its type behind.
int CS2kConverter::FindAreaSectionData(const std::string& section, const S2kConnectivityAreaRow& area, int& iPRO,
                                       int& iMAT, int& iSUB, std::string& TYPE) {
  const auto& table = sourceModel->AreaSection;
  if (table.Empty()) return 1;
  if (const auto* hit = areaSectionRows.Hits(table, section)) {
    for (int key : hit->keys) {
      iPRO = key;
      const S2kAreaSectionRow& row = *table.Lookup(key);
      if (row.AreaType == "Shell") {
        if (HoldsAfterStart(row.Type, "Thick")) {
          TYPE = "PLATE";
          iSUB = 1;
        } else if (HoldsAfterStart(row.Type, "Thin")) {
          TYPE = "PLATE";
          iSUB = 2;
        } else if (row.Type == "Membrane") {
          TYPE = "PLSTRS";
          iSUB = 0;
        } else {
          TYPE = "PLATE";
          targetModel->AreaPropNotConverted = 1;
        }
      } else if (row.AreaType == "Plane") {
        if (row.Type == "Plane-Stress")
          TYPE = "PLSTRS";
        else if (row.Type == "Plane-Strain")
          TYPE = IsFlatInY(area) ? "PLSTRN" : "PLSTRS";
        else
          targetModel->AreaPropNotConverted = 1;
      } else if (row.AreaType == "Asolid") {
        TYPE = IsFlatInY(area) ? "AXISYM" : "PLSTRS";
      } else {
        targetModel->AreaPropNotConverted = 1;
      }
      if (FindElementMaterial(row.Material, iMAT)) return 1;
    }
  }
  return 0;
}

// Both tests use Y, whatever plane the model lies in.
int CS2kConverter::IsFlatInY(const S2kConnectivityAreaRow& area) {
  double x, y[4], z;
  const std::string* joints[4] = {&area.Joint1, &area.Joint2, &area.Joint3, &area.Joint4};
  for (int k = 0; k < 4; ++k) FindJointGlobalCoordinates(*joints[k], x, y[k], z);
  for (int k = 1; k < 4; ++k)
    if (std::fabs(y[0] - y[k]) > 0.0) return 0;
  return 1;
}

int CS2kConverter::FindSolidMaterial(const std::string& name, int& number) {
  const auto& assigns = sourceModel->SolidPropAssign;
  if (assigns.Empty()) return 1;
  const auto* hit = solidPropAssignRows.Hits(assigns, name);
  if (!hit) return 0;
  const auto& props = sourceModel->SolidProp;
  for (int key : hit->keys) {
    std::string material;
    if (const S2kSolidPropRow* prop = solidPropNames.Find(props, assigns.Lookup(key)->SolidProp))
      material = prop->Material;
    if (FindElementMaterial(material, number)) return 1;
  }
  return 0;
}

int CS2kConverter::FindElementMaterial(const std::string& name, int& number) {
  return sourceModel->Material1.Empty() || FindMaterialNumber(name, number);
}
