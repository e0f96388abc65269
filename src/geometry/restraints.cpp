// Joint restraints to *CONSTRAINT.
#include "geometry/geometry.h"

#include "frame/converter.h"

// The flags go over as they stand, also on a joint with local axes.
int CGeometry::ConvertRestraints() {
  int ok = 1;
  source_.JointRestraintAssignments.Walk([&](int key, const S2kJointRestraintAssignmentsRow& row) {
    if (!ok) return;
    std::string flags;
    for (int flag : {row.U1, row.U2, row.U3, row.R1, row.R2, row.R3}) flags += flag ? '1' : '0';
    ok = target_.Constraints.SetAt(key, TvtConstraintRec{row.Joint, flags});
  });
  return ok;
}

int CGeometry::WriteConstraints() {
  const CKeyedTable<TvtConstraintRec>& constraints = target_.Constraints;
  if (constraints.Empty()) return 1;
  engine.WriteText("%s\n", "*CONSTRAINT    ; Supports\n");
  engine.WriteText("; NODE_LIST, CONST(Dx,Dy,Dz,Rx,Ry,Rz), GROUP\n");
  constraints.Walk([&](int, const TvtConstraintRec& rec) {
    engine.WriteText("\t%d, %5s,\n", NodeNumberOf(rec.NODE_LIST), rec.CONST.c_str());
  });
  engine.WriteText("\n");
  return 1;
}
