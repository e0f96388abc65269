// Frame loads: gravity from the sections' weight, point and distributed
// loads, each turned to a row of *BEAMLOAD under a running number.
#include "loads/frame_loads.h"

#include <cmath>

#include "elements/elements.h"
#include "elements/properties.h"
#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kAreaGravityRow> kAreaGravityKeys[] = {
    TextKey("Area=", &S2kAreaGravityRow::Area),
    TextKey("LoadCase=", &S2kAreaGravityRow::LoadCase),
    TextKey("CoordSys=", &S2kAreaGravityRow::CoordSys),
    NumberKey("MultiplierX=", &S2kAreaGravityRow::MultiplierX),
    NumberKey("MultiplierY=", &S2kAreaGravityRow::MultiplierY),
    NumberKey("MultiplierZ=", &S2kAreaGravityRow::MultiplierZ),
};

constexpr S2kField<S2kFrameDistributedRow> kFrameDistributedKeys[] = {
    TextKey("Frame=", &S2kFrameDistributedRow::Frame),
    TextKey("LoadCase=", &S2kFrameDistributedRow::LoadCase),
    TextKey("CoordSys=", &S2kFrameDistributedRow::CoordSys),
    TextKey("Type=", &S2kFrameDistributedRow::Type),
    TextKey("Dir=", &S2kFrameDistributedRow::Dir),
    TextKey("DistType=", &S2kFrameDistributedRow::DistType),
    NumberKey("RelDistA=", &S2kFrameDistributedRow::RelDistA),
    NumberKey("RelDistB=", &S2kFrameDistributedRow::RelDistB),
    NumberKey("AbsDistA=", &S2kFrameDistributedRow::AbsDistA),
    NumberKey("AbsDistB=", &S2kFrameDistributedRow::AbsDistB),
    NumberKey("FOverLA=", &S2kFrameDistributedRow::FOverLA),
    NumberKey("FOverLB=", &S2kFrameDistributedRow::FOverLB),
    NumberKey("MOverLA=", &S2kFrameDistributedRow::MOverLA),
    NumberKey("MOverLB=", &S2kFrameDistributedRow::MOverLB),
};

constexpr S2kField<S2kFrameGravityRow> kFrameGravityKeys[] = {
    TextKey("Frame=", &S2kFrameGravityRow::Frame),
    TextKey("LoadCase=", &S2kFrameGravityRow::LoadCase),
    TextKey("CoordSys=", &S2kFrameGravityRow::CoordSys),
    NumberKey("MultiplierX=", &S2kFrameGravityRow::MultiplierX),
    NumberKey("MultiplierY=", &S2kFrameGravityRow::MultiplierY),
    NumberKey("MultiplierZ=", &S2kFrameGravityRow::MultiplierZ),
};

constexpr S2kField<S2kFramePointRow> kFramePointKeys[] = {
    TextKey("Frame=", &S2kFramePointRow::Frame),
    TextKey("LoadCase=", &S2kFramePointRow::LoadCase),
    TextKey("CoordSys=", &S2kFramePointRow::CoordSys),
    TextKey("Type=", &S2kFramePointRow::Type),
    TextKey("Dir=", &S2kFramePointRow::Dir),
    TextKey("DistType=", &S2kFramePointRow::DistType),
    NumberKey("RelDist=", &S2kFramePointRow::RelDist),
    NumberKey("AbsDist=", &S2kFramePointRow::AbsDist),
    NumberKey("Force=", &S2kFramePointRow::Force),
    NumberKey("Moment=", &S2kFramePointRow::Moment),
};

constexpr S2kField<S2kSolidGravityRow> kSolidGravityKeys[] = {
    TextKey("Solid=", &S2kSolidGravityRow::Solid),
    TextKey("LoadCase=", &S2kSolidGravityRow::LoadCase),
    TextKey("CoordSys=", &S2kSolidGravityRow::CoordSys),
    NumberKey("MultiplierX=", &S2kSolidGravityRow::MultiplierX),
    NumberKey("MultiplierY=", &S2kSolidGravityRow::MultiplierY),
    NumberKey("MultiplierZ=", &S2kSolidGravityRow::MultiplierZ),
};

/// A direction word of a load and what it becomes.
struct SLoadDirection {
  const char* word;
  const char* DIR;
  const char* bPROJ;
  bool negate;
};

// The target's local y runs against the source's local 3, and its local z
// is the source's local 2.
constexpr SLoadDirection kLocalDirections[] = {
    {"1", "LX", "NO", false},
    {"2", "LZ", "NO", false},
    {"3", "LY", "NO", true},
};
constexpr SLoadDirection kDistributedGlobalDirections[] = {
    {"X", "GX", "NO", false},      {"Y", "GY", "NO", false},      {"Z", "GZ", "NO", false},
    {"X Proj", "GX", "YES", false}, {"Y Proj", "GY", "YES", false}, {"Z Proj", "GZ", "YES", false},
    {"Gravity", "GZ", "NO", true},
};
constexpr SLoadDirection kPointGlobalDirections[] = {
    {"X", "GX", "NO", false},
    {"Y", "GY", "NO", false},
    {"Z", "GZ", "NO", false},
    {"Gravity", "GZ", "NO", true},
};

/// Sets DIR and bPROJ of \p rec from the row's system and word. \returns
/// whether values are to be negated. Any other system or word leaves both
/// empty: a user system's load goes out without a direction.
template <std::size_t N>
bool ApplyDirection(const std::string& CoordSys, const std::string& Dir, const SLoadDirection (&globals)[N],
                    TvtBeamloadRec& rec) {
  auto apply = [&](const auto& table) {
    for (const SLoadDirection& direction : table) {
      if (Dir != direction.word) continue;
      rec.DIR = direction.DIR;
      rec.bPROJ = direction.bPROJ;
      return direction.negate;
    }
    return false;
  };
  if (CoordSys == "GLOBAL") return apply(globals);
  if (CoordSys == "Local") return apply(kLocalDirections);
  return false;
}

TvtBeamloadRec NewBeamload(const std::string& frame, const std::string& loadCase) {
  TvtBeamloadRec rec;
  rec.ELEM_LIST = frame;
  rec.LCNAME = loadCase;
  rec.CMD = "BEAM";
  return rec;
}

// What this subject asks of the frames, sections and materials.
const S2kConnectivityFrameRow* FrameRow(CS2kConverter& engine, const std::string& frame) {
  const CElements& elements = engine.Get<CElements>();
  if (const S2kConnectivityFrameRow* row = elements.FindFrameConnectivity(frame)) return row;
  // The walk ends on its last row, and that row's length stands.
  return elements.LastWalkedFrameConnectivity();
}
const S2kFrameSectionRow* SectionRow(CS2kConverter& engine, const std::string& section) {
  return engine.Get<CProperties>().FindFrameSectionRow(section);
}
const S2kFrameNonprismaticRow* NonprismaticRow(CS2kConverter& engine, const std::string& section) {
  return engine.Get<CProperties>().FindNonprismaticRow(section);
}
double UnitWeight(CS2kConverter& engine, const std::string& material) {
  const S2kMaterial1Row* row = engine.Get<CProperties>().FindMaterialRow(material);
  return row ? row->UnitWeight : 0;
}

double WeightTimesArea(CS2kConverter& engine, const S2kFrameSectionRow* section) {
  return section ? UnitWeight(engine, section->Material) * section->Area : 0;
}

}  // namespace

const std::vector<S2kTableParser>& FrameLoadTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {113, RunStep<&CFrameLoads::ParseAreaGravity>},      {235, RunStep<&CFrameLoads::ParseFrameDistributed>},
      {236, RunStep<&CFrameLoads::ParseFrameGravity>},     {237, RunStep<&CFrameLoads::ParseFramePoint>},
      {482, RunStep<&CFrameLoads::ParseSolidGravity>},
  };
  return parsers;
}

CFrameLoads::CFrameLoads(CS2kConverter& engine) : CSubject(engine) {
  areaGravity_.Reset(17);
  distributed_.Reset(10001);
  gravity_.Reset(10001);
  points_.Reset(10001);
  solidGravity_.Reset(17);
  beamloads_.Reset(10001);
}

int CFrameLoads::ParseAreaGravity() { return engine.ParseRows(kAreaGravityKeys, areaGravity_); }
int CFrameLoads::ParseFrameDistributed() { return engine.ParseRows(kFrameDistributedKeys, distributed_); }
int CFrameLoads::ParseFrameGravity() { return engine.ParseRows(kFrameGravityKeys, gravity_); }
int CFrameLoads::ParseFramePoint() { return engine.ParseRows(kFramePointKeys, points_); }
// Solid gravity is read so that the table is read whole, and then dropped.
int CFrameLoads::ParseSolidGravity() { return engine.ParseRows(kSolidGravityKeys, solidGravity_); }

int CFrameLoads::AddBeamload(TvtBeamloadRec rec) { return beamloads_.SetAt(beamloads_.Count() + 1, std::move(rec)); }

void CFrameLoads::GetFrameLength(const std::string& Frame, double& Length) {
  // An empty table leaves the length as it was.
  if (const S2kConnectivityFrameRow* row = FrameRow(engine, Frame)) Length = row->Length;
}

int CFrameLoads::GetFrameSection(const std::string& Frame, int /*Phase*/, std::string& Section) {
  return engine.Get<CProperties>().FindFrameSectionName(Frame, Section);
}

void CFrameLoads::GetUnitWeightTimesArea(const std::string& Section, int /*Phase*/, int& bNonprismatic,
                                         double& WeightI, double& WeightJ) {
  bNonprismatic = 0;
  WeightI = WeightJ = 0;
  const S2kFrameSectionRow* section = SectionRow(engine, Section);
  if (!section) return;
  if (section->Shape != "Nonprismatic") {
    WeightI = WeightTimesArea(engine, section);
    return;
  }
  // A tapered section weighs as its two end sections; without a row of
  // its own both ends are sections of no name.
  const S2kFrameNonprismaticRow* taper = NonprismaticRow(engine, Section);
  const CText noName;
  WeightI = WeightTimesArea(engine, SectionRow(engine, taper ? taper->StartSect : noName));
  WeightJ = WeightTimesArea(engine, SectionRow(engine, taper ? taper->EndSect : noName));
  bNonprismatic = 1;
}

// The multipliers keep their sign and are always taken as global.
int CFrameLoads::ConvertFrameGravity(int Phase) {
  if (Phase == 2) {
    if (!areaGravity_.Empty()) engine.ShowMessage("IDS_S2KV8_NOCONVERT_AREA_GRAV");
    return 1;
  }
  int ok = 1;
  gravity_.Walk([&](int, const S2kFrameGravityRow& row) {
    std::string section;
    if (!ok || !GetFrameSection(row.Frame, Phase, section)) return;
    TvtBeamloadRec rec = NewBeamload(row.Frame, row.LoadCase);
    rec.TYPE = "UNILOAD";
    int bNonprismatic = 0;
    double weightI = 0, weightJ = 0;
    GetUnitWeightTimesArea(section, Phase, bNonprismatic, weightI, weightJ);
    if (!bNonprismatic) weightJ = weightI;
    const std::pair<const char*, double> axes[] = {
        {"GX", row.MultiplierX}, {"GY", row.MultiplierY}, {"GZ", row.MultiplierZ}};
    for (const auto& [dir, multiplier] : axes) {
      if (!ok || !(std::fabs(multiplier) > engine.ZeroTolerance)) continue;
      rec.DIR = dir;
      rec.bPROJ = "NO";
      rec.D1 = 0;
      rec.P1 = weightI * multiplier;
      rec.D2 = 1;
      rec.P2 = weightJ * multiplier;
      ok = AddBeamload(rec);
    }
  });
  return ok;
}

int CFrameLoads::DistanceForm(const std::string& DistType, const std::string& Frame, double& length) {
  if (DistType == "RelDist") return 1;
  if (DistType != "AbsDist") return 0;
  GetFrameLength(Frame, length);
  if (length < engine.ZeroTolerance) {
    engine.Get<CElements>().SetZeroLengthWarning();
    return -1;
  }
  return 2;
}

int CFrameLoads::ConvertFramePointLoads() {
  int ok = 1;
  bool stopped = false;
  points_.Walk([&](int, const S2kFramePointRow& row) {
    if (!ok || stopped) return;
    TvtBeamloadRec rec = NewBeamload(row.Frame, row.LoadCase);
    const bool negate = ApplyDirection(row.CoordSys, row.Dir, kPointGlobalDirections, rec);
    if (row.Type == "Force") {
      rec.TYPE = "CONLOAD";
      rec.P1 = negate ? -row.Force : row.Force;
    } else if (row.Type == "Moment") {
      rec.TYPE = "CONMOMENT";
      rec.P1 = negate ? -row.Moment : row.Moment;
    }
    double length = 0;
    const int form = DistanceForm(row.DistType, row.Frame, length);
    if (form < 0) {
      stopped = true;
      return;
    }
    if (form == 1) rec.D1 = row.RelDist;
    if (form == 2) rec.D1 = row.AbsDist / length;
    ok = AddBeamload(std::move(rec));
  });
  return ok;
}

int CFrameLoads::ConvertFrameDistributedLoads() {
  int ok = 1;
  bool stopped = false;
  distributed_.Walk([&](int, const S2kFrameDistributedRow& row) {
    if (!ok || stopped) return;
    TvtBeamloadRec rec = NewBeamload(row.Frame, row.LoadCase);
    const bool negate = ApplyDirection(row.CoordSys, row.Dir, kDistributedGlobalDirections, rec);
    if (row.Type == "Force") {
      rec.TYPE = "UNILOAD";
      rec.P1 = negate ? -row.FOverLA : row.FOverLA;
      rec.P2 = negate ? -row.FOverLB : row.FOverLB;
    } else if (row.Type == "Moment") {
      rec.TYPE = "UNIMOMENT";
      rec.P1 = negate ? -row.MOverLA : row.MOverLA;
      rec.P2 = negate ? -row.MOverLB : row.MOverLB;
    }
    double length = 0;
    const int form = DistanceForm(row.DistType, row.Frame, length);
    if (form < 0) {
      stopped = true;
      return;
    }
    if (form == 1) {
      rec.D1 = row.RelDistA;
      rec.D2 = row.RelDistB;
    } else if (form == 2) {
      rec.D1 = row.AbsDistA / length;
      rec.D2 = row.AbsDistB / length;
    }
    ok = AddBeamload(std::move(rec));
  });
  return ok;
}
