// Joint, frame and area masses to *NODALMASS.
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

int CS2kConverter::ConvertJointMasses() { return 1; }
int CS2kConverter::ConvertFrameMasses() { return 1; }
int CS2kConverter::ConvertAreaMasses() { return 1; }

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
