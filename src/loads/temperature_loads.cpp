// Temperature loads: their tables, reference temperatures, joint patterns,
// and the conversion of each kind of object.
#include "loads/temperature_loads.h"

#include "elements/elements.h"
#include "elements/properties.h"
#include "frame/converter.h"
#include "geometry/geometry.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kTemperatureRow> kFrameTemperatureKeys[] = {
    TextKey("Frame=", &S2kTemperatureRow::Name),       TextKey("LoadCase=", &S2kTemperatureRow::LoadCase),
    TextKey("Type=", &S2kTemperatureRow::Type),        NumberKey("Temp=", &S2kTemperatureRow::Temp),
    NumberKey("TempGrad2=", &S2kTemperatureRow::TempGrad2), NumberKey("TempGrad3=", &S2kTemperatureRow::TempGrad3),
    TextKey("JtPattern=", &S2kTemperatureRow::JtPattern),
};

constexpr S2kField<S2kTemperatureRow> kAreaTemperatureKeys[] = {
    TextKey("Area=", &S2kTemperatureRow::Name),        TextKey("LoadCase=", &S2kTemperatureRow::LoadCase),
    TextKey("Type=", &S2kTemperatureRow::Type),        NumberKey("Temp=", &S2kTemperatureRow::Temp),
    NumberKey("TempGrad3=", &S2kTemperatureRow::TempGrad3), TextKey("JtPattern=", &S2kTemperatureRow::JtPattern),
};

constexpr S2kField<S2kTemperatureRow> kSolidTemperatureKeys[] = {
    TextKey("Solid=", &S2kTemperatureRow::Name),
    TextKey("LoadCase=", &S2kTemperatureRow::LoadCase),
    NumberKey("Temp=", &S2kTemperatureRow::Temp),
    TextKey("JtPattern=", &S2kTemperatureRow::JtPattern),
};

constexpr S2kField<S2kReferenceTemperatureRow> kFrameReferenceKeys[] = {
    TextKey("Frame=", &S2kReferenceTemperatureRow::Name),
    NumberKey("Temp=", &S2kReferenceTemperatureRow::Temp),
    TextKey("JtPattern=", &S2kReferenceTemperatureRow::JtPattern),
};
constexpr S2kField<S2kReferenceTemperatureRow> kAreaReferenceKeys[] = {
    TextKey("Area=", &S2kReferenceTemperatureRow::Name),
    NumberKey("Temp=", &S2kReferenceTemperatureRow::Temp),
    TextKey("JtPattern=", &S2kReferenceTemperatureRow::JtPattern),
};
constexpr S2kField<S2kReferenceTemperatureRow> kSolidReferenceKeys[] = {
    TextKey("Solid=", &S2kReferenceTemperatureRow::Name),
    NumberKey("Temp=", &S2kReferenceTemperatureRow::Temp),
    TextKey("JtPattern=", &S2kReferenceTemperatureRow::JtPattern),
};

constexpr S2kField<S2kJointPatternRow> kJointPatternKeys[] = {
    TextKey("Joint=", &S2kJointPatternRow::Joint),
    TextKey("Pattern=", &S2kJointPatternRow::Pattern),
    NumberKey("Value=", &S2kJointPatternRow::Value),
};

constexpr S2kField<S2kJointPatternDefinitionRow> kJointPatternDefinitionKeys[] = {
    TextKey("Pattern=", &S2kJointPatternDefinitionRow::Pattern),
};

/// 5/9: a gradient per degree Fahrenheit to Celsius, whatever the file's unit.
constexpr double kGradientFactor = 0.5555555555555556;

std::string PairKey(const std::string& a, const std::string& b) {
  std::string key = a;
  key += '\0';
  key += b;
  return key;
}

}  // namespace

const std::vector<S2kTableParser>& TemperatureTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {238, RunStep<&CTemperatureLoads::ParseFrameTemperatures>},
      {117, RunStep<&CTemperatureLoads::ParseAreaTemperatures>},
      {485, RunStep<&CTemperatureLoads::ParseSolidTemperatures>},
      {249, RunStep<&CTemperatureLoads::ParseFrameReferences>},
      {124, RunStep<&CTemperatureLoads::ParseAreaReferences>},
      {491, RunStep<&CTemperatureLoads::ParseSolidReferences>},
      {339, RunStep<&CTemperatureLoads::ParseJointPatterns>},
      {340, RunStep<&CTemperatureLoads::ParseJointPatternDefinitions>},
  };
  return parsers;
}

CTemperatureLoads::CTemperatureLoads(CS2kConverter& engine) : CSubject(engine) {
  frameTemperatures_.Reset(10001);
  areaTemperatures_.Reset(17);
  solidTemperatures_.Reset(17);
  frameReferences_.Reset(10001);
  areaReferences_.Reset(17);
  solidReferences_.Reset(17);
  jointPatterns_.Reset(10001);
  patternDefinitions_.Reset(17);
  eltempers_.Reset(10001);
  ndtempers_.Reset(17);
  thergrads_.Reset(10001);
}

int CTemperatureLoads::ParseFrameTemperatures() { return engine.ParseRows(kFrameTemperatureKeys, frameTemperatures_); }
int CTemperatureLoads::ParseAreaTemperatures() { return engine.ParseRows(kAreaTemperatureKeys, areaTemperatures_); }
int CTemperatureLoads::ParseSolidTemperatures() { return engine.ParseRows(kSolidTemperatureKeys, solidTemperatures_); }
int CTemperatureLoads::ParseFrameReferences() { return engine.ParseRows(kFrameReferenceKeys, frameReferences_); }
int CTemperatureLoads::ParseAreaReferences() { return engine.ParseRows(kAreaReferenceKeys, areaReferences_); }
int CTemperatureLoads::ParseSolidReferences() { return engine.ParseRows(kSolidReferenceKeys, solidReferences_); }
int CTemperatureLoads::ParseJointPatterns() { return engine.ParseRows(kJointPatternKeys, jointPatterns_); }
int CTemperatureLoads::ParseJointPatternDefinitions() {
  return engine.ParseRows(kJointPatternDefinitionKeys, patternDefinitions_);
}

void CTemperatureLoads::GetReferenceTemperature(const std::string& Name, int Mode, double& Temp) const {
  const S2kReferenceTemperatureRow* row =
      Mode == 1   ? frameReferenceNames_.Find(frameReferences_, Name)
      : Mode == 2 ? areaReferenceNames_.Find(areaReferences_, Name)
                  : solidReferenceNames_.Find(solidReferences_, Name);
  if (row) Temp = engine.Get<CGeometry>().ToCelsius(row->Temp);
}

void CTemperatureLoads::GetJointPatternValue(const std::string& Joint, const std::string& Pattern, double& Value) {
  if (patternValuesCount_ != jointPatterns_.Count()) {
    patternValues_.clear();
    jointPatterns_.Walk([&](int, const S2kJointPatternRow& row) {
      patternValues_.try_emplace(PairKey(row.Joint, row.Pattern), row.Value);
    });
    patternValuesCount_ = jointPatterns_.Count();
  }
  auto it = patternValues_.find(PairKey(Joint, Pattern));
  if (it != patternValues_.end()) Value = it->second;
}

void CTemperatureLoads::AddNodeTemperature(const std::string& Joint, const std::string& LCNAME, int& Key,
                                           TvtNdtemperRec& record) {
  if (ndtempers_.Empty()) return;
  auto it = nodeKeys_.find(PairKey(Joint, LCNAME));
  if (it == nodeKeys_.end()) {
    Key = ndtempers_.Count() + 1;
    return;
  }
  Key = it->second;
  record.TEMPER += ndtempers_.Lookup(Key)->TEMPER;
}

void CTemperatureLoads::GetFrameSectionDepths(const std::string& Frame, double& t2, double& t3) {
  CProperties& properties = engine.Get<CProperties>();
  std::string section;
  if (!properties.FindFrameSectionName(Frame, section)) return;
  if (const S2kFrameSectionRow* row = properties.FindFrameSectionRow(section)) {
    t2 = row->t2;
    t3 = row->t3;
  }
}

void CTemperatureLoads::GetAreaThickness(const std::string& Area, double& Thickness) {
  CElements& elements = engine.Get<CElements>();
  std::string section;
  if (!elements.FindAreaSectionName(Area, 2, section)) return;
  if (const S2kAreaSectionRow* row = elements.FindAreaSectionRow(section)) Thickness = row->Thickness;
}

std::vector<std::string> CTemperatureLoads::JointsOf(int Mode, const std::string& name) {
  const CElements& elements = engine.Get<CElements>();
  std::vector<std::string> joints;
  if (Mode == 1) {
    if (const auto* row = elements.FindFrameConnectivity(name)) joints = {row->JointI, row->JointJ};
  } else if (Mode == 2) {
    if (const auto* row = elements.FindAreaConnectivity(name))
      joints = {row->Joint1, row->Joint2, row->Joint3, row->Joint4};
  } else if (const auto* row = elements.FindSolidConnectivity(name)) {
    joints = {row->Joint1, row->Joint2, row->Joint3, row->Joint4,
              row->Joint5, row->Joint6, row->Joint7, row->Joint8};
  }
  std::erase(joints, std::string());
  return joints;
}

// A gradient row leaves its values in the buffer: the next gradient row of
// the same call carries them along, even for another frame.
int CTemperatureLoads::ConvertTemperatureLoads(int Mode) {
  const CKeyedTable<S2kTemperatureRow>& rows =
      Mode == 1 ? frameTemperatures_ : Mode == 2 ? areaTemperatures_ : solidTemperatures_;
  const char* kind = Mode == 1 ? "FRAME" : Mode == 2 ? "AREA" : "SOLID";
  const double jointCount = Mode == 1 ? 2 : Mode == 2 ? 4 : 8;
  const CGeometry& geometry = engine.Get<CGeometry>();
  int elementKey = eltempers_.Count(), nodeKey = ndtempers_.Count(), gradientKey = thergrads_.Count();
  TvtThergradRec gradient;
  gradient.bUSEHZ = gradient.bUSEHY = "NO";
  int ok = 1;
  rows.Walk([&](int, const S2kTemperatureRow& row) {
    if (!ok) return;
    if (Mode == 3 || row.Type == "Temperature") {
      double reference = 0;
      GetReferenceTemperature(row.Name, Mode, reference);
      TvtEltemperRec rec{row.Name, row.LoadCase, kind, 0};
      if (row.JtPattern == "None") {
        rec.TEMPER = geometry.ToCelsius(row.Temp) - reference;
      } else {
        // The pattern's factor comes before the unit's offset.
        double sum = 0;
        for (const std::string& joint : JointsOf(Mode, row.Name)) {
          double value = 0;
          GetJointPatternValue(joint, row.JtPattern, value);
          const double difference = geometry.ToCelsius(row.Temp * value) - reference;
          TvtNdtemperRec node{joint, row.LoadCase, difference};
          AddNodeTemperature(joint, row.LoadCase, nodeKey, node);
          nodeKeys_.try_emplace(PairKey(joint, row.LoadCase), nodeKey);
          if (ok) ok = ndtempers_.SetAt(nodeKey, std::move(node));
          sum += difference;
        }
        rec.TEMPER = sum / jointCount;
      }
      if (ok) ok = eltempers_.SetAt(++elementKey, std::move(rec));
      return;
    }
    if (Mode == 1 && row.Type != "Gradient2" && row.Type != "Gradient3") return;
    gradient.ELEM_LIST = row.Name;
    gradient.LCNAME = row.LoadCase;
    gradient.iETYP = 1;
    if (Mode == 1) {
      gradient.ETYP = "FRAME";
      double t2 = 0, t3 = 0;
      GetFrameSectionDepths(row.Name, t2, t3);
      if (row.Type == "Gradient2") {
        gradient.TZ = row.TempGrad2 * kGradientFactor * t3;
        gradient.bUSEHZ = "YES";
      } else {
        gradient.TY = -(row.TempGrad3 * kGradientFactor * t2);
        gradient.bUSEHY = "YES";
      }
    } else {
      // Any word but "Temperature" is a gradient on an area.
      gradient.ETYP = "AREA";
      double thickness = 0;
      GetAreaThickness(row.Name, thickness);
      gradient.TZ = row.TempGrad3 * kGradientFactor * thickness;
      gradient.bUSEHZ = "YES";
    }
    ok = thergrads_.SetAt(++gradientKey, gradient);
  });
  return ok;
}
