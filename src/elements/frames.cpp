// Frames to *ELEMENT, the element numbers and the element map.
#include <cmath>

#include "elements/elements.h"

#include "frame/converter.h"
#include "geometry/geometry.h"
#include "elements/properties.h"

CElements::CElements(CS2kConverter& engine) : CSubject(engine) {
  source_.Reset();
  target_.Reset();
  elementNumberMap.Reset(10001);
}

namespace {

// The program's own pi, eleven digits: angles from vectors carry its rounding.
constexpr double kPi = 3.1415926535;

}  // namespace

// Every model with frames gets the local axes warning: only the beta angle
// is kept of them.
int CElements::ConvertFrames() {
  const auto& frames = source_.ConnectivityFrame;
  if (frames.Empty()) return 1;
  flags_.FrameLocalAxesWarning = 1;
  int ok = 1;
  frames.Walk([&](int key, const S2kConnectivityFrameRow& row) {
    if (!ok) return;
    TvtFrameElementRec rec;
    rec.TYPE = "BEAM";
    rec.iEL = row.Frame;
    rec.iN1 = row.JointI;
    rec.iN2 = row.JointJ;
    engine.Get<CProperties>().FindFrameSection(key, rec.iPRO, rec.iMAT);
    S2kFrameLocalAxes1Row axes;
    if (FindFrameAngle(row.Frame, axes)) rec.ANGLE = axes.Angle;
    NoteElementName(row.Frame);
    ok = target_.FrameElements.SetAt(key, rec);
  });
  return ok;
}

int CElements::FindFrameAngle(std::string_view name, S2kFrameLocalAxes1Row& row) {
  const S2kFrameLocalAxes1Row* found = frameAngleNames_.Find(source_.FrameLocalAxes1, name);
  if (!found) return 0;
  row = *found;
  if (row.AdvanceAxes) AdjustAngleForAdvancedAxes(name, row.Angle);
  return 1;
}

// The advanced axes shrink to one rotation about the member's axis.
void CElements::AdjustAngleForAdvancedAxes(std::string_view name, double& angle) {
  const S2kFrameLocalAxes2Row* found = frameAdvancedAxesNames_.Find(source_.FrameLocalAxes2, name);
  if (found) AdjustAngleForAxesRow(*found, angle);
}

void CElements::AdjustAngleForAxesRow(const S2kFrameLocalAxes2Row& row, double& angle) {
  if (row.PlOption1 == "Coord Dir") {
    const std::string& d = (row.CoordDir1 == "X" || row.CoordDir1 == "-X") ? row.CoordDir2 : row.CoordDir1;
    if (row.LocalPlan == "12") {
      if (d == "Y") angle -= 90.0;
      else if (d == "-Y") angle += 90.0;
      else if (d == "-Z") angle += 180.0;
    } else if (row.LocalPlan == "13") {
      if (d == "Y") angle += 180.0;
      else if (d == "Z") angle -= 90.0;
      else if (d == "-Z") angle += 90.0;
    }
  } else if (row.PlOption1 == "Two Joints") {
    double x1, y1, z1, x2, y2, z2;
    engine.Get<CGeometry>().FindJointGlobalCoordinates(row.PlVecJt1, x1, y1, z1);
    engine.Get<CGeometry>().FindJointGlobalCoordinates(row.PlVecJt2, x2, y2, z2);
    double dy = y2 - y1;
    double dz = z2 - z1;
    angle = std::atan2(dz, dy) * 180.0 / kPi - 90.0 + angle;
  } else {
    angle = std::atan2(row.PlVecZ, row.PlVecY) * 180.0 / kPi - 90.0 + angle;
  }
}

void CElements::NoteElementName(std::string_view name) {
  for (char ch : name)
    if (!IsDigit(ch)) ElementNamesNumeric = 0;
}

int CElements::IsRenumbered() const { return !ElementNamesNumeric || ElementsRenumbered; }

int CElements::FindElementNumber(std::string_view name, std::string_view kind, int& number) {
  if (elementNumberMap.Empty()) return 1;
  const TvtElementMapEntry* entry = elementNumberIndex_.Find(elementNumberMap, name, kind);
  if (!entry) return 0;
  number = entry->number;
  return 1;
}

int CElements::ElementNumberOf(std::string_view name, std::string_view kind) {
  int number = 0;
  if (IsRenumbered())
    FindElementNumber(name, kind, number);
  else
    number = ParseInt(name);
  return number;
}

// Two or more kinds of element, or one name that is not a number, renumber
// the model. The clash of names is looked for all the same.
int CElements::DecideRenumbering() {
  int frames = source_.ConnectivityFrame.Count();
  int areas = source_.ConnectivityArea.Count();
  int solids = source_.ConnectivitySolid.Count();
  if (frames + areas < 1 || areas + solids < 1 || frames + solids < 1) return 0;
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> areaNames, solidNames;
  source_.ConnectivityArea.Walk([&](int key, const S2kConnectivityAreaRow& row) { areaNames.emplace(row.Area, key); });
  source_.ConnectivitySolid.Walk(
      [&](int key, const S2kConnectivitySolidRow& row) { solidNames.emplace(row.Solid, key); });
  bool clash = false;
  if (frames == 0) {
    for (const auto& [name, key] : areaNames) clash = clash || solidNames.count(name);
  } else {
    source_.ConnectivityFrame.Walk([&](int, const S2kConnectivityFrameRow& row) {
      clash = clash || areaNames.count(row.Frame) || solidNames.count(row.Frame);
    });
  }
  return ElementNamesNumeric || clash;
}

int CElements::WriteElements() {
  const auto& target = target_;
  if (target.FrameElements.Empty() && target.PlateElements.Empty() && target.SolidElements.Empty()) return 1;
  if (flags_.NodeNotAssignedWarning) engine.ShowMessage("IDS_S2KV8_NODE_Not_Assgn");
  if (flags_.ZeroLengthWarning) engine.ShowMessage("IDS_S2KV8_ELEM_Length_Zero");
  // The decision is still to come: only names that are not numbers warn.
  if (!ElementNamesNumeric || ElementsRenumbered) engine.ShowMessage("IDS_S2KV8_ELEM_Renumbering");
  engine.WriteText("%s\n", "*ELEMENT    ; Elements");
  engine.WriteText("; iEL, TYPE, iMAT, iPRO, iN1, iN2, ANGLE, iSUB, EXVAL              ; Frame Element\n");
  engine.WriteText("; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iSUB, iWID            ; Planar Element\n");
  engine.WriteText("; iEL, TYPE, iMAT, iPRO, iN1, iN2, iN3, iN4, iN5, iN6, iN7, iN8    ; Solid  Element\n");
  engine.WriteText("; iEL, TYPE, iMAT, iPRO, iN1, iN2, REF, RPX, RPY, RPZ, iSUB, EXVAL ; Frame(Ref. Point)\n");
  ElementsRenumbered = DecideRenumbering();
  int frames = source_.ConnectivityFrame.Count();
  int areas = source_.ConnectivityArea.Count();
  int solids = source_.ConnectivitySolid.Count();
  if (frames > 0) WriteFrameLines(frames);
  if (areas > 0) WritePlateLines(frames, areas);
  if (solids > 0) WriteSolidLines(frames, areas, solids);
  engine.WriteText("\n");
  return 1;
}

// Lines stand in the order of the file. The node variables are not cleared
// between frames: an unknown joint repeats the node of the frame before.
void CElements::WriteFrameLines(int frames) {
  if (flags_.FrameLocalAxesWarning) engine.ShowMessage("IDS_S2KV8_FRAM_LclAx_Not_Convert");
  const bool renumbered = IsRenumbered();
  int n1 = 0, n2 = 0;
  for (int i = 1; i <= frames; ++i) {
    const TvtFrameElementRec* rec = target_.FrameElements.Lookup(i);
    if (!rec) continue;
    int number = i;
    if (renumbered)
      elementNumberMap.SetAt(number, TvtElementMapEntry{number, number, rec->iEL, "FRAME"});
    else
      number = ParseInt(rec->iEL);
    engine.Get<CGeometry>().ResolveNodeNumber(rec->iN1, n1);
    engine.Get<CGeometry>().ResolveNodeNumber(rec->iN2, n2);
    engine.WriteText("\t%d, %5s, %5d, %5d, %5d, %5d, %5g", number, rec->TYPE.c_str(), rec->iMAT, rec->iPRO, n1, n2,
              rec->ANGLE);
    if (renumbered)
      engine.WriteText("\t\t;Frame=%s\n", rec->iEL.c_str());
    else
      engine.WriteText("\n");
  }
}

// The source lists a quadrilateral's corners crosswise, the target around
// its edge: n4 goes before n3.
void CElements::WritePlateLines(int frames, int areas) {
  if (flags_.PlateLocalAxesWarning) engine.ShowMessage("IDS_S2KV8_PLAT_LclAx_Not_Convert");
  const bool renumbered = IsRenumbered();
  for (int i = 1; i <= areas; ++i) {
    const TvtPlateElementRec* rec = target_.PlateElements.Lookup(i);
    if (!rec) continue;
    int number = i + frames;
    if (renumbered)
      elementNumberMap.SetAt(number, TvtElementMapEntry{number, number, rec->iEL, "AREA"});
    else
      number = ParseInt(rec->iEL);
    int n1 = 0, n2 = 0, n3 = 0, n4 = 0;
    engine.Get<CGeometry>().ResolveNodeNumber(rec->iN1, n1);
    engine.Get<CGeometry>().ResolveNodeNumber(rec->iN2, n2);
    engine.Get<CGeometry>().ResolveNodeNumber(rec->iN3, n3);
    engine.Get<CGeometry>().ResolveNodeNumber(rec->iN4, n4);
    if (n3 == n4) n3 = 0;
    const char* type = rec->TYPE.c_str();
    if (rec->TYPE == "PLSTRS")
      engine.WriteText("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d\t", number, type, rec->iMAT, rec->iPRO, n1, n2, n4, n3);
    else if (rec->TYPE == "PLSTRN" || rec->TYPE == "AXISYM")
      engine.WriteText("\t%d, %5s, %5d, 0, %5d, %5d, %5d, %5d\t\t", number, type, rec->iMAT, n1, n2, n4, n3);
    else
      engine.WriteText("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d, %5d", number, type, rec->iMAT, rec->iPRO, n1, n2, n4, n3,
                rec->iSUB);
    if (renumbered)
      engine.WriteText("\t;Plate=%s\n", rec->iEL.c_str());
    else
      engine.WriteText("\n");
  }
}

void CElements::WriteSolidLines(int frames, int areas, int solids) {
  if (flags_.SolidLocalAxesWarning) engine.ShowMessage("IDS_S2KV8_SOLD_LclAx_Not_Convert");
  const bool renumbered = IsRenumbered();
  for (int i = 1; i <= solids; ++i) {
    const TvtSolidElementRec* rec = target_.SolidElements.Lookup(i);
    if (!rec) continue;
    int number = i + frames + areas;
    if (renumbered)
      elementNumberMap.SetAt(number, TvtElementMapEntry{number, number, rec->iEL, "SOLID"});
    else
      number = ParseInt(rec->iEL);
    int n[8] = {};
    const CText* joints[8] = {&rec->iN1, &rec->iN2, &rec->iN3, &rec->iN4,
                              &rec->iN5, &rec->iN6, &rec->iN7, &rec->iN8};
    for (int k = 0; k < 8; ++k) engine.Get<CGeometry>().ResolveNodeNumber(*joints[k], n[k]);
    const char* type = rec->TYPE.c_str();
    if (solidNodeCount == 8)
      engine.WriteText("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d", number, type, rec->iMAT, rec->iPRO,
                n[0], n[1], n[3], n[2], n[4], n[5], n[7], n[6]);
    else
      engine.WriteText("\t%d, %5s, %5d, %5d, %5d, %5d, %5d, %5d, %5d, %5d, 0, 0", number, type, rec->iMAT, rec->iPRO, n[0],
                n[1], n[2], n[4], n[5], n[6]);
    if (renumbered)
      engine.WriteText("\t\t;Solid=%s\n", rec->iEL.c_str());
    else
      engine.WriteText("\n");
  }
}

const S2kConnectivityFrameRow* CElements::FindFrameConnectivity(std::string_view frame) const {
  return frameConnectivityByName_.Find(source_.ConnectivityFrame, frame);
}

const S2kConnectivityAreaRow* CElements::FindAreaConnectivity(std::string_view area) const {
  return areaConnectivityByName_.Find(source_.ConnectivityArea, area);
}
