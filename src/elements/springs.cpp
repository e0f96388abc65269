// Joint, frame and area springs to *SPRING, *GSPRING and *GSPRTYPE.
#include <cstdio>

#include "elements/springs.h"

#include "frame/converter.h"
#include "elements/elements.h"
#include "geometry/geometry.h"

CSprings::CSprings(CS2kConverter& engine) : CSubject(engine) {
  source_.Reset();
  target_.Reset();
}

namespace {

std::string Format(const char* format, auto... texts) {
  int size = std::snprintf(nullptr, 0, format, texts.c_str()...);
  std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
  std::snprintf(text.data(), text.size() + 1, format, texts.c_str()...);
  return text;
}

}  // namespace

void CSprings::SpringNodeNumber(const std::string& nodeList, int& number) const {
  engine.Get<CGeometry>().ResolveNodeNumber(nodeList, number);
}

int CSprings::ConvertJointSprings() {
  auto& springs = target_.Springs;
  int counter = springs.Count();
  for (int key : source_.JointSprings.WalkKeys()) {
    S2kJointSpringRow row = *source_.JointSprings.Lookup(key);
    // Stiffnesses are turned as if they were vectors.
    if (engine.Get<CGeometry>().HasJointLocalAxes(row.Joint) && row.CoordSys == "GLOBAL") {
      engine.Get<CGeometry>().GlobalToLocal(row.Joint, row.U1, row.U2, row.U3);
      engine.Get<CGeometry>().GlobalToLocal(row.Joint, row.R1, row.R2, row.R3);
    }
    TvtSpringRec rec{row.Joint, row.U1, row.U2, row.U3, row.R1, row.R2, row.R3};
    if (!springs.SetAt(++counter, rec)) return 0;
  }
  return 1;
}

int CSprings::ConvertCoupledSprings() {
  const auto& rows = source_.JointCoupledSprings;
  for (int key : rows.WalkKeys()) {
    const S2kJointCoupledSpringRow& row = *rows.Lookup(key);
    // A coupled matrix is not turned: one in global axes on a joint with
    // local axes is dropped.
    if (engine.Get<CGeometry>().HasJointLocalAxes(row.Joint) && row.CoordSys == "GLOBAL") {
      flags_.NodeSpringNotConverted = 1;
      continue;
    }
    TvtGspringRec rec{row.Joint, "GSPR" + std::to_string(key),
                      {row.U1, row.U1U2, row.U2, row.U1U3, row.U2U3, row.U3, row.U1R1, row.U2R1, row.U3R1, row.R1,
                       row.U1R2, row.U2R2, row.U3R2, 0, row.R2, row.U1R3, row.U2R3, row.U3R3, 0, 0, row.R3}};
    if (!target_.GeneralSprings.SetAt(key, rec)) return 0;
  }
  return 1;
}

// No command takes a spring along a line: the stiffness goes onto the
// element's joints in one record, which the writer prints on the first.
int CSprings::ConvertLineSprings(int mode) {
  auto& springs = target_.Springs;
  int counter = springs.Count();
  if (mode == 1 && !source_.FrameSprings.Empty()) {
    flags_.FrameSpringsToNodes = 1;
    for (int key : source_.FrameSprings.WalkKeys()) {
      const S2kFrameSpringRow& row = *source_.FrameSprings.Lookup(key);
      const S2kConnectivityFrameRow* frame = engine.Get<CElements>().FindFrameConnectivity(row.Frame);
      if (!frame) break;  // the rest of the table goes with it
      TvtSpringRec rec;
      rec.NODE_LIST = Format("%s  %s", frame->JointI, frame->JointJ);
      double value = row.Stiffness * frame->Length / 2.0;
      if (row.Dir == "1")
        rec.SDx = value;
      else if (row.Dir == "2")  // local 2 and 3 are the target's z and y
        rec.SDz = value;
      else if (row.Dir == "3")
        rec.SDy = value;
      if (!springs.SetAt(++counter, rec)) return 0;
    }
  }
  if (mode == 2 && !source_.AreaSprings.Empty()) {
    flags_.PlateSpringsToNodes = 1;
    for (int key : source_.AreaSprings.WalkKeys()) {
      const S2kAreaSpringRow& row = *source_.AreaSprings.Lookup(key);
      if (row.Face != "5" && row.Face != "6") {
        flags_.PlateSpringNotConverted = 1;
        continue;
      }
      const S2kConnectivityAreaRow* area = engine.Get<CElements>().FindAreaConnectivity(row.Area);
      if (!area) break;
      TvtSpringRec rec;
      rec.NODE_LIST = Format("%s  %s  %s  %s", area->Joint1, area->Joint2, area->Joint3, area->Joint4);
      double value = row.Stiffness * area->AreaArea / 4.0;
      if (row.Dir == "1")
        rec.SDx = value;
      else if (row.Dir == "2")
        rec.SDy = value;
      else if (row.Dir == "3")
        rec.SDz = value;
      if (!springs.SetAt(++counter, rec)) return 0;
    }
  }
  return 1;
}


int CSprings::WriteSprings() {
  const auto& springs = target_.Springs;
  if (springs.Empty()) return 1;
  if (flags_.NodeSpringNotConverted) engine.ShowMessage("IDS_S2KV8_NODE_NSPR_Not_Convert");
  if (flags_.FrameSpringsToNodes) engine.ShowMessage("IDS_S2KV8_FRAME_2_NSPR");
  if (flags_.PlateSpringsToNodes) engine.ShowMessage("IDS_S2KV8_PLATE_2_NSPR");
  if (flags_.PlateSpringNotConverted) engine.ShowMessage("IDS_S2KV8_PLATE_NSPR_Not_Convert");
  engine.WriteText("%s\n", "*SPRING    ; Point Spring Supports");
  engine.WriteText("; NODE_LIST, SDx, SDy, SDz, SRx, SRy,SRz, GROUP\n");
  int number = 0;  // an unknown list keeps the number of the line before
  springs.Walk([&](int, const TvtSpringRec& rec) {
    SpringNodeNumber(rec.NODE_LIST, number);
    engine.WriteText("\t%d, %5g, %5g, %5g, %5g, %5g, %5g,\n", number, rec.SDx, rec.SDy, rec.SDz, rec.SRx, rec.SRy, rec.SRz);
  });
  engine.WriteText("\n");
  return 1;
}

int CSprings::WriteGeneralSprings() {
  const auto& springs = target_.GeneralSprings;
  if (springs.Empty()) return 1;
  engine.WriteText("%s\n", "*GSPRING    ; General Spring Supports");
  engine.WriteText("; NODE_LIST, TYPE-NAME, GROUP\n");
  int number = 0;
  springs.Walk([&](int, const TvtGspringRec& rec) {
    SpringNodeNumber(rec.NODE_LIST, number);
    engine.WriteText("\t%d, %5s,\n", number, rec.TYPE_NAME.c_str());
  });
  engine.WriteText("\n");
  engine.WriteText("%s\n", "*GSPRTYPE    ; Define General Spring Supports");
  engine.WriteText("; NAME, SDx1, SDy1, SDy2, SDz1, SDz2, SDz3, ..., SRz1, ..., SRz6\n");
  springs.Walk([&](int, const TvtGspringRec& rec) {
    const double* k = rec.Terms;
    // The line's format holds one term more than the triangle; it gets 0.
    engine.WriteText("\t%s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g,%5g, %5g, %5g, %5g, "
              "%5g, %5g, %5g\n",
              rec.TYPE_NAME.c_str(), k[0], k[1], k[2], k[3], k[4], k[5], k[6], k[7], k[8], k[9], k[10], k[11], k[12],
              k[13], k[14], k[15], k[16], k[17], k[18], k[19], k[20], 0.0);
  });
  engine.WriteText("\n");
  return 1;
}
