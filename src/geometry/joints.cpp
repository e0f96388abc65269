// Joints to nodes: table 333, the joint number map and *NODE.
#include "frame/converter.h"

int TvtGeometryTables::LookupNodeNumber(const std::string& name, int& number) const {
  if (jointNumberMap.Empty()) return 1;
  const TvtJointNumberRec* found = jointNumbersByName_.Find(jointNumberMap, name);
  if (!found) return 0;
  number = found->number;
  return 1;
}

int CS2kConverter::NodeNumberOf(const std::string& name) const {
  int number = 0;
  if (targetModel->jointsKeepNumbers)
    number = ParseInt(name);
  else
    targetModel->LookupNodeNumber(name, number);
  return number;
}

// One name that is not all digits turns the whole model to renumbering.
int CS2kConverter::ConvertJoints() {
  int ok = 1;
  sourceModel->JointCoordinates.Walk([&](int key, const S2kJointCoordinatesRow& row) {
    if (!ok) return;
    for (char ch : row.Joint)
      if (!IsDigit(ch)) targetModel->jointsKeepNumbers = 0;
    ok = targetModel->Nodes.SetAt(key, TvtNodeRec{row.Joint, row.GlobalX, row.GlobalY, row.GlobalZ});
  });
  return ok;
}

// Under renumbering a joint's node is the position of its row.
int CS2kConverter::BuildJointNumberMap() {
  int ok = 1;
  sourceModel->JointCoordinates.Walk([&](int key, const S2kJointCoordinatesRow& row) {
    if (ok) ok = targetModel->jointNumberMap.SetAt(key, TvtJointNumberRec{key, key, row.Joint});
  });
  return ok;
}

int CS2kConverter::BuildJointNumberMapIfRenumbered() {
  return targetModel->jointsKeepNumbers || BuildJointNumberMap();
}

int CS2kConverter::WriteNodes() {
  const CKeyedTable<TvtNodeRec>& nodes = targetModel->Nodes;
  if (nodes.Empty()) return 1;
  const bool renumbered = !targetModel->jointsKeepNumbers;
  if (renumbered) ShowMessage("IDS_S2KV8_NODE_Renumbering");
  WriteText("%s\n", "*NODE    ; Nodes");
  WriteText("; iNO, X, Y, Z\n");
  TvtNodeRec node;
  for (int key = 1; key <= nodes.Count(); ++key) {
    nodes.Lookup(key, node);  // a missing key writes the previous node again
    int number = NodeNumberOf(node.Name);
    if (renumbered)
      WriteText("\t%d, %5g, %5g, %5g \t\t;Joint=%s\n", number, node.X, node.Y, node.Z, node.Name.c_str());
    else
      WriteText("\t%d, %5g, %5g, %5g\n", number, node.X, node.Y, node.Z);
  }
  WriteText("\n");
  return 1;
}
