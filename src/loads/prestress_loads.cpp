// Tendon prestress and initial forces of frames: their tables and their
// conversion.
#include "loads/prestress_loads.h"

#include <utility>

#include "frame/converter.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kFramePDeltaRow> kFramePDeltaKeys[] = {
    TextKey("Frame=", &S2kFramePDeltaRow::Frame),
    TextKey("CoordSys=", &S2kFramePDeltaRow::CoordSys),
    TextKey("Direction=", &S2kFramePDeltaRow::Direction),
    NumberKey("Force=", &S2kFramePDeltaRow::Force),
};

constexpr S2kField<S2kFramePatternsRow> kFramePatternsKeys[] = {
    TextKey("Frame=", &S2kFramePatternsRow::Frame),
    NumberKey("Tension=", &S2kFramePatternsRow::Tension),
    NumberKey("DrapeI=", &S2kFramePatternsRow::DrapeI),
    NumberKey("DrapeJ=", &S2kFramePatternsRow::DrapeJ),
    NumberKey("DrapeCenter=", &S2kFramePatternsRow::DrapeCenter),
};

constexpr S2kField<S2kFrameMultipliersRow> kFrameMultipliersKeys[] = {
    TextKey("Frame=", &S2kFrameMultipliersRow::Frame),
    TextKey("LoadCase=", &S2kFrameMultipliersRow::LoadCase),
    NumberKey("Multiplier=", &S2kFrameMultipliersRow::Multiplier),
};

/// The direction words of an initial force, in the order they are tried.
constexpr std::pair<const char*, const char*> kInitialForceDirections[] = {
    {"Local 1", "AXIAL"},
    {"X Proj", "GX"},
    {"Y Proj", "GY"},
    {"Z Proj", "GZ"},
};

}  // namespace

const std::vector<S2kTableParser>& PrestressTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {245, RunStep<&CPrestressLoads::ParseFramePDelta>},
      {246, RunStep<&CPrestressLoads::ParseFramePatterns>},
      {247, RunStep<&CPrestressLoads::ParseFrameMultipliers>},
  };
  return parsers;
}

CPrestressLoads::CPrestressLoads(CS2kConverter& engine) : CSubject(engine) {
  pDeltaForces_.Reset(10001);
  tendons_.Reset(10001);
  multipliers_.Reset(10001);
  prestress_.Reset(10001);
  initialForces_.Reset(10001);
}

int CPrestressLoads::ParseFramePDelta() { return engine.ParseRows(kFramePDeltaKeys, pDeltaForces_); }
int CPrestressLoads::ParseFramePatterns() { return engine.ParseRows(kFramePatternsKeys, tendons_); }
int CPrestressLoads::ParseFrameMultipliers() { return engine.ParseRows(kFrameMultipliersKeys, multipliers_); }

void CPrestressLoads::GetFrameTendonCase(const std::string& Frame, CText& LCNAME, double& Multiplier) const {
  const S2kFrameMultipliersRow* row = multiplierFrames_.Find(multipliers_, Frame);
  if (!row) return;
  LCNAME = row->LoadCase;
  Multiplier = row->Multiplier;
}

// The factor is not reset between rows: a tendon with no case takes the one
// before it, and is never written.
int CPrestressLoads::ConvertFramePrestress() {
  int ok = 1;
  double multiplier = 1;
  tendons_.Walk([&](int key, const S2kFramePatternsRow& row) {
    if (!ok) return;
    TvtPrestressRec rec;
    rec.LTYPE = "PRE";
    rec.ELEM_LIST = row.Frame;
    GetFrameTendonCase(row.Frame, rec.LCNAME, multiplier);
    rec.TENS = row.Tension * multiplier;
    // The end's drape goes, negated, to the middle, and the centre's to the end.
    rec.DI = row.DrapeI;
    rec.DM = -row.DrapeJ;
    rec.DJ = row.DrapeCenter;
    ok = prestress_.SetAt(key, std::move(rec));
  });
  return ok;
}

int CPrestressLoads::ConvertFrameInitialForces() {
  int ok = 1;
  pDeltaForces_.Walk([&](int key, const S2kFramePDeltaRow& row) {
    if (!ok) return;
    TvtIniforceRec rec;
    rec.ELEM_LIST = row.Frame;
    for (const auto& [word, dir] : kInitialForceDirections) {
      if (row.Direction != word) continue;
      rec.DIR = dir;
      break;
    }
    rec.FORCE = row.Force;
    ok = initialForces_.SetAt(key, std::move(rec));
  });
  return ok;
}
