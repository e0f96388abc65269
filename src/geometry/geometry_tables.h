// Rows, records and tables of units, joints, supports, constraints and joint
// local axes.
#pragma once

#include "s2k/text.h"
#include <string>
#include <unordered_map>

#include "s2k/keyed_table.h"
#include "s2k/name_index.h"

/// Table 104: the first coordinate system of the file.
struct S2kCoordinateSystemRec {
  CText Name = "GLOBAL";
  CText Type = "Cartesian";
  double X = 0, Y = 0, Z = 0, AboutZ = 0, AboutY = 0, AboutX = 0;
};

/// Table 333.
struct S2kJointCoordinatesRow {
  CText Joint, CoordSys, CoordType;
  double XorR = 0, Y = 0, Z = 0, T = 0;
  int SpecialJt = 0;
  double GlobalX = 0, GlobalY = 0, GlobalZ = 0;
};

/// Table 341: flags set where the joint is held.
struct S2kJointRestraintAssignmentsRow {
  CText Joint;
  int U1 = 0, U2 = 0, U3 = 0, R1 = 0, R2 = 0, R3 = 0;
};

/// Table 332: which constraint a joint belongs to.
struct S2kJointConstraintAssignmentsRow {
  CText Joint, Constraint, Type;
};

/// Tables 211, 217, 218: constraints about one axis.
struct S2kConstraintBeamRow {
  CText Name, CoordSys, Axis;
};
using S2kConstraintPlateRow = S2kConstraintBeamRow;
using S2kConstraintRodRow = S2kConstraintBeamRow;

/// Table 213.
struct S2kConstraintDiaphragmRow {
  CText Name, CoordSys, Axis;
  int MultiLevel = 0;
};

/// Tables 212, 214, 215, 219: constraints by degrees of freedom.
struct S2kConstraintBodyRow {
  CText Name, CoordSys;
  int UX = 0, UY = 0, UZ = 0, RX = 0, RY = 0, RZ = 0;
};
using S2kConstraintEqualRow = S2kConstraintBodyRow;
using S2kConstraintLineRow = S2kConstraintBodyRow;
using S2kConstraintWeldRow = S2kConstraintBodyRow;

/// Table 336: local axes by three angles in degrees.
struct S2kJointLocalAxes1Row {
  CText Joint;
  double AngleA = 0, AngleB = 0, AngleC = 0;
  int AdvanceAxes = 0;
};

/// Table 337: local axes by an axis and a plane.
struct S2kJointLocalAxes2Row {
  CText Joint, LocalPlane, AxOption1, AxCoordSys, AxCoordDir, AxVecJt1, AxVecJt2, PlOption1, PlCoordSys,
      CoordDir1, CoordDir2, PlVecJt1, PlVecJt2;
  double AxVecX = 0, AxVecY = 0, AxVecZ = 0, PlVecX = 0, PlVecY = 0, PlVecZ = 0;
};

struct S2kGeometryTables {
  void Reset() {
    JointCoordinates.Reset(10001);
    JointRestraintAssignments.Reset(10001);
    JointConstraintAssignments.Reset(10001);
    ConstraintBeam.Reset(17);
    ConstraintBody.Reset(17);
    ConstraintDiaphragm.Reset(17);
    ConstraintEqual.Reset(17);
    ConstraintLine.Reset(17);
    ConstraintPlate.Reset(17);
    ConstraintRod.Reset(17);
    ConstraintWeld.Reset(17);
    JointLocalAxes1.Reset(10001);
    JointLocalAxes2.Reset(10001);
  }

  /// Units of table 108; empty when the file has none.
  CText ForceUnit, LengthUnit, TemperatureUnit;
  S2kCoordinateSystemRec CoordinateSystem;  // 104

  CKeyedTable<S2kJointConstraintAssignmentsRow> JointConstraintAssignments;        // 332
  CKeyedTable<S2kJointCoordinatesRow> JointCoordinates;                            // 333
  CKeyedTable<S2kJointLocalAxes1Row> JointLocalAxes1;                              // 336
  CKeyedTable<S2kJointLocalAxes2Row> JointLocalAxes2;                              // 337
  CKeyedTable<S2kJointRestraintAssignmentsRow> JointRestraintAssignments;          // 341
  CKeyedTable<S2kConstraintBeamRow> ConstraintBeam;                                // 211
  CKeyedTable<S2kConstraintBodyRow> ConstraintBody;                                // 212
  CKeyedTable<S2kConstraintDiaphragmRow> ConstraintDiaphragm;                      // 213
  CKeyedTable<S2kConstraintEqualRow> ConstraintEqual;                              // 214
  CKeyedTable<S2kConstraintLineRow> ConstraintLine;                                // 215
  CKeyedTable<S2kConstraintPlateRow> ConstraintPlate;                              // 217
  CKeyedTable<S2kConstraintRodRow> ConstraintRod;                                  // 218
  CKeyedTable<S2kConstraintWeldRow> ConstraintWeld;                                // 219

  /// The first row of a name in walk order, for the constraint definitions
  /// and the advanced local axes.
  CNameIndex<S2kConstraintBeamRow> beamsByName{&S2kConstraintBeamRow::Name};
  CNameIndex<S2kConstraintBodyRow> bodiesByName{&S2kConstraintBodyRow::Name};
  CNameIndex<S2kConstraintDiaphragmRow> diaphragmsByName{&S2kConstraintDiaphragmRow::Name};
  CNameIndex<S2kConstraintEqualRow> equalsByName{&S2kConstraintEqualRow::Name};
  CNameIndex<S2kConstraintLineRow> linesByName{&S2kConstraintLineRow::Name};
  CNameIndex<S2kConstraintPlateRow> platesByName{&S2kConstraintPlateRow::Name};
  CNameIndex<S2kConstraintRodRow> rodsByName{&S2kConstraintRodRow::Name};
  CNameIndex<S2kConstraintWeldRow> weldsByName{&S2kConstraintWeldRow::Name};
  CNameIndex<S2kJointLocalAxes2Row> advancedAxesByJoint{&S2kJointLocalAxes2Row::Joint};
};

/// Run flags of the geometry conversion: set in conversion, tested by writers.
struct GeometryRunFlags {};

/// A row of *NODE.
struct TvtNodeRec {
  CText Name;
  double X = 0, Y = 0, Z = 0;
};

/// A joint's node number under renumbering.
struct TvtJointNumberRec {
  int iNO = 0;
  int number = 0;
  CText Joint;
};

/// A row of *CONSTRAINT: CONST holds "0" or "1" for U1, U2, U3, R1, R2, R3.
struct TvtConstraintRec {
  CText NODE_LIST, CONST;
};

/// A row of *RIGIDLINK. Node texts go out as they were stored.
struct TvtRigidlinkRec {
  CText Reserved, M_NODE, DOF, S_NODE_LIST, GROUP;
};

/// A row of *LOCALAXIS: iMETHOD 1 by angles, 3 by two vectors.
struct TvtLocalAxisRec {
  CText NODE_LIST;
  int iMETHOD = 1;
  double ANGLE_x = 0, ANGLE_y = 0, ANGLE_z = 0;
  double P0X = 0, P0Y = 0, P0Z = 0, P1X = 0, P1Y = 0, P1Z = 0, P2X = 0, P2Y = 0, P2Z = 0;
  double V1X = 0, V1Y = 0, V1Z = 0, V2X = 0, V2Y = 0, V2Z = 0;
};

/// A joint's local axes: the columns of M are axes 1, 2, 3 in global axes.
struct TvtJointRotationRec {
  CText Joint;
  double M[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

struct TvtGeometryTables {
  void Reset() {
    Nodes.Reset(10001);
    Constraints.Reset(10001);
    LocalAxes.Reset(10001);
    RigidLinks.Reset(10001);
    jointNumberMap.Reset(10001);
    JointRotations.Reset(10001);
    ConstraintAutoAxisSeen = 0;
    ConstraintLocalSeen = 0;
    rotationKeys_.clear();
  }

  /// Under renumbering: sets \p number to the node of the first joint of
  /// \p name in the walk of jointNumberMap and \returns 1. An unknown name
  /// \returns 0 and an empty map 1, both leaving \p number as it was.
  int LookupNodeNumber(std::string_view name, int& number) const;

  /// The rotation record of a joint: the first in walk order, or nullptr.
  const TvtJointRotationRec* FindJointRotation(std::string_view joint) const;
  /// Adds \p rec under the count plus 1, or, with \p replace, overwrites the
  /// joint's record when it has one. \returns the insert's result.
  int StoreJointRotation(const TvtJointRotationRec& rec, bool replace);

  CKeyedTable<TvtNodeRec> Nodes;                // *NODE
  CKeyedTable<TvtConstraintRec> Constraints;    // *CONSTRAINT
  CKeyedTable<TvtLocalAxisRec> LocalAxes;       // *LOCALAXIS
  CKeyedTable<TvtRigidlinkRec> RigidLinks;      // *RIGIDLINK
  CKeyedTable<TvtJointNumberRec> jointNumberMap;
  CKeyedTable<TvtJointRotationRec> JointRotations;
  int ConstraintAutoAxisSeen = 0;
  int ConstraintLocalSeen = 0;

  /// 1 when every joint name is an integer that is its own node number.
  int jointsKeepNumbers = 1;

 private:
  CNameIndex<TvtJointNumberRec> jointNumbersByName_{&TvtJointNumberRec::Joint};
  /// Kept as records go in: the rotations are added one by one between
  /// lookups, so a rebuilt index would cost a walk per joint.
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> rotationKeys_;
};
