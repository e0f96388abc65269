// CSprings: joint, coupled, frame and area springs to *SPRING and *GSPRING.
#pragma once

#include <string>

#include "elements/spring_tables.h"
#include "frame/subject.h"

class CSprings : public CSubject {
 public:
  explicit CSprings(CS2kConverter& engine);

  int ParseJointSprings();
  int ParseJointCoupledSprings();
  int ParseFrameSprings();
  int ParseAreaSprings();
  int ConvertJointSprings();
  int ConvertCoupledSprings();
  /// Lumps line springs onto joints: \p mode 1 frames, 2 areas.
  int ConvertLineSprings(int mode);
  int WriteSprings();
  int WriteGeneralSprings();
  /// The node of a spring's joint list: the first joint's number when joints
  /// keep their numbers; under renumbering a list that is no joint's name
  /// leaves \p number as it was.
  void SpringNodeNumber(const std::string& nodeList, int& number) const;

 private:
  friend struct SubjectAccess;

  S2kSpringTables source_;
  TvtSpringTables target_;
  SpringRunFlags flags_;
};
