// CMasses: joint, frame and area masses lumped onto nodes.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <unordered_map>

#include "frame/subject.h"
#include "geometry/mass_tables.h"

class CMasses : public CSubject {
 public:
  explicit CMasses(CS2kConverter& engine);

  int ParseJointMasses();  // 331
  int ParseFrameMasses();  // 231
  int ParseAreaMasses();   // 111

  /// Merges \p record into the nodal mass of its joint. \returns the insert's result.
  int AddNodalMass(TvtNodalmassRec record);
  /// Adds \p m to the three masses of each joint of \p joints, in order.
  int LumpNodalMass(std::initializer_list<const CText*> joints, double m);
  int ConvertJointMasses();
  int ConvertFrameMasses();
  int ConvertAreaMasses();
  int WriteNodalMasses();

  /// 1 when table 331 has rows.
  int HasJointMasses() const { return !source_.JointMasses.Empty(); }
  /// The walk position of the first row of table 331 of each joint.
  std::unordered_map<std::string, std::size_t> FirstJointMassRows() const;

 private:
  friend struct SubjectAccess;

  S2kMassTables source_;
  TvtMassTables target_;
};
