// Spectrum functions and spectrum loads. Every code's function already comes
// as its points, so each carried kind is taken over as a table of points.
#include "dynamics/response_spectrum.h"

#include <cmath>
#include <utility>

#include "frame/converter.h"
#include "geometry/geometry.h"
#include "s2k/table_parsers.h"

namespace {

template <class Row>
constexpr S2kField<Row> NameKey() {
  return TextKey("Name=", &Row::Name);
}
template <class Row>
constexpr S2kField<Row> PeriodKey() {
  return NumberKey("Period=", &Row::Period);
}
template <class Row>
constexpr S2kField<Row> AccelKey() {
  return NumberKey("Accel=", &Row::Accel);
}

using Boca = S2kSpectrumBoca96Row;
constexpr S2kField<Boca> kBoca96Keys[] = {
    NameKey<Boca>(),           PeriodKey<Boca>(),         AccelKey<Boca>(),         NumberKey("Aa=", &Boca::Aa),
    NumberKey("Av=", &Boca::Av), NumberKey("R=", &Boca::R), NumberKey("S=", &Boca::S),
};
using Euro = S2kSpectrumEurocode8Row;
constexpr S2kField<Euro> kEurocode8Keys[] = {
    NameKey<Euro>(),
    PeriodKey<Euro>(),
    AccelKey<Euro>(),
    NumberKey("Ag=", &Euro::Ag),
    TextKey("SoilClass=", &Euro::SoilClass),
    NumberKey("DampFactor=", &Euro::DampFactor),
};
using File = S2kSpectrumFromFileRow;
constexpr S2kField<File> kFromFileKeys[] = {
    NameKey<File>(),
    NumberKey("Frequency=", &File::Frequency),
    PeriodKey<File>(),
    AccelKey<File>(),
    TextKey("HeaderLines=", &File::HeaderLines),
    TextKey("DataType=", &File::DataType),
    TextKey("FileName=", &File::FileName),
};
using Ibc = S2kSpectrumIbc2000Row;
constexpr S2kField<Ibc> kIbc2000Keys[] = {
    NameKey<Ibc>(), PeriodKey<Ibc>(), AccelKey<Ibc>(), NumberKey("SDS=", &Ibc::SDS), NumberKey("SD1=", &Ibc::SD1),
};
using Nbcc = S2kSpectrumNbcc95Row;
constexpr S2kField<Nbcc> kNbcc95Keys[] = {
    NameKey<Nbcc>(),          PeriodKey<Nbcc>(),          AccelKey<Nbcc>(),
    NumberKey("V=", &Nbcc::V), NumberKey("Za=", &Nbcc::Za), NumberKey("Zv=", &Nbcc::Zv),
};
using Nehrp = S2kSpectrumNehrp97Row;
constexpr S2kField<Nehrp> kNehrp97Keys[] = {
    NameKey<Nehrp>(),
    PeriodKey<Nehrp>(),
    AccelKey<Nehrp>(),
    NumberKey("SDS=", &Nehrp::SDS),
    NumberKey("SD1=", &Nehrp::SD1),
};
using Nzs = S2kSpectrumNzs4203Row;
constexpr S2kField<Nzs> kNzs4203Keys[] = {
    NameKey<Nzs>(),
    PeriodKey<Nzs>(),
    AccelKey<Nzs>(),
    NumberKey("ScaleFactor=", &Nzs::ScaleFactor),
    TextKey("SoilCat=", &Nzs::SoilCat),
};
using Ubc94 = S2kSpectrumUbc94Row;
constexpr S2kField<Ubc94> kUbc94Keys[] = {
    NameKey<Ubc94>(), PeriodKey<Ubc94>(), AccelKey<Ubc94>(), NumberKey("Z=", &Ubc94::Z),
    TextKey("SoilType=", &Ubc94::SoilType),
};
using Ubc97 = S2kSpectrumUbc97Row;
constexpr S2kField<Ubc97> kUbc97Keys[] = {
    NameKey<Ubc97>(), PeriodKey<Ubc97>(), AccelKey<Ubc97>(), NumberKey("Ca=", &Ubc97::Ca), NumberKey("Cv=", &Ubc97::Cv),
};
using User = S2kSpectrumUserRow;
constexpr S2kField<User> kUserKeys[] = {NameKey<User>(), PeriodKey<User>(), AccelKey<User>()};

using Spec2 = S2kCaseSpectrum2Row;
constexpr S2kField<Spec2> kCaseSpectrum2Keys[] = {
    TextKey("Case=", &Spec2::Case),
    TextKey("LoadType=", &Spec2::LoadType),
    TextKey("LoadName=", &Spec2::LoadName),
    TextKey("CoordSys=", &Spec2::CoordSys),
    TextKey("Function=", &Spec2::Function),
    NumberKey("Angle=", &Spec2::Angle),
    NumberKey("TransAccSF=", &Spec2::TransAccSF),
};

}  // namespace

const std::vector<S2kTableParser>& SpectrumTableParsers() {
  using R = CResponseSpectrum;
  static const std::vector<S2kTableParser> parsers = {
      {191, RunStep<&R::ParseCaseSpectrum2>},     {272, RunStep<&R::ParseBoca96Functions>},
      {273, RunStep<&R::ParseEurocode8Functions>}, {274, RunStep<&R::ParseFromFileFunctions>},
      {275, RunStep<&R::ParseIbc2000Functions>},   {276, RunStep<&R::ParseNbcc95Functions>},
      {277, RunStep<&R::ParseNehrp97Functions>},   {278, RunStep<&R::ParseNzs4203Functions>},
      {279, RunStep<&R::ParseUbc94Functions>},     {280, RunStep<&R::ParseUbc97Functions>},
      {281, RunStep<&R::ParseUserFunctions>},
  };
  return parsers;
}

int CResponseSpectrum::ParseBoca96Functions() { return engine.ParseRows(kBoca96Keys, boca96_); }
int CResponseSpectrum::ParseEurocode8Functions() { return engine.ParseRows(kEurocode8Keys, eurocode8_); }
int CResponseSpectrum::ParseFromFileFunctions() { return engine.ParseRows(kFromFileKeys, fromFile_); }
int CResponseSpectrum::ParseIbc2000Functions() { return engine.ParseRows(kIbc2000Keys, ibc2000_); }
int CResponseSpectrum::ParseNbcc95Functions() { return engine.ParseRows(kNbcc95Keys, nbcc95_); }
int CResponseSpectrum::ParseNehrp97Functions() { return engine.ParseRows(kNehrp97Keys, nehrp97_); }
int CResponseSpectrum::ParseNzs4203Functions() { return engine.ParseRows(kNzs4203Keys, nzs4203_); }
int CResponseSpectrum::ParseUbc94Functions() { return engine.ParseRows(kUbc94Keys, ubc94_); }
int CResponseSpectrum::ParseUbc97Functions() { return engine.ParseRows(kUbc97Keys, ubc97_); }
int CResponseSpectrum::ParseUserFunctions() { return engine.ParseRows(kUserKeys, user_); }
int CResponseSpectrum::ParseCaseSpectrum2() { return engine.ParseRows(kCaseSpectrum2Keys, caseSpectrum2_); }

int CResponseSpectrum::ConvertSpectrumFunctions() {
  int counter = 0;
  if (!boca96_.Empty()) engine.ShowMessage("IDS_S2KV8_RESP_BOCA96_Not_Convert");
  if (!eurocode8_.Empty() && !ConvertEurocode8Spectrum(counter)) return 0;
  if (!fromFile_.Empty()) engine.ShowMessage("IDS_S2KV8_RESP_FILE_Not_Convert");
  if (!ibc2000_.Empty() && !ConvertIbc2000Spectrum(counter)) return 0;
  if (!nbcc95_.Empty() && !ConvertNbcc95Spectrum(counter)) return 0;
  if (!nehrp97_.Empty()) engine.ShowMessage("IDS_S2KV8_RESP_NHERP97_Not_Convert");
  if (!nzs4203_.Empty()) engine.ShowMessage("IDS_S2KV8_RESP_NZS4203_Not_Convert");
  if (!ubc94_.Empty() && !ConvertUbc94Spectrum(counter)) return 0;
  if (!ubc97_.Empty() && !ConvertUbc97Spectrum(counter)) return 0;
  if (!user_.Empty() && !ConvertUserSpectrum(counter)) return 0;
  return 1;
}

int CResponseSpectrum::ConvertEurocode8Spectrum(int& counter) { return ConvertSpectrumTable(eurocode8_, counter); }
int CResponseSpectrum::ConvertIbc2000Spectrum(int& counter) { return ConvertSpectrumTable(ibc2000_, counter); }
int CResponseSpectrum::ConvertNbcc95Spectrum(int& counter) { return ConvertSpectrumTable(nbcc95_, counter); }
int CResponseSpectrum::ConvertUbc94Spectrum(int& counter) { return ConvertSpectrumTable(ubc94_, counter); }
int CResponseSpectrum::ConvertUbc97Spectrum(int& counter) { return ConvertSpectrumTable(ubc97_, counter); }
int CResponseSpectrum::ConvertUserSpectrum(int& counter) { return ConvertSpectrumTable(user_, counter); }

template <class Row>
int CResponseSpectrum::ConvertSpectrumTable(const CKeyedTable<Row>& table, int& counter) {
  // Rows in file order; a run of rows of one name is one function.
  const int n = table.Count();
  if (n == 0) return 1;
  const double grav = engine.Get<CGeometry>().GravityInModelUnits();
  TvtSfunctionRec rec;
  auto insert = [&] {
    rec.GRAV = grav;
    return functions_.SetAt(++counter, std::move(rec));
  };
  for (int i = 0; i < n; ++i) {
    const Row* row = table.Lookup(i + 1);
    if (!row) continue;
    if (i != 0 && row->Name != rec.FUNC) {
      if (!insert()) return 0;
      rec = TvtSfunctionRec{};
    }
    rec.FUNC = row->Name;
    rec.PERIOD.push_back(row->Period);
    rec.VALUE.push_back(row->Accel);
  }
  return insert();
}

double ReduceSpectrumAngle(double angle) {
  // 360 at a time would take too long, or for ever, on these.
  if (angle > 360000000.0 || std::isinf(angle)) angle = std::fmod(angle, 360.0);
  while (angle > 360) angle -= 360;
  return angle;
}

int CResponseSpectrum::ConvertSpectrumLoads() {
  const int n = caseSpectrum2_.Count();
  if (n == 0) return 1;
  std::string saved;
  int k = 0;
  int key = 0;
  TvtSpldcaseRec rec;
  // Names the record in hand after the case of the row that follows it.
  auto close = [&](const S2kCaseSpectrum2Row& row) {
    if (row.Case == saved) {
      rec.NAME = saved + std::to_string(++k);
    } else {
      rec.NAME = saved;
      k = 0;
    }
    return loads_.SetAt(++key, rec);
  };
  for (int i = 0; i < n; ++i) {
    const S2kCaseSpectrum2Row* row = caseSpectrum2_.Lookup(i + 1);
    if (!row) continue;
    if (row->CoordSys != "GLOBAL") {
      spectrumLoadRefused_ = 1;
      continue;
    }
    if (i >= 1 && !close(*row)) return 0;
    rec.Case = row->Case;
    if (!row->Function.empty()) rec.FUNC = row->Function;
    if (!row->LoadName.empty()) rec.DIR = row->LoadName == "U1" || row->LoadName == "U2" ? "XY" : "Z";
    rec.ANGLE = ReduceSpectrumAngle(row->Angle + (row->LoadName == "U2" ? 90 : 0));
    rec.SCALE = std::fabs(row->TransAccSF) >= engine.ZeroTolerance ? row->TransAccSF : 1;
    saved = row->Case;
    if (i == n - 1 && !close(*row)) return 0;
  }
  return 1;
}

const std::vector<std::string>& CResponseSpectrum::SpectrumLoadNamesOf(const std::string& Case) const {
  if (namesCount_ != loads_.Count()) {
    namesOfCase_.clear();
    namesCount_ = loads_.Count();
    loads_.ForEachKey([&](int, const TvtSpldcaseRec& rec) { namesOfCase_[rec.Case].push_back(rec.NAME); });
  }
  static const std::vector<std::string> kNone;
  auto it = namesOfCase_.find(Case);
  return it == namesOfCase_.end() ? kNone : it->second;
}
