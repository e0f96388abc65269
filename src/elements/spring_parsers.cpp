// The row parsers of the spring tables.
#include "elements/springs.h"

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kJointSpringRow> kJointSpringKeys[] = {
    TextKey("Joint=", &S2kJointSpringRow::Joint),
    TextKey("CoordSys=", &S2kJointSpringRow::CoordSys),
    NumberKey("U1=", &S2kJointSpringRow::U1),
    NumberKey("U2=", &S2kJointSpringRow::U2),
    NumberKey("U3=", &S2kJointSpringRow::U3),
    NumberKey("R1=", &S2kJointSpringRow::R1),
    NumberKey("R2=", &S2kJointSpringRow::R2),
    NumberKey("R3=", &S2kJointSpringRow::R3),
};

// In the order of the triangle's places, column by column.
constexpr S2kField<S2kJointCoupledSpringRow> kJointCoupledSpringKeys[] = {
    TextKey("Joint=", &S2kJointCoupledSpringRow::Joint),
    TextKey("CoordSys=", &S2kJointCoupledSpringRow::CoordSys),
    NumberKey("U1=", &S2kJointCoupledSpringRow::U1),
    NumberKey("U1U2=", &S2kJointCoupledSpringRow::U1U2),
    NumberKey("U2=", &S2kJointCoupledSpringRow::U2),
    NumberKey("U1U3=", &S2kJointCoupledSpringRow::U1U3),
    NumberKey("U2U3=", &S2kJointCoupledSpringRow::U2U3),
    NumberKey("U3=", &S2kJointCoupledSpringRow::U3),
    NumberKey("U1R1=", &S2kJointCoupledSpringRow::U1R1),
    NumberKey("U2R1=", &S2kJointCoupledSpringRow::U2R1),
    NumberKey("U3R1=", &S2kJointCoupledSpringRow::U3R1),
    NumberKey("R1=", &S2kJointCoupledSpringRow::R1),
    NumberKey("U1R2=", &S2kJointCoupledSpringRow::U1R2),
    NumberKey("U2R2=", &S2kJointCoupledSpringRow::U2R2),
    NumberKey("U3R2=", &S2kJointCoupledSpringRow::U3R2),
    NumberKey("R2=", &S2kJointCoupledSpringRow::R2),
    NumberKey("U1R3=", &S2kJointCoupledSpringRow::U1R3),
    NumberKey("U2R3=", &S2kJointCoupledSpringRow::U2R3),
    NumberKey("U3R3=", &S2kJointCoupledSpringRow::U3R3),
    NumberKey("R3=", &S2kJointCoupledSpringRow::R3),
};

constexpr S2kField<S2kFrameSpringRow> kFrameSpringKeys[] = {
    TextKey("Frame=", &S2kFrameSpringRow::Frame),
    TextKey("Dir=", &S2kFrameSpringRow::Dir),
    NumberKey("Stiffness=", &S2kFrameSpringRow::Stiffness),
};

constexpr S2kField<S2kAreaSpringRow> kAreaSpringKeys[] = {
    TextKey("Area=", &S2kAreaSpringRow::Area),
    TextKey("Face=", &S2kAreaSpringRow::Face),
    TextKey("Dir=", &S2kAreaSpringRow::Dir),
    NumberKey("Stiffness=", &S2kAreaSpringRow::Stiffness),
};

}  // namespace

int CSprings::ParseJointSprings() { return engine.ParseRows(kJointSpringKeys, source_.JointSprings); }
int CSprings::ParseJointCoupledSprings() {
  return engine.ParseRows(kJointCoupledSpringKeys, source_.JointCoupledSprings);
}
int CSprings::ParseFrameSprings() { return engine.ParseRows(kFrameSpringKeys, source_.FrameSprings); }
int CSprings::ParseAreaSprings() { return engine.ParseRows(kAreaSpringKeys, source_.AreaSprings); }

const std::vector<S2kTableParser>& SpringTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {127, RunStep<&CSprings::ParseAreaSprings>},
      {258, RunStep<&CSprings::ParseFrameSprings>},
      {342, RunStep<&CSprings::ParseJointSprings>},
      {343, RunStep<&CSprings::ParseJointCoupledSprings>},
  };
  return parsers;
}
