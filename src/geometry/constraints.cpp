// Joint constraints to *RIGIDLINK.
#include <unordered_set>

#include "frame/converter.h"

namespace {

using Kind = CS2kConverter::ConstraintMasterKind;

// The steps every family takes. \p dofOf fills the DOF from the definition
// row and returns false to make no link; a constraint without a definition
// row is linked with an empty DOF.
template <class Row, class DofOf>
void MakeRigidLink(CS2kConverter& engine, const std::string& name, Kind kind, const CKeyedTable<Row>& definitions,
                   const CNameIndex<Row>& index, int& counter, DofOf dofOf) {
  TvtRigidlinkRec rec;
  if (!engine.CollectConstraintJoints(name, kind, rec.M_NODE, rec.S_NODE_LIST)) return;
  if (definitions.Empty()) return;
  const Row* row = index.Find(definitions, name);
  if (row && !dofOf(*row, rec.DOF)) return;
  engine.targetModel->RigidLinks.SetAt(++counter, rec);
}

// A constraint about an axis other than X, Y or Z had its axis chosen by
// the program, which the target can't take.
template <class Row>
void MakeAxisLink(CS2kConverter& engine, const std::string& name, Kind kind, const CKeyedTable<Row>& definitions,
                  const CNameIndex<Row>& index, int& counter) {
  MakeRigidLink(engine, name, kind, definitions, index, counter, [&](const Row& row, std::string& dof) {
    if (row.Axis == "X")
      dof = "011100";
    else if (row.Axis == "Y")
      dof = "101010";
    else if (row.Axis == "Z")
      dof = "110001";
    else
      engine.targetModel->ConstraintAutoAxisSeen = 1;
    return !dof.empty();
  });
}

void MakeDofLink(CS2kConverter& engine, const std::string& name, const CKeyedTable<S2kConstraintBodyRow>& definitions,
                 const CNameIndex<S2kConstraintBodyRow>& index, int& counter) {
  MakeRigidLink(engine, name, Kind::FirstMember, definitions, index, counter,
                [](const S2kConstraintBodyRow& row, std::string& dof) {
                  for (int flag : {row.UX, row.UY, row.UZ, row.RX, row.RY, row.RZ}) dof += flag ? '1' : '0';
                  return true;
                });
}

}  // namespace

int CS2kConverter::CollectConstraintJoints(const std::string& name, ConstraintMasterKind kind, std::string& outMaster,
                                           std::string& outSlaves) {
  outMaster.clear();
  outSlaves.clear();
  if (sourceModel->JointConstraintAssignments.Empty()) return 1;
  auto found = constraintMembers.find(name);
  if (found == constraintMembers.end() || found->second.size() < 2) return 0;
  std::vector<std::string> members = found->second;

  // By added masses the master is the member of the first mass row in the
  // walk; with masses elsewhere only, there is no master and the first
  // member is lost all the same.
  bool removed = false;
  if (kind != ConstraintMasterKind::ByMass || sourceModel->JointMasses.Empty()) {
    outMaster = members[0];
  } else {
    std::size_t best = members.size(), bestRow = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
      auto row = firstMassRowOf.find(members[i]);
      if (row != firstMassRowOf.end() && (best == members.size() || row->second < bestRow)) {
        best = i;
        bestRow = row->second;
      }
    }
    if (best < members.size()) {
      outMaster = members[best];
      members.erase(members.begin() + static_cast<long>(best));
      removed = true;
    }
  }
  for (std::size_t i = removed ? 0 : 1; i < members.size(); ++i) outSlaves += members[i] + " ";
  std::size_t end = outSlaves.find_last_not_of(" \t\n\v\f\r");
  outSlaves.erase(end == std::string::npos ? 0 : end + 1);
  return 1;
}

void CS2kConverter::ConvertBeamConstraint(const std::string& name, int& counter) {
  MakeAxisLink(*this, name, Kind::AlongAxis, sourceModel->ConstraintBeam, sourceModel->beamsByName, counter);
}
void CS2kConverter::ConvertDiaphragmConstraint(const std::string& name, int& counter) {
  MakeAxisLink(*this, name, Kind::ByMass, sourceModel->ConstraintDiaphragm, sourceModel->diaphragmsByName, counter);
}
void CS2kConverter::ConvertPlateConstraint(const std::string& name, int& counter) {
  MakeAxisLink(*this, name, Kind::ByMass, sourceModel->ConstraintPlate, sourceModel->platesByName, counter);
}
void CS2kConverter::ConvertRodConstraint(const std::string& name, int& counter) {
  MakeAxisLink(*this, name, Kind::AlongAxis, sourceModel->ConstraintRod, sourceModel->rodsByName, counter);
}
void CS2kConverter::ConvertBodyConstraint(const std::string& name, int& counter) {
  MakeDofLink(*this, name, sourceModel->ConstraintBody, sourceModel->bodiesByName, counter);
}
void CS2kConverter::ConvertEqualConstraint(const std::string& name, int& counter) {
  MakeDofLink(*this, name, sourceModel->ConstraintEqual, sourceModel->equalsByName, counter);
}
void CS2kConverter::ConvertLineConstraint(const std::string& name, int& counter) {
  MakeDofLink(*this, name, sourceModel->ConstraintLine, sourceModel->linesByName, counter);
}
void CS2kConverter::ConvertWeldConstraint(const std::string& name, int& counter) {
  MakeDofLink(*this, name, sourceModel->ConstraintWeld, sourceModel->weldsByName, counter);
}
// Local axes of a constraint can't be carried; only the writer says so.
void CS2kConverter::ConvertLocalConstraint(const std::string&, int&) { targetModel->ConstraintLocalSeen = 1; }

int CS2kConverter::ConvertConstraints() {
  const CKeyedTable<S2kJointConstraintAssignmentsRow>& assignments = sourceModel->JointConstraintAssignments;
  if (assignments.Empty()) return 1;

  // Members in the order of the rows. The node map is filled only at the end
  // of the joint step, so under renumbering every member is the text that a
  // node number of 0 printed as a text gives.
  constraintMembers.clear();
  for (int key = 1; key <= assignments.Count(); ++key)
    if (const S2kJointConstraintAssignmentsRow* row = assignments.Lookup(key))
      constraintMembers[row->Constraint].push_back(targetModel->jointsKeepNumbers ? row->Joint : "(null)");
  firstMassRowOf.clear();
  std::size_t position = 0;
  sourceModel->JointMasses.Walk(
      [&](int, const S2kJointMassRow& row) { firstMassRowOf.try_emplace(row.Joint, position++); });

  using Operation = void (CS2kConverter::*)(const std::string&, int&);
  static constexpr struct {
    const char* type;
    Operation convert;
  } kFamilies[] = {
      {"Beam", &CS2kConverter::ConvertBeamConstraint},   {"Body", &CS2kConverter::ConvertBodyConstraint},
      {"Diaphragm", &CS2kConverter::ConvertDiaphragmConstraint}, {"Equal", &CS2kConverter::ConvertEqualConstraint},
      {"Line", &CS2kConverter::ConvertLineConstraint},   {"Local", &CS2kConverter::ConvertLocalConstraint},
      {"Plate", &CS2kConverter::ConvertPlateConstraint}, {"Rod", &CS2kConverter::ConvertRodConstraint},
      {"Weld", &CS2kConverter::ConvertWeldConstraint},
  };
  std::unordered_set<std::string> handled;
  std::vector<std::string> beams, bodies;  // by ordinal, from 1
  int counter = 0;
  assignments.Walk([&](int, const S2kJointConstraintAssignmentsRow& row) {
    const std::string& name = row.Constraint;
    if (!handled.insert(name).second) return;
    for (const auto& family : kFamilies) {
      if (row.Type != family.type) continue;
      // A Beam or Body runs once for each one met before it (at least once),
      // so the k-th of them makes its link k - 1 times.
      std::vector<std::string>* repeated = row.Type == "Beam" ? &beams : row.Type == "Body" ? &bodies : nullptr;
      std::size_t runs = repeated && !repeated->empty() ? repeated->size() : 1;
      for (std::size_t run = 0; run < runs; ++run) (this->*family.convert)(name, counter);
      if (repeated) repeated->push_back(name);
      break;
    }
  });
  return 1;
}

int CS2kConverter::WriteRigidLinks() {
  const CKeyedTable<TvtRigidlinkRec>& links = targetModel->RigidLinks;
  if (links.Empty()) return 1;
  if (targetModel->ConstraintAutoAxisSeen) ShowMessage("IDS_S2KV8_REST_AutoAX_Not_Convert");
  if (targetModel->ConstraintLocalSeen) ShowMessage("IDS_S2KV8_REST_Local_Not_Convert");
  WriteText("%s\n", "*RIGIDLINK    ; Rigid Link");
  WriteText("; M-NODE, DOF, S-NODE LIST, GROUP\n");
  links.Walk([&](int, const TvtRigidlinkRec& rec) {
    WriteText("\t%s, %5s, %5s, %5s\n", rec.M_NODE.c_str(), rec.DOF.c_str(), rec.S_NODE_LIST.c_str(),
              rec.GROUP.c_str());
  });
  WriteText("\n");
  return 1;
}
