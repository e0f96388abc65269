// Units (table 108), the coordinate system (table 104), gravity and temperature.
#include "geometry/geometry.h"

#include "frame/converter.h"
#include "s2k/keys.h"

namespace {

using System = S2kCoordinateSystemRec;
// Name= is read on its own, before the test of Type=.
constexpr S2kField<System> kCoordinateSystemKeys[] = {
    NumberKey("X=", &System::X),           NumberKey("Y=", &System::Y),
    NumberKey("Z=", &System::Z),           NumberKey("AboutZ=", &System::AboutZ),
    NumberKey("AboutY=", &System::AboutY), NumberKey("AboutX=", &System::AboutX),
};

}  // namespace

// The first row only: joints are not moved by the system's origin or angles.
int CGeometry::ParseCoordinateSystem() {
  S2kCoordinateSystemRec system;
  if (!engine.rowRows.empty()) {
    const S2kRowText rowText(engine.rowRows[0]);
    ReadField(rowText, TextKey("Name=", &System::Name), system);
    std::vector<std::string> type;
    if (ReadStringList(rowText.Text(), "Type=", type) && !type.empty()) {
      if (type[0] != "Cartesian") {
        engine.ShowMessage("IDS_S2KV8_NODE_NOT_Cylindrical");
        return 0;
      }
      system.Type = type[0];
    }
    ReadFields(rowText, kCoordinateSystemKeys, system);
  }
  source_.CoordinateSystem = system;
  return 1;
}

// The first row's CurrUnits= gives force, length and temperature.
int CGeometry::ParseProgramControl() {
  std::string units[3] = {"Ton", "m", "C"};
  std::vector<std::string> list;
  if (!engine.rowRows.empty() && ReadStringList(engine.rowRows[0], "CurrUnits=", list))
    for (std::size_t i = 0; i < list.size() && i < 3; ++i) units[i] = list[i];
  source_.ForceUnit = units[0];
  source_.LengthUnit = units[1];
  source_.TemperatureUnit = units[2];
  return 1;
}

// Centimetres and millimetres scale the wrong way round; the target reads
// the value as it stands.
double CGeometry::GravityInModelUnits() const {
  struct LengthFactor {
    const char* unit;
    double factor;
  };
  static constexpr LengthFactor kFactors[] = {{"M", 1}, {"CM", 0.01}, {"MM", 0.001}, {"IN", 39.3701}, {"FT", 3.2808}};
  std::string length = source_.LengthUnit;
  UpperCase(length);
  for (const LengthFactor& entry : kFactors)
    if (length == entry.unit) return 9.806 * entry.factor;
  return 9.806;
}

double CGeometry::ToCelsius(double value) const {
  std::string unit = source_.TemperatureUnit;
  UpperCase(unit);
  if (unit == "C") return value;
  if (unit == "F") return (value - 32) * 5 / 9;
  return 0;
}

int CGeometry::WriteVersionAndUnits() {
  engine.WriteText("%s\n%s\n\n", "*VERSION", "5.8.1");
  engine.WriteText("%s\n", "*UNIT    ; Unit System");
  engine.WriteText("; FORCE, LENGTH\n");
  std::string force = source_.ForceUnit;
  std::string length = source_.LengthUnit;
  UpperCase(force);
  UpperCase(length);
  if (force == "TON") force = "TONF";
  if (force == "LB") force = "LBF";
  engine.WriteText("\t%s, %5s\n\n", force.c_str(), length.c_str());
  return 1;
}
