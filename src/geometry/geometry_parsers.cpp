// The row parsers of the joint, support, constraint and local axes tables.
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

using Mass = S2kJointMassRow;
constexpr S2kField<Mass> kJointMassKeys[] = {
    TextKey("Joint=", &Mass::Joint),  TextKey("CoordSys=", &Mass::CoordSys), NumberKey("Mass1=", &Mass::Mass1),
    NumberKey("Mass2=", &Mass::Mass2), NumberKey("Mass3=", &Mass::Mass3),     NumberKey("MMI1=", &Mass::MMI1),
    NumberKey("MMI2=", &Mass::MMI2),   NumberKey("MMI3=", &Mass::MMI3),
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
int CS2kConverter::ParseJointCoordinates() {
  auto cartesian = [](const std::string& rowText, S2kJointCoordinatesRow&) {
    std::vector<std::string> type;
    return !ReadStringList(rowText, "CoordType=", type) || type.empty() || type[0] == "Cartesian";
  };
  if (!::ParseRows(rowRows, kJointCoordinatesKeys, sourceModel->JointCoordinates, cartesian)) return 0;
  parsedRowCount += static_cast<int>(rowRows.size());
  return 1;
}

int CS2kConverter::ParseJointMasses() { return ParseRows(kJointMassKeys, sourceModel->JointMasses); }
int CS2kConverter::ParseJointRestraints() { return ParseRows(kJointRestraintKeys, sourceModel->JointRestraintAssignments); }
int CS2kConverter::ParseJointConstraints() { return ParseRows(kJointConstraintKeys, sourceModel->JointConstraintAssignments); }
int CS2kConverter::ParseConstraintBeam() { return ParseRows(kAxisConstraintKeys, sourceModel->ConstraintBeam); }
int CS2kConverter::ParseConstraintBody() { return ParseRows(kDofConstraintKeys, sourceModel->ConstraintBody); }
int CS2kConverter::ParseConstraintDiaphragm() { return ParseRows(kDiaphragmKeys, sourceModel->ConstraintDiaphragm); }
int CS2kConverter::ParseConstraintEqual() { return ParseRows(kDofConstraintKeys, sourceModel->ConstraintEqual); }
int CS2kConverter::ParseConstraintLine() { return ParseRows(kDofConstraintKeys, sourceModel->ConstraintLine); }
int CS2kConverter::ParseConstraintPlate() { return ParseRows(kAxisConstraintKeys, sourceModel->ConstraintPlate); }
int CS2kConverter::ParseConstraintRod() { return ParseRows(kAxisConstraintKeys, sourceModel->ConstraintRod); }
int CS2kConverter::ParseConstraintWeld() { return ParseRows(kDofConstraintKeys, sourceModel->ConstraintWeld); }
int CS2kConverter::ParseJointLocalAxes1() { return ParseRows(kLocalAxesByAnglesKeys, sourceModel->JointLocalAxes1); }
int CS2kConverter::ParseJointLocalAxes2() { return ParseRows(kLocalAxesAdvancedKeys, sourceModel->JointLocalAxes2); }

const std::vector<S2kTableParser>& GeometryTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {104, RunStep<&CS2kConverter::ParseCoordinateSystem>},     {108, RunStep<&CS2kConverter::ParseProgramControl>},
      {211, RunStep<&CS2kConverter::ParseConstraintBeam>},       {212, RunStep<&CS2kConverter::ParseConstraintBody>},
      {213, RunStep<&CS2kConverter::ParseConstraintDiaphragm>},  {214, RunStep<&CS2kConverter::ParseConstraintEqual>},
      {215, RunStep<&CS2kConverter::ParseConstraintLine>},       {217, RunStep<&CS2kConverter::ParseConstraintPlate>},
      {218, RunStep<&CS2kConverter::ParseConstraintRod>},        {219, RunStep<&CS2kConverter::ParseConstraintWeld>},
      {331, RunStep<&CS2kConverter::ParseJointMasses>},          {332, RunStep<&CS2kConverter::ParseJointConstraints>},
      {333, RunStep<&CS2kConverter::ParseJointCoordinates>},     {336, RunStep<&CS2kConverter::ParseJointLocalAxes1>},
      {337, RunStep<&CS2kConverter::ParseJointLocalAxes2>},      {341, RunStep<&CS2kConverter::ParseJointRestraints>},
  };
  return parsers;
}
