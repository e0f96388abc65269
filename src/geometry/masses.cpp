// Joint, frame and area masses to *NODALMASS.
#include <initializer_list>

#include "geometry/masses.h"

#include "frame/converter.h"
#include "elements/elements.h"
#include "geometry/geometry.h"

CMasses::CMasses(CS2kConverter& engine) : CSubject(engine) {
  source_.Reset();
  target_.Reset();
}

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

int CMasses::AddNodalMass(TvtNodalmassRec record) {
  int key = 1;
  target_.MergeNodalMass(record.NODE_LIST, key, record);
  return target_.NodalMasses.SetAt(key, record);
}

int CMasses::ConvertJointMasses() {
  for (int key : source_.JointMasses.WalkKeys()) {
    S2kJointMassRow row = *source_.JointMasses.Lookup(key);
    if (row.CoordSys == "Local") {
      engine.Get<CGeometry>().LocalToGlobal(row.Joint, row.Mass1, row.Mass2, row.Mass3);
      engine.Get<CGeometry>().LocalToGlobal(row.Joint, row.MMI1, row.MMI2, row.MMI3);
    }
    if (!AddNodalMass({row.Joint, row.Mass1, row.Mass2, row.Mass3, row.MMI1, row.MMI2, row.MMI3})) return 0;
  }
  return 1;
}

int CMasses::LumpNodalMass(std::initializer_list<const CText*> joints, double m) {
  for (const CText* joint : joints)
    if (!AddNodalMass({*joint, m, m, m, 0, 0, 0})) return 0;
  return 1;
}

// Half of a frame's mass goes to each end. A frame without connectivity
// lumps nothing onto the empty name.
int CMasses::ConvertFrameMasses() {
  for (int key : source_.FrameMasses.WalkKeys()) {
    const S2kFrameMassRow& row = *source_.FrameMasses.Lookup(key);
    static const S2kConnectivityFrameRow kNoFrame;
    const S2kConnectivityFrameRow* found = engine.Get<CElements>().FindFrameConnectivity(row.Frame);
    const S2kConnectivityFrameRow& frame = found ? *found : kNoFrame;
    if (!LumpNodalMass({&frame.JointI, &frame.JointJ}, row.MassPerLen * frame.Length / 2)) return 0;
  }
  return 1;
}

// A quarter of an area's mass goes to each of its four joint names, so a
// triangle's fourth share goes to the empty name.
int CMasses::ConvertAreaMasses() {
  for (int key : source_.AreaMasses.WalkKeys()) {
    const S2kAreaMassRow& row = *source_.AreaMasses.Lookup(key);
    static const S2kConnectivityAreaRow kNoArea;
    const S2kConnectivityAreaRow* found = engine.Get<CElements>().FindAreaConnectivity(row.Area);
    const S2kConnectivityAreaRow& area = found ? *found : kNoArea;
    if (!LumpNodalMass({&area.Joint1, &area.Joint2, &area.Joint3, &area.Joint4}, row.MassPerArea * area.AreaArea / 4))
      return 0;
  }
  return 1;
}

int CMasses::WriteNodalMasses() {
  const auto& masses = target_.NodalMasses;
  if (masses.Empty()) return 1;
  engine.WriteText("%s\n", "*NODALMASS    ; Nodal Masses");
  engine.WriteText("; NODE_LIST, mX, mY, mZ, rmX, rmY, rmZ\n");
  masses.ForEachKey([&](int, const TvtNodalmassRec& rec) {
    engine.WriteText("\t%d, %5g, %5g, %5g, %5g, %5g, %5g\n", engine.Get<CGeometry>().NodeNumberOf(rec.NODE_LIST), rec.mX, rec.mY, rec.mZ, rec.rmX,
              rec.rmY, rec.rmZ);
  });
  engine.WriteText("\n");
  return 1;
}

std::unordered_map<std::string, std::size_t> CMasses::FirstJointMassRows() const {
  std::unordered_map<std::string, std::size_t> rows;
  std::size_t position = 0;
  source_.JointMasses.Walk([&](int, const S2kJointMassRow& row) { rows.try_emplace(row.Joint, position++); });
  return rows;
}
