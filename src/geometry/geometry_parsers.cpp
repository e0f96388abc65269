// The row parsers of the joint, support, constraint and local axes tables.
#include "geometry/geometry.h"

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

using Joint = S2kJointCoordinatesRow;
constexpr S2kField<Joint> kJointCoordinatesKeys[] = {
    TextKey("Joint=", &Joint::Joint),        TextKey("CoordSys=", &Joint::CoordSys),
    TextKey("CoordType=", &Joint::CoordType), NumberKey("XorR=", &Joint::XorR),
    NumberKey("Y=", &Joint::Y),              NumberKey("T=", &Joint::T),
    NumberKey("Z=", &Joint::Z),              FlagKey("SpecialJt=", &Joint::SpecialJt),
    NumberKey("GlobalX=", &Joint::GlobalX),  NumberKey("GlobalY=", &Joint::GlobalY),
    NumberKey("GlobalZ=", &Joint::GlobalZ),
};

using Restraint = S2kJointRestraintAssignmentsRow;
constexpr S2kField<Restraint> kJointRestraintKeys[] = {
    TextKey("Joint=", &Restraint::Joint), FlagKey("U1=", &Restraint::U1), FlagKey("U2=", &Restraint::U2),
    FlagKey("U3=", &Restraint::U3),       FlagKey("R1=", &Restraint::R1), FlagKey("R2=", &Restraint::R2),
    FlagKey("R3=", &Restraint::R3),
};

using Assignment = S2kJointConstraintAssignmentsRow;
constexpr S2kField<Assignment> kJointConstraintKeys[] = {
    TextKey("Joint=", &Assignment::Joint),
    TextKey("Constraint=", &Assignment::Constraint),
    TextKey("Type=", &Assignment::Type),
};

using AxisConstraint = S2kConstraintBeamRow;
constexpr S2kField<AxisConstraint> kAxisConstraintKeys[] = {
    TextKey("Name=", &AxisConstraint::Name),
    TextKey("CoordSys=", &AxisConstraint::CoordSys),
    TextKey("Axis=", &AxisConstraint::Axis),
};

using Diaphragm = S2kConstraintDiaphragmRow;
constexpr S2kField<Diaphragm> kDiaphragmKeys[] = {
    TextKey("Name=", &Diaphragm::Name),
    TextKey("CoordSys=", &Diaphragm::CoordSys),
    TextKey("Axis=", &Diaphragm::Axis),
    FlagKey("MultiLevel=", &Diaphragm::MultiLevel),
};

using DofConstraint = S2kConstraintBodyRow;
constexpr S2kField<DofConstraint> kDofConstraintKeys[] = {
    TextKey("Name=", &DofConstraint::Name), TextKey("CoordSys=", &DofConstraint::CoordSys),
    FlagKey("UX=", &DofConstraint::UX),     FlagKey("UY=", &DofConstraint::UY),
    FlagKey("UZ=", &DofConstraint::UZ),     FlagKey("RX=", &DofConstraint::RX),
    FlagKey("RY=", &DofConstraint::RY),     FlagKey("RZ=", &DofConstraint::RZ),
};

using Angles = S2kJointLocalAxes1Row;
constexpr S2kField<Angles> kLocalAxesByAnglesKeys[] = {
    TextKey("Joint=", &Angles::Joint),   NumberKey("AngleA=", &Angles::AngleA),
    NumberKey("AngleB=", &Angles::AngleB), NumberKey("AngleC=", &Angles::AngleC),
    FlagKey("AdvanceAxes=", &Angles::AdvanceAxes),
};

using Advanced = S2kJointLocalAxes2Row;
constexpr S2kField<Advanced> kLocalAxesAdvancedKeys[] = {
    TextKey("Joint=", &Advanced::Joint),         TextKey("LocalPlane=", &Advanced::LocalPlane),
    TextKey("AxOption1=", &Advanced::AxOption1), TextKey("AxCoordSys=", &Advanced::AxCoordSys),
    TextKey("AxCoordDir=", &Advanced::AxCoordDir), TextKey("AxVecJt1=", &Advanced::AxVecJt1),
    TextKey("AxVecJt2=", &Advanced::AxVecJt2),   TextKey("PlOption1=", &Advanced::PlOption1),
    TextKey("PlCoordSys=", &Advanced::PlCoordSys), TextKey("CoordDir1=", &Advanced::CoordDir1),
    TextKey("CoordDir2=", &Advanced::CoordDir2), TextKey("PlVecJt1=", &Advanced::PlVecJt1),
    TextKey("PlVecJt2=", &Advanced::PlVecJt2),   NumberKey("AxVecX=", &Advanced::AxVecX),
    NumberKey("AxVecY=", &Advanced::AxVecY),     NumberKey("AxVecZ=", &Advanced::AxVecZ),
    NumberKey("PlVecX=", &Advanced::PlVecX),     NumberKey("PlVecY=", &Advanced::PlVecY),
    NumberKey("PlVecZ=", &Advanced::PlVecZ),
};

}  // namespace

// A joint given in any system but Cartesian ends the read there, silently.
int CGeometry::ParseJointCoordinates() {
  auto cartesian = [](const S2kRowText& rowText, S2kJointCoordinatesRow&) {
    std::string type;
    return !ReadFirstText(rowText, "CoordType=", type) || type == "Cartesian";
  };
  if (!::ParseRows(engine.rowRows, kJointCoordinatesKeys, source_.JointCoordinates, cartesian)) return 0;
  engine.parsedRowCount += static_cast<int>(engine.rowRows.size());
  return 1;
}

int CGeometry::ParseJointRestraints() { return engine.ParseRows(kJointRestraintKeys, source_.JointRestraintAssignments); }
int CGeometry::ParseJointConstraints() { return engine.ParseRows(kJointConstraintKeys, source_.JointConstraintAssignments); }
int CGeometry::ParseConstraintBeam() { return engine.ParseRows(kAxisConstraintKeys, source_.ConstraintBeam); }
int CGeometry::ParseConstraintBody() { return engine.ParseRows(kDofConstraintKeys, source_.ConstraintBody); }
int CGeometry::ParseConstraintDiaphragm() { return engine.ParseRows(kDiaphragmKeys, source_.ConstraintDiaphragm); }
int CGeometry::ParseConstraintEqual() { return engine.ParseRows(kDofConstraintKeys, source_.ConstraintEqual); }
int CGeometry::ParseConstraintLine() { return engine.ParseRows(kDofConstraintKeys, source_.ConstraintLine); }
int CGeometry::ParseConstraintPlate() { return engine.ParseRows(kAxisConstraintKeys, source_.ConstraintPlate); }
int CGeometry::ParseConstraintRod() { return engine.ParseRows(kAxisConstraintKeys, source_.ConstraintRod); }
int CGeometry::ParseConstraintWeld() { return engine.ParseRows(kDofConstraintKeys, source_.ConstraintWeld); }
int CGeometry::ParseJointLocalAxes1() { return engine.ParseRows(kLocalAxesByAnglesKeys, source_.JointLocalAxes1); }
int CGeometry::ParseJointLocalAxes2() { return engine.ParseRows(kLocalAxesAdvancedKeys, source_.JointLocalAxes2); }

const std::vector<S2kTableParser>& GeometryTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {104, RunStep<&CGeometry::ParseCoordinateSystem>},     {108, RunStep<&CGeometry::ParseProgramControl>},
      {211, RunStep<&CGeometry::ParseConstraintBeam>},       {212, RunStep<&CGeometry::ParseConstraintBody>},
      {213, RunStep<&CGeometry::ParseConstraintDiaphragm>},  {214, RunStep<&CGeometry::ParseConstraintEqual>},
      {215, RunStep<&CGeometry::ParseConstraintLine>},       {217, RunStep<&CGeometry::ParseConstraintPlate>},
      {218, RunStep<&CGeometry::ParseConstraintRod>},        {219, RunStep<&CGeometry::ParseConstraintWeld>},
      {332, RunStep<&CGeometry::ParseJointConstraints>},
      {333, RunStep<&CGeometry::ParseJointCoordinates>},     {336, RunStep<&CGeometry::ParseJointLocalAxes1>},
      {337, RunStep<&CGeometry::ParseJointLocalAxes2>},      {341, RunStep<&CGeometry::ParseJointRestraints>},
  };
  return parsers;
}
