// CGeometry: units, joints, supports, joint constraints and joint local axes.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "frame/subject.h"
#include "geometry/geometry_tables.h"

class CGeometry : public CSubject {
 public:
  explicit CGeometry(CS2kConverter& engine);

  // ---- units.cpp: tables 104 and 108 ----------------------------------------
  int ParseCoordinateSystem();
  int ParseProgramControl();
  /// 9.806 in the model's length unit; 9.806 for a unit it doesn't know.
  double GravityInModelUnits() const;
  /// A temperature of the model's unit in Celsius; 0 for an unknown unit.
  double ToCelsius(double value) const;
  /// The temperature word of table 108, as it stands.
  const CText& TemperatureUnit() const { return source_.TemperatureUnit; }
  /// *VERSION and *UNIT.
  int WriteVersionAndUnits();

  // ---- geometry_parsers.cpp ----------------------------------------------------
  int ParseJointCoordinates();     // 333
  int ParseJointRestraints();      // 341
  int ParseJointConstraints();     // 332
  int ParseConstraintBeam();       // 211
  int ParseConstraintBody();       // 212
  int ParseConstraintDiaphragm();  // 213
  int ParseConstraintEqual();      // 214
  int ParseConstraintLine();       // 215
  int ParseConstraintPlate();      // 217
  int ParseConstraintRod();        // 218
  int ParseConstraintWeld();       // 219
  int ParseJointLocalAxes1();      // 336
  int ParseJointLocalAxes2();      // 337

  // ---- joints.cpp ----------------------------------------------------------------
  int ConvertJoints();
  int BuildJointNumberMap();
  /// The joint number map, made only when joints are renumbered.
  int BuildJointNumberMapIfRenumbered();
  int WriteNodes();
  /// The node number of a joint name, as every writer takes it: under
  /// renumbering 0 for a name that is no joint's, else atoi of the name.
  int NodeNumberOf(std::string_view name) const;
  /// The same, but under renumbering an unknown name leaves \p number as it was.
  void ResolveNodeNumber(std::string_view name, int& number) const;
  /// 1 when every joint name is an integer that is its own node number.
  int JointsKeepNumbers() const { return target_.jointsKeepNumbers; }
  /// Global coordinates of joint \p name, first row in walk order.
  /// \returns 0, with zeros, when there is no such joint.
  int FindJointGlobalCoordinates(std::string_view name, double& x, double& y, double& z) const;

  // ---- restraints.cpp, constraints.cpp -------------------------------------------
  int ConvertRestraints();
  int WriteConstraints();
  int ConvertConstraints();
  int WriteRigidLinks();
  /// How a family picks its master: the first member, or by added masses.
  enum class ConstraintMasterKind { FirstMember = 0, AlongAxis = 1, ByMass = 2 };
  /// The master and the slaves of constraint \p name. \returns 1 when a
  /// rigid link can be made, 0 for fewer than two members.
  int CollectConstraintJoints(const std::string& name, ConstraintMasterKind kind, std::string& outMaster,
                              std::string& outSlaves);
  void ConvertBeamConstraint(const std::string& name, int& counter);
  void ConvertBodyConstraint(const std::string& name, int& counter);
  void ConvertDiaphragmConstraint(const std::string& name, int& counter);
  void ConvertEqualConstraint(const std::string& name, int& counter);
  void ConvertLineConstraint(const std::string& name, int& counter);
  void ConvertLocalConstraint(const std::string& name, int& counter);
  void ConvertPlateConstraint(const std::string& name, int& counter);
  void ConvertRodConstraint(const std::string& name, int& counter);
  void ConvertWeldConstraint(const std::string& name, int& counter);

  // ---- local_axes.cpp -----------------------------------------------------------
  int ConvertJointLocalAxes();
  int WriteLocalAxes();
  /// Adds a rotation record M = Rz Ry Rx for angles in degrees.
  void RotationFromAngles(const std::string& joint, double x, double y, double z);
  /// 1 when \p joint has a rotation record.
  int HasJointLocalAxes(std::string_view joint) const;
  /// Turns (a, b, c) from the joint's local axes to global axes, or back;
  /// results below 1e-5 in size become 0. A joint without local axes keeps
  /// the vector. \returns 1, or 0 when the joint has no record while others do.
  int LocalToGlobal(std::string_view joint, double& a, double& b, double& c) const;
  int GlobalToLocal(std::string_view joint, double& a, double& b, double& c) const;
  /// The advanced form of table 337 for \p rec, when the joint has a row.
  void ApplyAdvancedLocalAxes(TvtLocalAxisRec& rec);

 private:
  friend struct SubjectAccess;
  // The steps every constraint family takes, in constraints.cpp.
  template <class Row, class DofOf>
  void MakeRigidLink(const std::string& name, ConstraintMasterKind kind, const CKeyedTable<Row>& definitions,
                     const CNameIndex<Row>& index, int& counter, DofOf dofOf);
  template <class Row>
  void MakeAxisLink(const std::string& name, ConstraintMasterKind kind, const CKeyedTable<Row>& definitions,
                    const CNameIndex<Row>& index, int& counter);
  void MakeDofLink(const std::string& name, const CKeyedTable<S2kConstraintBodyRow>& definitions,
                   const CNameIndex<S2kConstraintBodyRow>& index, int& counter);

  S2kGeometryTables source_;
  TvtGeometryTables target_;
  CNameIndex<S2kJointCoordinatesRow> jointCoordinateNames_{&S2kJointCoordinatesRow::Joint};
  /// Members of each constraint in table 332, and the walk position of the
  /// first mass row of each joint; filled while ConvertConstraints runs.
  std::unordered_map<std::string, std::vector<std::string>> constraintMembers_;
  std::unordered_map<std::string, std::size_t> firstMassRowOf_;
};
