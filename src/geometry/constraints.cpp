// Joint constraints to *RIGIDLINK.
#include <unordered_set>

#include "geometry/geometry.h"

#include "frame/converter.h"
#include "geometry/masses.h"

using Kind = CGeometry::ConstraintMasterKind;

// The steps every family takes. \p dofOf fills the DOF from the definition
// row and returns false to make no link; a constraint without a definition
// row is linked with an empty DOF.
template <class Row, class DofOf>
void CGeometry::MakeRigidLink(const std::string& name, Kind kind, const CKeyedTable<Row>& definitions,
                   const CNameIndex<Row>& index, int& counter, DofOf dofOf) {
  TvtRigidlinkRec rec;
  std::string master, slaves;
  if (!CollectConstraintJoints(name, kind, master, slaves)) return;
  rec.M_NODE = master;
  rec.S_NODE_LIST = slaves;
  if (definitions.Empty()) return;
  const Row* row = index.Find(definitions, name);
  if (row && !dofOf(*row, rec.DOF)) return;
  target_.RigidLinks.SetAt(++counter, rec);
}

// A constraint about an axis other than X, Y or Z had its axis chosen by
// the program, which the target can't take.
template <class Row>
void CGeometry::MakeAxisLink(const std::string& name, Kind kind, const CKeyedTable<Row>& definitions,
                  const CNameIndex<Row>& index, int& counter) {
  MakeRigidLink(name, kind, definitions, index, counter, [&](const Row& row, CText& dof) {
    if (row.Axis == "X")
      dof = "011100";
    else if (row.Axis == "Y")
      dof = "101010";
    else if (row.Axis == "Z")
      dof = "110001";
    else
      target_.ConstraintAutoAxisSeen = 1;
    return !dof.empty();
  });
}

void CGeometry::MakeDofLink(const std::string& name, const CKeyedTable<S2kConstraintBodyRow>& definitions,
                            const CNameIndex<S2kConstraintBodyRow>& index, int& counter) {
  MakeRigidLink(name, Kind::FirstMember, definitions, index, counter,
                [](const S2kConstraintBodyRow& row, CText& dof) {
                  for (int flag : {row.UX, row.UY, row.UZ, row.RX, row.RY, row.RZ}) dof += flag ? '1' : '0';
                  return true;
                });
}

int CGeometry::CollectConstraintJoints(const std::string& name, ConstraintMasterKind kind, std::string& outMaster,
                                           std::string& outSlaves) {
  outMaster.clear();
  outSlaves.clear();
  if (source_.JointConstraintAssignments.Empty()) return 1;
  auto found = constraintMembers_.find(name);
  if (found == constraintMembers_.end() || found->second.size() < 2) return 0;
  std::vector<std::string> members = found->second;

  // By added masses the master is the member of the first mass row in the
  // walk; with masses elsewhere only, there is no master and the first
  // member is lost all the same.
  bool removed = false;
  if (kind != ConstraintMasterKind::ByMass || !engine.Get<CMasses>().HasJointMasses()) {
    outMaster = members[0];
  } else {
    std::size_t best = members.size(), bestRow = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
      auto row = firstMassRowOf_.find(members[i]);
      if (row != firstMassRowOf_.end() && (best == members.size() || row->second < bestRow)) {
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

void CGeometry::ConvertBeamConstraint(const std::string& name, int& counter) {
  MakeAxisLink(name, Kind::AlongAxis, source_.ConstraintBeam, source_.beamsByName, counter);
}
void CGeometry::ConvertDiaphragmConstraint(const std::string& name, int& counter) {
  MakeAxisLink(name, Kind::ByMass, source_.ConstraintDiaphragm, source_.diaphragmsByName, counter);
}
void CGeometry::ConvertPlateConstraint(const std::string& name, int& counter) {
  MakeAxisLink(name, Kind::ByMass, source_.ConstraintPlate, source_.platesByName, counter);
}
void CGeometry::ConvertRodConstraint(const std::string& name, int& counter) {
  MakeAxisLink(name, Kind::AlongAxis, source_.ConstraintRod, source_.rodsByName, counter);
}
void CGeometry::ConvertBodyConstraint(const std::string& name, int& counter) {
  MakeDofLink(name, source_.ConstraintBody, source_.bodiesByName, counter);
}
void CGeometry::ConvertEqualConstraint(const std::string& name, int& counter) {
  MakeDofLink(name, source_.ConstraintEqual, source_.equalsByName, counter);
}
void CGeometry::ConvertLineConstraint(const std::string& name, int& counter) {
  MakeDofLink(name, source_.ConstraintLine, source_.linesByName, counter);
}
void CGeometry::ConvertWeldConstraint(const std::string& name, int& counter) {
  MakeDofLink(name, source_.ConstraintWeld, source_.weldsByName, counter);
}
// Local axes of a constraint can't be carried; only the writer says so.
void CGeometry::ConvertLocalConstraint(const std::string&, int&) { target_.ConstraintLocalSeen = 1; }

int CGeometry::ConvertConstraints() {
  const CKeyedTable<S2kJointConstraintAssignmentsRow>& assignments = source_.JointConstraintAssignments;
  if (assignments.Empty()) return 1;

  // Members in the order of the rows. The node map is filled only at the end
  // of the joint step, so under renumbering every member is the text that a
  // node number of 0 printed as a text gives.
  constraintMembers_.clear();
  for (int key = 1; key <= assignments.Count(); ++key)
    if (const S2kJointConstraintAssignmentsRow* row = assignments.Lookup(key))
      constraintMembers_[row->Constraint].push_back(target_.jointsKeepNumbers ? row->Joint : "(null)");
  firstMassRowOf_ = engine.Get<CMasses>().FirstJointMassRows();

  using Operation = void (CGeometry::*)(const std::string&, int&);
  static constexpr struct {
    const char* type;
    Operation convert;
  } kFamilies[] = {
      {"Beam", &CGeometry::ConvertBeamConstraint},   {"Body", &CGeometry::ConvertBodyConstraint},
      {"Diaphragm", &CGeometry::ConvertDiaphragmConstraint}, {"Equal", &CGeometry::ConvertEqualConstraint},
      {"Line", &CGeometry::ConvertLineConstraint},   {"Local", &CGeometry::ConvertLocalConstraint},
      {"Plate", &CGeometry::ConvertPlateConstraint}, {"Rod", &CGeometry::ConvertRodConstraint},
      {"Weld", &CGeometry::ConvertWeldConstraint},
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

int CGeometry::WriteRigidLinks() {
  const CKeyedTable<TvtRigidlinkRec>& links = target_.RigidLinks;
  if (links.Empty()) return 1;
  if (target_.ConstraintAutoAxisSeen) engine.ShowMessage("IDS_S2KV8_REST_AutoAX_Not_Convert");
  if (target_.ConstraintLocalSeen) engine.ShowMessage("IDS_S2KV8_REST_Local_Not_Convert");
  engine.WriteText("%s\n", "*RIGIDLINK    ; Rigid Link");
  engine.WriteText("; M-NODE, DOF, S-NODE LIST, GROUP\n");
  links.Walk([&](int, const TvtRigidlinkRec& rec) {
    engine.WriteText("\t%s, %5s, %5s, %5s\n", rec.M_NODE.c_str(), rec.DOF.c_str(), rec.S_NODE_LIST.c_str(),
              rec.GROUP.c_str());
  });
  engine.WriteText("\n");
  return 1;
}
