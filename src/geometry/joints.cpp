// Joints to nodes: table 333, the joint number map and *NODE.
#include "geometry/geometry.h"

#include "frame/converter.h"

CGeometry::CGeometry(CS2kConverter& engine) : CSubject(engine) {
  source_.Reset();
  target_.Reset();
}

int TvtGeometryTables::LookupNodeNumber(std::string_view name, int& number) const {
  if (jointNumberMap.Empty()) return 1;
  const TvtJointNumberRec* found = jointNumbersByName_.Find(jointNumberMap, name);
  if (!found) return 0;
  number = found->number;
  return 1;
}

int CGeometry::NodeNumberOf(std::string_view name) const {
  int number = 0;
  if (target_.jointsKeepNumbers)
    number = ParseInt(name);
  else
    target_.LookupNodeNumber(name, number);
  return number;
}

void CGeometry::ResolveNodeNumber(std::string_view name, int& number) const {
  if (target_.jointsKeepNumbers)
    number = ParseInt(name);
  else
    target_.LookupNodeNumber(name, number);
}

int CGeometry::FindJointGlobalCoordinates(std::string_view name, double& x, double& y, double& z) const {
  x = y = z = 0;
  const S2kJointCoordinatesRow* row = jointCoordinateNames_.Find(source_.JointCoordinates, name);
  if (!row) return 0;
  x = row->GlobalX;
  y = row->GlobalY;
  z = row->GlobalZ;
  return 1;
}

// One name that is not all digits turns the whole model to renumbering.
int CGeometry::ConvertJoints() {
  int ok = 1;
  source_.JointCoordinates.Walk([&](int key, const S2kJointCoordinatesRow& row) {
    if (!ok) return;
    for (char ch : row.Joint)
      if (!IsDigit(ch)) target_.jointsKeepNumbers = 0;
    ok = target_.Nodes.SetAt(key, TvtNodeRec{row.Joint, row.GlobalX, row.GlobalY, row.GlobalZ});
  });
  return ok;
}

// Under renumbering a joint's node is the position of its row.
int CGeometry::BuildJointNumberMap() {
  int ok = 1;
  source_.JointCoordinates.Walk([&](int key, const S2kJointCoordinatesRow& row) {
    if (ok) ok = target_.jointNumberMap.SetAt(key, TvtJointNumberRec{key, key, row.Joint});
  });
  return ok;
}

int CGeometry::BuildJointNumberMapIfRenumbered() {
  return target_.jointsKeepNumbers || BuildJointNumberMap();
}

int CGeometry::WriteNodes() {
  const CKeyedTable<TvtNodeRec>& nodes = target_.Nodes;
  if (nodes.Empty()) return 1;
  const bool renumbered = !target_.jointsKeepNumbers;
  if (renumbered) engine.ShowMessage("IDS_S2KV8_NODE_Renumbering");
  engine.WriteText("%s\n", "*NODE    ; Nodes");
  engine.WriteText("; iNO, X, Y, Z\n");
  TvtNodeRec node;
  for (int key = 1; key <= nodes.Count(); ++key) {
    nodes.Lookup(key, node);  // a missing key writes the previous node again
    int number = NodeNumberOf(node.Name);
    if (renumbered)
      engine.WriteText("\t%d, %5g, %5g, %5g \t\t;Joint=%s\n", number, node.X, node.Y, node.Z, node.Name.c_str());
    else
      engine.WriteText("\t%d, %5g, %5g, %5g\n", number, node.X, node.Y, node.Z);
  }
  engine.WriteText("\n");
  return 1;
}
