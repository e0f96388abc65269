// Load patterns and static cases: which patterns become *STLDCASE rows, their
// load type, and the self weight of each pattern.
#include "loads/load_cases.h"

#include <cmath>

#include "frame/converter.h"
#include "loads/auto_loads.h"
#include "loads/case_block.h"
#include "loads/load_combinations.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kLoadRow> kLoadKeys[] = {
    TextKey("LoadCase=", &S2kLoadRow::LoadCase),
    TextKey("DesignType=", &S2kLoadRow::DesignType),
    TextKey("AutoLoad=", &S2kLoadRow::AutoLoad),
    NumberKey("SelfWtMult=", &S2kLoadRow::SelfWtMult),
};

constexpr S2kField<S2kCaseStatic1Row> kCaseStatic1Keys[] = {
    TextKey("Case=", &S2kCaseStatic1Row::Case),
    TextKey("LoadType=", &S2kCaseStatic1Row::LoadType),
    TextKey("LoadName=", &S2kCaseStatic1Row::LoadName),
    NumberKey("LoadSF=", &S2kCaseStatic1Row::LoadSF),
    NumberKey("TransAccSF=", &S2kCaseStatic1Row::TransAccSF),
};

}  // namespace

const std::vector<S2kTableParser>& LoadCaseTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {107, RunStep<&CLoadCases::ParseLoads>},
      {195, RunStep<&CLoadCases::ParseCaseStatic1>},
  };
  return parsers;
}

CLoadCases::CLoadCases(CS2kConverter& engine) : CSubject(engine) {
  staticCases_.Reset(10001);
  selfWeights_.Reset(1001);
}

int CLoadCases::ParseLoads() { return engine.ParseRows(kLoadKeys, loads_); }
int CLoadCases::ParseCaseStatic1() { return engine.ParseRows(kCaseStatic1Keys, caseStatic1_); }

int CLoadCases::ConvertSelfWeight() {
  if (loads_.Empty() || !selfWeights_.Empty()) return 1;
  int key = 0;
  int ok = 1;
  loads_.Walk([&](int, const S2kLoadRow& row) {
    // NaN fails the test and is skipped; an infinite multiplier is kept.
    if (!ok || !(std::fabs(row.SelfWtMult) > engine.ZeroTolerance)) return;
    TvtSelfweightRec rec{row.LoadCase, 0, 0, -row.SelfWtMult};
    engine.ShowMessage("IDS_S2KV8_FRAM_GRAV_Not_Convert");
    ok = selfWeights_.SetAt(++key, std::move(rec));
  });
  return ok;
}

int CLoadCases::ConvertStaticCase(const std::string& Case, const std::string& /*Type*/) {
  const auto* hit = staticCaseNames_.Hits(caseStatic1_, Case);
  if (!hit) return 1;
  for (int key : hit->keys) {
    TvtStldcaseRec rec;
    rec.LCNAME = caseStatic1_.Lookup(key)->LoadName;
    rec.bAutoLoad = 0;
    // A pattern no LOAD row bears still makes a row, with no type.
    GetLoadCaseType(rec.LCNAME, rec.LCTYPE, rec.bAutoLoad);
    if (!staticCases_.SetAt(key, std::move(rec))) return 0;
  }
  return 1;
}

int CLoadCases::GetLoadCaseType(const std::string& LoadName, CText& LCTYPE, int& bAutoLoad) {
  const S2kLoadRow* row = loadNames_.Find(loads_, LoadName);
  if (!row) return 0;
  bAutoLoad = 0;
  const std::string& type = row->DesignType;
  if (type == "DEAD") {
    LCTYPE = "D";
  } else if (type == "LIVE") {
    LCTYPE = "L";
  } else if (type == "WIND") {
    LCTYPE = "W";
    if (row->AutoLoad != "None") {
      engine.Get<CAutoLoads>().ConvertAutoWind(LoadName, row->AutoLoad);
      bAutoLoad = 1;
    }
  } else if (type == "SNOW") {
    LCTYPE = "S";
  } else if (type == "QUAKE") {
    LCTYPE = "E";
    if (row->AutoLoad != "None") {
      engine.Get<CAutoLoads>().ConvertAutoSeismic(LoadName, row->AutoLoad);
      bAutoLoad = 1;
    }
  } else {
    LCTYPE = "USER";
  }
  return 1;
}

int CLoadCases::WriteStaticLoads() {
  // The two results are not tested: a failed block ends nothing.
  if (WriteStaticLoadCases()) WriteLoadCaseBlocks();
  return 1;
}

int CLoadCases::WriteStaticLoadCases() {
  if (staticCases_.Empty()) return 1;
  if (engine.Get<CLoadCombinations>().UsedUnknownCaseType()) engine.ShowMessage("IDS_S2KV8_STLC_Not_Convert");
  engine.WriteText("%s\n", "*STLDCASE    ; Static Load Cases");
  engine.WriteText("; LCNAME, LCTYPE, DESC\n");
  staticCases_.Walk([&](int, const TvtStldcaseRec& rec) {
    engine.WriteText("\t%s, %5s, \n", rec.LCNAME.c_str(), rec.LCTYPE.c_str());
  });
  engine.WriteText("\n");
  return 1;
}

int CLoadCases::WriteSelfWeight(const std::string& loadCase) {
  return WriteCaseBlock(engine, loadCase, nullptr, "; *SELFWEIGHT, X, Y, Z, GROUP", selfWeights_,
                        &TvtSelfweightRec::LCNAME, [&](const TvtSelfweightRec& rec) {
                          engine.WriteText("\t*SELFWEIGHT, %5g, %5g, %5g,\n", rec.X, rec.Y, rec.Z);
                        });
}
