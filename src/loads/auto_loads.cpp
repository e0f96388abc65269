// Automatic wind and seismic loads: the first row of a pattern in its code's
// table, carried into the code's record.
#include "loads/auto_loads.h"

#include <cctype>
#include <cmath>

#include "frame/converter.h"
#include "s2k/numbers.h"
#include "s2k/table_parsers.h"

namespace {

using WindUbc = S2kAutoWindUbc97Row;
constexpr S2kField<WindUbc> kWindUbc97Keys[] = {
    TextKey("LoadCase=", &WindUbc::LoadCase),     TextKey("ExposeFrom=", &WindUbc::ExposeFrom),
    NumberKey("Angle=", &WindUbc::Angle),         NumberKey("WindwardCq=", &WindUbc::WindwardCq),
    NumberKey("LeewardCq=", &WindUbc::LeewardCq), NumberKey("MaxZ=", &WindUbc::MaxZ),
    NumberKey("MinZ=", &WindUbc::MinZ),           NumberKey("WindSpeed=", &WindUbc::WindSpeed),
    TextKey("Exposure=", &WindUbc::Exposure),     NumberKey("I=", &WindUbc::I),
    TextKey("ExpWidth=", &WindUbc::ExpWidth),
};

using WindAsce = S2kAutoWindAsce798Row;
constexpr S2kField<WindAsce> kWindAsce798Keys[] = {
    TextKey("LoadCase=", &WindAsce::LoadCase),     TextKey("ExposeFrom=", &WindAsce::ExposeFrom),
    NumberKey("Angle=", &WindAsce::Angle),         NumberKey("WindwardCp=", &WindAsce::WindwardCp),
    NumberKey("LeewardCp=", &WindAsce::LeewardCp), NumberKey("MaxZ=", &WindAsce::MaxZ),
    NumberKey("MinZ=", &WindAsce::MinZ),           NumberKey("WindSpeed=", &WindAsce::WindSpeed),
    TextKey("Exposure=", &WindAsce::Exposure),     NumberKey("I=", &WindAsce::I),
    NumberKey("Kzt=", &WindAsce::Kzt),             NumberKey("GustFactor=", &WindAsce::GustFactor),
    NumberKey("Kd=", &WindAsce::Kd),               TextKey("ExpWidth=", &WindAsce::ExpWidth),
};

using WindNbcc = S2kAutoWindNbcc95Row;
constexpr S2kField<WindNbcc> kWindNbcc95Keys[] = {
    TextKey("LoadCase=", &WindNbcc::LoadCase),         TextKey("ExposeFrom=", &WindNbcc::ExposeFrom),
    NumberKey("Angle=", &WindNbcc::Angle),             NumberKey("WindwardCp=", &WindNbcc::WindwardCp),
    NumberKey("LeewardCp=", &WindNbcc::LeewardCp),     NumberKey("MaxZ=", &WindNbcc::MaxZ),
    NumberKey("MinZ=", &WindNbcc::MinZ),               NumberKey("VelPressure=", &WindNbcc::VelPressure),
    NumberKey("Cg=", &WindNbcc::Cg),                   TextKey("ExpWidth=", &WindNbcc::ExpWidth),
};

using SeisUbc = S2kAutoSeismicUbc97Row;
constexpr S2kField<SeisUbc> kSeismicUbc97Keys[] = {
    TextKey("LoadCase=", &SeisUbc::LoadCase),       TextKey("Dir=", &SeisUbc::Dir),
    NumberKey("PercentEcc=", &SeisUbc::PercentEcc), TextKey("EccOverride=", &SeisUbc::EccOverride),
    TextKey("PeriodCalc=", &SeisUbc::PeriodCalc),   NumberKey("Ct=", &SeisUbc::Ct),
    NumberKey("UserT=", &SeisUbc::UserT),           NumberKey("MaxZ=", &SeisUbc::MaxZ),
    NumberKey("MinZ=", &SeisUbc::MinZ),             NumberKey("R=", &SeisUbc::R),
    TextKey("SoilType=", &SeisUbc::SoilType),       TextKey("Z=", &SeisUbc::Z),
    NumberKey("Ca=", &SeisUbc::Ca),                 NumberKey("Cv=", &SeisUbc::Cv),
    TextKey("SourceType=", &SeisUbc::SourceType),   NumberKey("SourceDist=", &SeisUbc::SourceDist),
    NumberKey("Na=", &SeisUbc::Na),                 NumberKey("Nv=", &SeisUbc::Nv),
    NumberKey("I=", &SeisUbc::I),                   NumberKey("TUsed=", &SeisUbc::TUsed),
    NumberKey("WeightUsed=", &SeisUbc::WeightUsed), NumberKey("BaseShear=", &SeisUbc::BaseShear),
    NumberKey("FtUsed=", &SeisUbc::FtUsed),
};

using SeisNbcc = S2kAutoSeismicNbcc95Row;
constexpr S2kField<SeisNbcc> kSeismicNbcc95Keys[] = {
    TextKey("LoadCase=", &SeisNbcc::LoadCase),       TextKey("Dir=", &SeisNbcc::Dir),
    NumberKey("PercentEcc=", &SeisNbcc::PercentEcc), TextKey("EccOverride=", &SeisNbcc::EccOverride),
    TextKey("StructType=", &SeisNbcc::StructType),   TextKey("PeriodCalc=", &SeisNbcc::PeriodCalc),
    NumberKey("Ds=", &SeisNbcc::Ds),                 NumberKey("UserT=", &SeisNbcc::UserT),
    NumberKey("MaxZ=", &SeisNbcc::MaxZ),             NumberKey("MinZ=", &SeisNbcc::MinZ),
    NumberKey("R=", &SeisNbcc::R),                   TextKey("Za=", &SeisNbcc::Za),
    TextKey("Zv=", &SeisNbcc::Zv),                   TextKey("VType=", &SeisNbcc::VType),
    NumberKey("V=", &SeisNbcc::V),                   NumberKey("I=", &SeisNbcc::I),
    NumberKey("F=", &SeisNbcc::F),                   NumberKey("TUsed=", &SeisNbcc::TUsed),
    NumberKey("FSUsed=", &SeisNbcc::FSUsed),         NumberKey("WeightUsed=", &SeisNbcc::WeightUsed),
    NumberKey("BaseShear=", &SeisNbcc::BaseShear),   NumberKey("FtUsed=", &SeisNbcc::FtUsed),
};

/// Inserts \p rec under the table's count plus one.
template <class Rec>
int Append(CKeyedTable<Rec>& table, Rec&& rec) {
  return table.SetAt(table.Count() + 1, std::move(rec));
}

}  // namespace

const std::vector<S2kTableParser>& AutoLoadTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {133, RunStep<&CAutoLoads::ParseSeismicNbcc95>}, {136, RunStep<&CAutoLoads::ParseSeismicUbc97>},
      {146, RunStep<&CAutoLoads::ParseWindAsce798>},   {149, RunStep<&CAutoLoads::ParseWindNbcc95>},
      {151, RunStep<&CAutoLoads::ParseWindUbc97>},
  };
  return parsers;
}

CAutoLoads::CAutoLoads(CS2kConverter& engine) : CSubject(engine) {
  windUbc1997_.Reset(1001);
  windIbc2000_.Reset(1001);
  windNbc1995_.Reset(1001);
  seisUbc1997_.Reset(1001);
  seisNbc1995_.Reset(1001);
}

int CAutoLoads::ParseSeismicNbcc95() { return engine.ParseRows(kSeismicNbcc95Keys, seismicNbcc95_); }
int CAutoLoads::ParseSeismicUbc97() { return engine.ParseRows(kSeismicUbc97Keys, seismicUbc97_); }
int CAutoLoads::ParseWindAsce798() { return engine.ParseRows(kWindAsce798Keys, windAsce798_); }
int CAutoLoads::ParseWindNbcc95() { return engine.ParseRows(kWindNbcc95Keys, windNbcc95_); }
int CAutoLoads::ParseWindUbc97() { return engine.ParseRows(kWindUbc97Keys, windUbc97_); }

int CAutoLoads::ConvertAutoWind(const std::string& LoadName, const std::string& AutoLoad) {
  // Only the first row of a pattern counts, whatever its direction.
  if (AutoLoad == "UBC 97") {
    const S2kAutoWindUbc97Row* row = windUbc97Names_.Find(windUbc97_, LoadName);
    if (!row) return 1;
    TvtWindUbc1997Rec rec;
    rec.LCNAME = LoadName;
    rec.EC = row->Exposure;
    rec.BWS = row->WindSpeed;
    rec.IF = row->I;
    rec.MRH = row->MaxZ;
    return Append(windUbc1997_, std::move(rec));
  }
  if (AutoLoad == "ASCE 7-98") {
    // Written under the code word IBC2000.
    const S2kAutoWindAsce798Row* row = windAsce798Names_.Find(windAsce798_, LoadName);
    if (!row) return 1;
    TvtWindIbc2000Rec rec;
    rec.LCNAME = LoadName;
    rec.EC = row->Exposure;
    rec.BWS = row->WindSpeed;
    rec.IF = row->I;
    rec.WDF = row->Kd;
    rec.MRH = row->MaxZ;
    rec.GFX = rec.GFY = row->GustFactor;
    return Append(windIbc2000_, std::move(rec));
  }
  if (AutoLoad == "NBCC 95") {
    const S2kAutoWindNbcc95Row* row = windNbcc95Names_.Find(windNbcc95_, LoadName);
    if (!row) return 1;
    TvtWindNbc1995Rec rec;
    rec.LCNAME = LoadName;
    rec.RWS = std::sqrt(row->VelPressure / 0.00064645);
    rec.GEF = row->Cg;
    return Append(windNbc1995_, std::move(rec));
  }
  return 1;
}

int CAutoLoads::ConvertAutoSeismic(const std::string& LoadName, const std::string& AutoLoad) {
  // Eccentricities are not carried: ECCX and ECCY stay "POS".
  if (AutoLoad == "UBC97") {
    const S2kAutoSeismicUbc97Row* row = seismicUbc97Names_.Find(seismicUbc97_, LoadName);
    if (!row) return 1;
    TvtSeisUbc1997Rec rec;
    rec.LCNAME = LoadName;
    rec.SST = row->SourceType;
    rec.ZF = ParseDouble(row->Z);
    if (!row->SoilType.empty()) {
      rec.SPT = row->SoilType.substr(0, 1);
      if (row->SoilType.size() > 1)
        rec.SPT += static_cast<char>(std::tolower(static_cast<unsigned char>(row->SoilType[1])));
    }
    rec.CD = row->SourceDist;
    rec.IF = row->I;
    // The height's exponent is 0 here, so T is Ct at any height.
    double period = row->PeriodCalc == "User" ? row->UserT : row->Ct * std::pow(row->MaxZ - row->MinZ, 0.0);
    if (row->Dir == "X") {
      rec.SFX = 1;
      rec.SFY = 0;
      rec.PX = period;
      rec.NCX = row->R;
    } else {
      rec.SFX = 0;
      rec.SFY = 1;
      rec.PY = period;
      rec.NCY = row->R;
    }
    return Append(seisUbc1997_, std::move(rec));
  }
  if (AutoLoad == "NBCC95") {
    const S2kAutoSeismicNbcc95Row* row = seismicNbcc95Names_.Find(seismicNbcc95_, LoadName);
    if (!row) return 1;
    TvtSeisNbc1995Rec rec;
    rec.LCNAME = LoadName;
    rec.ZVR = row->V;
    rec.AZ = ParseInt(row->Za);
    rec.VZ = ParseInt(row->Zv);
    rec.IF = row->I;
    rec.FF = row->F;
    if (row->Dir == "X") {
      rec.SFX = 1;
      rec.SFY = 0;
      rec.PCX = rec.PAX = row->UserT;
      rec.FMFX = row->R;
    } else {
      rec.SFX = 0;
      rec.SFY = 1;
      rec.PCY = rec.PAY = row->UserT;
      rec.FMFY = row->R;
    }
    return Append(seisNbc1995_, std::move(rec));
  }
  return 1;
}
