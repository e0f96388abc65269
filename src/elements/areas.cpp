// Areas and solids to plate and solid elements.
#include <cmath>

#include "elements/elements.h"

#include "frame/converter.h"
#include "geometry/geometry.h"
#include "elements/properties.h"

namespace {

// Strictly after the first character: a type that begins with the word
// does not count.
bool HoldsAfterStart(const std::string& text, const char* word) {
  std::size_t at = text.find(word);
  return at != std::string::npos && at > 0;
}

}  // namespace

int CElements::ConvertAreas() {
  int ok = 1;
  source_.ConnectivityArea.Walk([&](int key, const S2kConnectivityAreaRow& row) {
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
    std::string type = rec.TYPE;
    const int found = FindAreaSectionData(section, row, iPRO, iMAT, iSUB, type);
    rec.TYPE = type;
    if (found) {
      rec.iPRO = iPRO;
      rec.iMAT = iMAT;
      rec.iSUB = iSUB;
    }
    ok = target_.PlateElements.SetAt(key, rec);
    NoteElementName(row.Area);
  });
  // Local axes of areas are dropped, in every model that has areas.
  flags_.PlateLocalAxesWarning = ok;
  return ok;
}

int CElements::ConvertSolids() {
  int ok = 1;
  source_.ConnectivitySolid.Walk([&](int key, const S2kConnectivitySolidRow& row) {
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
    ok = target_.SolidElements.SetAt(key, rec);
    NoteElementName(row.Solid);
  });
  flags_.SolidLocalAxesWarning = ok;
  return ok;
}

int CElements::FindAreaSectionName(const std::string& name, int kind, std::string& section) {
  if (kind == 1) return engine.Get<CProperties>().FindFrameSectionName(name, section);
  if (kind == 2) {
    const S2kAreaSectionAssignRow* row = areaSectionAssignNames_.Find(source_.AreaSectionAssign, name);
    if (!row) return 0;
    section = row->Section;
    return 1;
  }
  return 0;
}

// Every row of the section's name is tried in walk order until one names a
// known material; each leaves its type behind.
int CElements::FindAreaSectionData(const std::string& section, const S2kConnectivityAreaRow& area, int& iPRO,
                                       int& iMAT, int& iSUB, std::string& TYPE) {
  const auto& table = source_.AreaSection;
  if (table.Empty()) return 1;
  if (const auto* hit = areaSectionRows_.Hits(table, section)) {
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
          target_.AreaPropNotConverted = 1;
        }
      } else if (row.AreaType == "Plane") {
        if (row.Type == "Plane-Stress")
          TYPE = "PLSTRS";
        else if (row.Type == "Plane-Strain")
          TYPE = IsFlatInY(area) ? "PLSTRN" : "PLSTRS";
        else
          target_.AreaPropNotConverted = 1;
      } else if (row.AreaType == "Asolid") {
        TYPE = IsFlatInY(area) ? "AXISYM" : "PLSTRS";
      } else {
        target_.AreaPropNotConverted = 1;
      }
      if (engine.Get<CProperties>().FindElementMaterial(row.Material, iMAT)) return 1;
    }
  }
  return 0;
}

// Both tests use Y, whatever plane the model lies in.
int CElements::IsFlatInY(const S2kConnectivityAreaRow& area) {
  double x, y[4], z;
  const CText* joints[4] = {&area.Joint1, &area.Joint2, &area.Joint3, &area.Joint4};
  for (int k = 0; k < 4; ++k) engine.Get<CGeometry>().FindJointGlobalCoordinates(*joints[k], x, y[k], z);
  for (int k = 1; k < 4; ++k)
    if (std::fabs(y[0] - y[k]) > 0.0) return 0;
  return 1;
}

int CElements::FindSolidMaterial(const std::string& name, int& number) {
  const auto& assigns = source_.SolidPropAssign;
  if (assigns.Empty()) return 1;
  const auto* hit = solidPropAssignRows_.Hits(assigns, name);
  if (!hit) return 0;
  const auto& props = source_.SolidProp;
  for (int key : hit->keys) {
    std::string material;
    if (const S2kSolidPropRow* prop = solidPropNames_.Find(props, assigns.Lookup(key)->SolidProp))
      material = prop->Material;
    if (engine.Get<CProperties>().FindElementMaterial(material, number)) return 1;
  }
  return 0;
}
