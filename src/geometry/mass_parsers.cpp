// The row parsers of the frame and area mass tables.
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kFrameMassRow> kFrameMassKeys[] = {
    TextKey("Frame=", &S2kFrameMassRow::Frame),
    NumberKey("MassPerLen=", &S2kFrameMassRow::MassPerLen),
};

constexpr S2kField<S2kAreaMassRow> kAreaMassKeys[] = {
    TextKey("Area=", &S2kAreaMassRow::Area),
    NumberKey("MassPerArea=", &S2kAreaMassRow::MassPerArea),
};

}  // namespace

int CS2kConverter::ParseFrameMasses() { return ParseRows(kFrameMassKeys, sourceModel->FrameMasses); }
int CS2kConverter::ParseAreaMasses() { return ParseRows(kAreaMassKeys, sourceModel->AreaMasses); }

const std::vector<S2kTableParser>& MassTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {111, RunStep<&CS2kConverter::ParseAreaMasses>},
      {231, RunStep<&CS2kConverter::ParseFrameMasses>},
  };
  return parsers;
}
