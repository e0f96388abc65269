// Uniform loads and surface pressures on areas: their tables and their
// conversion to face loads of plates.
#include "loads/surface_loads.h"

#include "elements/elements.h"
#include "frame/converter.h"
#include "loads/temperature_loads.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kAreaUniformRow> kAreaUniformKeys[] = {
    TextKey("Area=", &S2kAreaUniformRow::Area),   TextKey("LoadCase=", &S2kAreaUniformRow::LoadCase),
    TextKey("CoordSys=", &S2kAreaUniformRow::CoordSys), TextKey("Dir=", &S2kAreaUniformRow::Dir),
    NumberKey("UnifLoad=", &S2kAreaUniformRow::UnifLoad),
};

constexpr S2kField<S2kAreaSurfaceRow> kAreaSurfaceKeys[] = {
    TextKey("Area=", &S2kAreaSurfaceRow::Area),         TextKey("LoadCase=", &S2kAreaSurfaceRow::LoadCase),
    TextKey("Face=", &S2kAreaSurfaceRow::Face),         NumberKey("Pressure=", &S2kAreaSurfaceRow::Pressure),
    TextKey("JtPattern=", &S2kAreaSurfaceRow::JtPattern),
};

/// A global direction word of a uniform load and what it becomes.
struct SUniformDirection {
  const char* word;
  const char* DIR;
  const char* bPROJ;
  bool negate;
};

constexpr SUniformDirection kGlobalUniformDirections[] = {
    {"X", "GX", "NO", false},       {"Y", "GY", "NO", false},       {"Z", "GZ", "NO", false},
    {"X Proj", "GX", "YES", false}, {"Y Proj", "GY", "YES", false}, {"Z Proj", "GZ", "YES", false},
    {"Gravity", "GZ", "NO", true},  {"Grav Proj", "GZ", "YES", true},
};

/// A face load of a plate on \p area in \p loadCase, all numbers 0.
TvtPressureRec NewPressure(const std::string& area, const std::string& loadCase, const char* dir) {
  TvtPressureRec rec;
  rec.ELEM_LIST = area;
  rec.LCNAME = loadCase;
  rec.ETYP = "PLATE";
  rec.LTYP = "FACE";
  rec.DIR = dir;
  rec.bPROJ = "NO";
  return rec;
}

}  // namespace

const std::vector<S2kTableParser>& SurfaceTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {119, RunStep<&CSurfaceLoads::ParseAreaUniform>},
      {116, RunStep<&CSurfaceLoads::ParseAreaSurface>},
  };
  return parsers;
}

CSurfaceLoads::CSurfaceLoads(CS2kConverter& engine) : CSubject(engine) {
  uniformLoads_.Reset(17);
  surfaceLoads_.Reset(17);
  pressures_.Reset(10001);
}

int CSurfaceLoads::ParseAreaUniform() { return engine.ParseRows(kAreaUniformKeys, uniformLoads_); }
int CSurfaceLoads::ParseAreaSurface() { return engine.ParseRows(kAreaSurfaceKeys, surfaceLoads_); }

// A local load along 1 or 2, or one in a user system, repeats the record
// before it: the buffer is not cleared between rows.
int CSurfaceLoads::ConvertAreaUniformLoads() {
  int ok = 1;
  TvtPressureRec buffer;
  uniformLoads_.Walk([&](int, const S2kAreaUniformRow& row) {
    if (!ok) return;
    if (row.CoordSys == "GLOBAL") {
      buffer = NewPressure(row.Area, row.LoadCase, "GZ");
      buffer.PU = row.UnifLoad;
      for (const SUniformDirection& direction : kGlobalUniformDirections) {
        if (row.Dir != direction.word) continue;
        buffer.DIR = direction.DIR;
        buffer.bPROJ = direction.bPROJ;
        if (direction.negate) buffer.PU = -row.UnifLoad;
        break;
      }
    } else if (row.CoordSys == "Local" && row.Dir == "3") {
      buffer = NewPressure(row.Area, row.LoadCase, "LZ");
      buffer.PU = row.UnifLoad;
    }
    ok = AddPressure(buffer);
  });
  return ok;
}

int CSurfaceLoads::ConvertAreaSurfaceLoads() {
  int ok = 1;
  surfaceLoads_.Walk([&](int, const S2kAreaSurfaceRow& row) {
    if (!ok) return;
    if (row.Face != "5" && row.Face != "6") {
      surfaceFaceRefused_ = 1;
      return;
    }
    TvtPressureRec rec = NewPressure(row.Area, row.LoadCase, "LZ");
    rec.PU = row.Face == "5" ? row.Pressure : -row.Pressure;
    // An empty pattern word is not "None".
    if (row.JtPattern != "None") ApplyAreaJointPattern(row.Area, row.JtPattern, rec.PU, rec);
    ok = AddPressure(rec);
  });
  return ok;
}

void CSurfaceLoads::ApplyAreaJointPattern(const std::string& Area, const std::string& Pattern, double PU,
                                          TvtPressureRec& record) {
  const CElements& elements = engine.Get<CElements>();
  const S2kConnectivityAreaRow* area = elements.FindAreaConnectivity(Area);
  // An area no row names takes the corners of the last row walked.
  if (!area) area = elements.LastWalkedAreaConnectivity();
  if (!area) return;
  CTemperatureLoads& patterns = engine.Get<CTemperatureLoads>();
  double v[4] = {0, 0, 0, 0};
  const CText* joints[4] = {&area->Joint1, &area->Joint2, &area->Joint3, &area->Joint4};
  for (int i = 0; i < 4; ++i) patterns.GetJointPatternValue(*joints[i], Pattern, v[i]);
  record.P1 = PU * v[0];
  record.P2 = PU * v[1];
  record.P3 = PU * v[3];
  record.P4 = PU * v[2];
}
