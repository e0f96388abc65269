// Joint restraints to *CONSTRAINT.
#include "frame/converter.h"

// The flags go over as they stand, also on a joint with local axes.
int CS2kConverter::ConvertRestraints() {
  int ok = 1;
  sourceModel->JointRestraintAssignments.Walk([&](int key, const S2kJointRestraintAssignmentsRow& row) {
    if (!ok) return;
    std::string flags;
    for (int flag : {row.U1, row.U2, row.U3, row.R1, row.R2, row.R3}) flags += flag ? '1' : '0';
    ok = targetModel->Constraints.SetAt(key, TvtConstraintRec{row.Joint, flags});
  });
  return ok;
}

int CS2kConverter::WriteConstraints() {
  const CKeyedTable<TvtConstraintRec>& constraints = targetModel->Constraints;
  if (constraints.Empty()) return 1;
  WriteText("%s\n", "*CONSTRAINT    ; Supports\n");
  WriteText("; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n");
  constraints.Walk([&](int, const TvtConstraintRec& rec) {
    WriteText("\t%d, %5s,\n", NodeNumberOf(rec.NODE_LIST), rec.CONST.c_str());
  });
  WriteText("\n");
  return 1;
}
