// The row parsers of the frame and area mass tables.
#include "geometry/masses.h"

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

using Mass = S2kJointMassRow;
constexpr S2kField<Mass> kJointMassKeys[] = {
    TextKey("Joint=", &Mass::Joint),  TextKey("CoordSys=", &Mass::CoordSys), NumberKey("Mass1=", &Mass::Mass1),
    NumberKey("Mass2=", &Mass::Mass2), NumberKey("Mass3=", &Mass::Mass3),     NumberKey("MMI1=", &Mass::MMI1),
    NumberKey("MMI2=", &Mass::MMI2),   NumberKey("MMI3=", &Mass::MMI3),
};

constexpr S2kField<S2kFrameMassRow> kFrameMassKeys[] = {
    TextKey("Frame=", &S2kFrameMassRow::Frame),
    NumberKey("MassPerLen=", &S2kFrameMassRow::MassPerLen),
};

constexpr S2kField<S2kAreaMassRow> kAreaMassKeys[] = {
    TextKey("Area=", &S2kAreaMassRow::Area),
    NumberKey("MassPerArea=", &S2kAreaMassRow::MassPerArea),
};

}  // namespace

int CMasses::ParseJointMasses() { return engine.ParseRows(kJointMassKeys, source_.JointMasses); }
int CMasses::ParseFrameMasses() { return engine.ParseRows(kFrameMassKeys, source_.FrameMasses); }
int CMasses::ParseAreaMasses() { return engine.ParseRows(kAreaMassKeys, source_.AreaMasses); }

const std::vector<S2kTableParser>& MassTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {111, RunStep<&CMasses::ParseAreaMasses>},
      {331, RunStep<&CMasses::ParseJointMasses>},
      {231, RunStep<&CMasses::ParseFrameMasses>},
  };
  return parsers;
}
