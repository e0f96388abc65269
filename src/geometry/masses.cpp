// Joint, frame and area masses to *NODALMASS.
#include <initializer_list>

#include "frame/converter.h"

void TvtMassTables::MergeNodalMass(const std::string& name, int& key, TvtNodalmassRec& record) {
  if (NodalMasses.Empty()) {
    nodalMassKeys_.clear();
    nodalMassKeys_[name] = key;
    return;
  }
  // Each name has one record, so its key is the first match of a walk. The
  // index is rebuilt when rows went in that it does not know of.
  auto findKey = [&]() -> const TvtNodalmassRec* {
    auto it = nodalMassKeys_.find(name);
    if (it == nodalMassKeys_.end()) return nullptr;
    const TvtNodalmassRec* found = NodalMasses.Lookup(it->second);
    return found && found->NODE_LIST == name ? found : nullptr;
  };
  auto rebuild = [&]() {
    nodalMassKeys_.clear();
    NodalMasses.Walk([&](int k, const TvtNodalmassRec& rec) { nodalMassKeys_.try_emplace(rec.NODE_LIST, k); });
  };
  if (nodalMassKeys_.size() != static_cast<std::size_t>(NodalMasses.Count())) rebuild();
  const TvtNodalmassRec* found = findKey();
  if (!found && nodalMassKeys_.count(name)) {
    rebuild();
    found = findKey();
  }
  if (found) {
    key = nodalMassKeys_[name];
    record.mX += found->mX;
    record.mY += found->mY;
    record.mZ += found->mZ;
    record.rmX += found->rmX;
    record.rmY += found->rmY;
    record.rmZ += found->rmZ;
    return;
  }
  key = NodalMasses.Count() + 1;
  nodalMassKeys_[name] = key;
}

int CS2kConverter::AddNodalMass(TvtNodalmassRec record) {
  int key = 1;
  targetModel->MergeNodalMass(record.NODE_LIST, key, record);
  return targetModel->NodalMasses.SetAt(key, record);
}

int CS2kConverter::ConvertJointMasses() {
  for (int key : sourceModel->JointMasses.WalkKeys()) {
    S2kJointMassRow row = *sourceModel->JointMasses.Lookup(key);
    if (row.CoordSys == "Local") {
      LocalToGlobal(row.Joint, row.Mass1, row.Mass2, row.Mass3);
      LocalToGlobal(row.Joint, row.MMI1, row.MMI2, row.MMI3);
    }
    if (!AddNodalMass({row.Joint, row.Mass1, row.Mass2, row.Mass3, row.MMI1, row.MMI2, row.MMI3})) return 0;
  }
  return 1;
}

int CS2kConverter::LumpNodalMass(std::initializer_list<const std::string*> joints, double m) {
  for (const std::string* joint : joints)
    if (!AddNodalMass({*joint, m, m, m, 0, 0, 0})) return 0;
  return 1;
}

// Half of a frame's mass goes to each end. A frame without connectivity
// lumps nothing onto the empty name.
int CS2kConverter::ConvertFrameMasses() {
  for (int key : sourceModel->FrameMasses.WalkKeys()) {
    const S2kFrameMassRow& row = *sourceModel->FrameMasses.Lookup(key);
    static const S2kConnectivityFrameRow kNoFrame;
    const S2kConnectivityFrameRow* found = FindFrameConnectivity(row.Frame);
    const S2kConnectivityFrameRow& frame = found ? *found : kNoFrame;
    if (!LumpNodalMass({&frame.JointI, &frame.JointJ}, row.MassPerLen * frame.Length / 2)) return 0;
  }
  return 1;
}

// A quarter of an area's mass goes to each of its four joint names, so a
// triangle's fourth share goes to the empty name.
int CS2kConverter::ConvertAreaMasses() {
  for (int key : sourceModel->AreaMasses.WalkKeys()) {
    const S2kAreaMassRow& row = *sourceModel->AreaMasses.Lookup(key);
    static const S2kConnectivityAreaRow kNoArea;
    const S2kConnectivityAreaRow* found = FindAreaConnectivity(row.Area);
    const S2kConnectivityAreaRow& area = found ? *found : kNoArea;
    if (!LumpNodalMass({&area.Joint1, &area.Joint2, &area.Joint3, &area.Joint4}, row.MassPerArea * area.AreaArea / 4))
      return 0;
  }
  return 1;
}

int CS2kConverter::WriteNodalMasses() {
  const auto& masses = targetModel->NodalMasses;
  if (masses.Empty()) return 1;
  WriteText("%s\n", "*NODALMASS    ; Nodal Masses");
  WriteText("; NODE_LIST, mX, mY, mZ, rmX, rmY, rmZ\n");
  masses.ForEachKey([&](int, const TvtNodalmassRec& rec) {
    WriteText("\t%d, %5g, %5g, %5g, %5g, %5g, %5g\n", NodeNumberOf(rec.NODE_LIST), rec.mX, rec.mY, rec.mZ, rec.rmX,
              rec.rmY, rec.rmZ);
  });
  WriteText("\n");
  return 1;
}
