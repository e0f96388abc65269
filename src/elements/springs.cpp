// Joint, frame and area springs to *SPRING, *GSPRING and *GSPRTYPE.
#include <cstdio>

#include "frame/converter.h"

namespace {

std::string Format(const char* format, auto... texts) {
  int size = std::snprintf(nullptr, 0, format, texts.c_str()...);
  std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
  std::snprintf(text.data(), text.size() + 1, format, texts.c_str()...);
  return text;
}

}  // namespace

const S2kConnectivityFrameRow* CS2kConverter::FindFrameConnectivity(const std::string& frame) {
  return frameConnectivityByName.Find(sourceModel->ConnectivityFrame, frame);
}

const S2kConnectivityAreaRow* CS2kConverter::FindAreaConnectivity(const std::string& area) {
  return areaConnectivityByName.Find(sourceModel->ConnectivityArea, area);
}

void CS2kConverter::SpringNodeNumber(const std::string& nodeList, int& number) const {
  if (targetModel->jointsKeepNumbers)
    number = ParseInt(nodeList);
  else
    targetModel->LookupNodeNumber(nodeList, number);
}

int CS2kConverter::ConvertJointSprings() {
  auto& springs = targetModel->Springs;
  int counter = springs.Count();
  for (int key : sourceModel->JointSprings.WalkKeys()) {
    S2kJointSpringRow row = *sourceModel->JointSprings.Lookup(key);
    // Stiffnesses are turned as if they were vectors.
    if (HasJointLocalAxes(row.Joint) && row.CoordSys == "GLOBAL") {
      GlobalToLocal(row.Joint, row.U1, row.U2, row.U3);
      GlobalToLocal(row.Joint, row.R1, row.R2, row.R3);
    }
    TvtSpringRec rec{row.Joint, row.U1, row.U2, row.U3, row.R1, row.R2, row.R3};
    if (!springs.SetAt(++counter, rec)) return 0;
  }
  return 1;
}

int CS2kConverter::ConvertCoupledSprings() {
  const auto& rows = sourceModel->JointCoupledSprings;
  for (int key : rows.WalkKeys()) {
    const S2kJointCoupledSpringRow& row = *rows.Lookup(key);
    // A coupled matrix is not turned: one in global axes on a joint with
    // local axes is dropped.
    if (HasJointLocalAxes(row.Joint) && row.CoordSys == "GLOBAL") {
      springFlags.NodeSpringNotConverted = 1;
      continue;
    }
    TvtGspringRec rec{row.Joint, "GSPR" + std::to_string(key),
                      {row.U1, row.U1U2, row.U2, row.U1U3, row.U2U3, row.U3, row.U1R1, row.U2R1, row.U3R1, row.R1,
                       row.U1R2, row.U2R2, row.U3R2, 0, row.R2, row.U1R3, row.U2R3, row.U3R3, 0, 0, row.R3}};
    if (!targetModel->GeneralSprings.SetAt(key, rec)) return 0;
  }
  return 1;
}

// No command takes a spring along a line: the stiffness goes onto the
// element's joints in one record, which the writer prints on the first.
int CS2kConverter::ConvertLineSprings(int mode) {
  auto& springs = targetModel->Springs;
  int counter = springs.Count();
  if (mode == 1 && !sourceModel->FrameSprings.Empty()) {
    springFlags.FrameSpringsToNodes = 1;
    for (int key : sourceModel->FrameSprings.WalkKeys()) {
      const S2kFrameSpringRow& row = *sourceModel->FrameSprings.Lookup(key);
      const S2kConnectivityFrameRow* frame = FindFrameConnectivity(row.Frame);
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
  if (mode == 2 && !sourceModel->AreaSprings.Empty()) {
    springFlags.PlateSpringsToNodes = 1;
    for (int key : sourceModel->AreaSprings.WalkKeys()) {
      const S2kAreaSpringRow& row = *sourceModel->AreaSprings.Lookup(key);
      if (row.Face != "5" && row.Face != "6") {
        springFlags.PlateSpringNotConverted = 1;
        continue;
      }
      const S2kConnectivityAreaRow* area = FindAreaConnectivity(row.Area);
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


int CS2kConverter::WriteSprings() {
  const auto& springs = targetModel->Springs;
  if (springs.Empty()) return 1;
  if (springFlags.NodeSpringNotConverted) ShowMessage("IDS_S2KV8_NODE_NSPR_Not_Convert");
  if (springFlags.FrameSpringsToNodes) ShowMessage("IDS_S2KV8_FRAME_2_NSPR");
  if (springFlags.PlateSpringsToNodes) ShowMessage("IDS_S2KV8_PLATE_2_NSPR");
  if (springFlags.PlateSpringNotConverted) ShowMessage("IDS_S2KV8_PLATE_NSPR_Not_Convert");
  WriteText("%s\n", "*SPRING    ; Point Spring Supports");
  WriteText("; NODE_LIST, SDx, SDy, SDz, SRx, SRy,SRz, GROUP\n");
  int number = 0;  // an unknown list keeps the number of the line before
  springs.Walk([&](int, const TvtSpringRec& rec) {
    SpringNodeNumber(rec.NODE_LIST, number);
    WriteText("\t%d, %5g, %5g, %5g, %5g, %5g, %5g,\n", number, rec.SDx, rec.SDy, rec.SDz, rec.SRx, rec.SRy, rec.SRz);
  });
  WriteText("\n");
  return 1;
}

int CS2kConverter::WriteGeneralSprings() {
  const auto& springs = targetModel->GeneralSprings;
  if (springs.Empty()) return 1;
  WriteText("%s\n", "*GSPRING    ; General Spring Supports");
  WriteText("; NODE_LIST, TYPE-NAME, GROUP\n");
  int number = 0;
  springs.Walk([&](int, const TvtGspringRec& rec) {
    SpringNodeNumber(rec.NODE_LIST, number);
    WriteText("\t%d, %5s,\n", number, rec.TYPE_NAME.c_str());
  });
  WriteText("\n");
  WriteText("%s\n", "*GSPRTYPE    ; Define General Spring Supports");
  WriteText("; NAME, SDx1, SDy1, SDy2, SDz1, SDz2, SDz3, ..., SRz1, ..., SRz6\n");
  springs.Walk([&](int, const TvtGspringRec& rec) {
    const double* k = rec.Terms;
    // The line's format holds one term more than the triangle; it gets 0.
    WriteText("\t%s, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g, %5g,%5g, %5g, %5g, %5g, "
              "%5g, %5g, %5g\n",
              rec.TYPE_NAME.c_str(), k[0], k[1], k[2], k[3], k[4], k[5], k[6], k[7], k[8], k[9], k[10], k[11], k[12],
              k[13], k[14], k[15], k[16], k[17], k[18], k[19], k[20], 0.0);
  });
  WriteText("\n");
  return 1;
}
