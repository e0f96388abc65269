// Time history cases: modal and direct, linear and nonlinear, with their
// damping, integration and nonlinear parameters.
#include "dynamics/time_history.h"

#include <climits>
#include <cmath>

#include "dynamics/analysis_controls.h"
#include "frame/converter.h"
#include "s2k/numbers.h"
#include "s2k/table_parsers.h"

namespace {

constexpr S2kField<S2kDirectHistory1Row> kDirect1Keys[] = {
    TextKey("Case=", &S2kDirectHistory1Row::Case),
    NumberKey("OutSteps=", &S2kDirectHistory1Row::OutSteps),
    NumberKey("StepSize=", &S2kDirectHistory1Row::StepSize),
};

constexpr S2kField<S2kHistoryLoadRow> kHistoryLoadKeys[] = {
    TextKey("Case=", &S2kHistoryLoadRow::Case),
    TextKey("LoadType=", &S2kHistoryLoadRow::LoadType),
    TextKey("LoadName=", &S2kHistoryLoadRow::LoadName),
    TextKey("Function=", &S2kHistoryLoadRow::Function),
    NumberKey("LoadSF=", &S2kHistoryLoadRow::LoadSF),
    NumberKey("TransAccSF=", &S2kHistoryLoadRow::TransAccSF),
    NumberKey("TimeFactor=", &S2kHistoryLoadRow::TimeFactor),
    NumberKey("ArrivalTime=", &S2kHistoryLoadRow::ArrivalTime),
    TextKey("CoordSys=", &S2kHistoryLoadRow::CoordSys),
    NumberKey("Angle=", &S2kHistoryLoadRow::Angle),
};

constexpr S2kField<S2kHistoryDampingRow> kHistoryDampingKeys[] = {
    TextKey("Case=", &S2kHistoryDampingRow::Case),
    TextKey("SpecifyType=", &S2kHistoryDampingRow::SpecifyType),
    NumberKey("MassCoeff=", &S2kHistoryDampingRow::MassCoeff),
    NumberKey("StiffCoeff=", &S2kHistoryDampingRow::StiffCoeff),
    NumberKey("Period1=", &S2kHistoryDampingRow::Period1),
    NumberKey("Frequency1=", &S2kHistoryDampingRow::Frequency1),
    NumberKey("Damping1=", &S2kHistoryDampingRow::Damping1),
    NumberKey("Period2=", &S2kHistoryDampingRow::Period2),
    NumberKey("Frequency2=", &S2kHistoryDampingRow::Frequency2),
    NumberKey("Damping2=", &S2kHistoryDampingRow::Damping2),
};

constexpr S2kField<S2kDirectHistory4Row> kDirect4Keys[] = {
    TextKey("Case=", &S2kDirectHistory4Row::Case),
    TextKey("IntMethod=", &S2kDirectHistory4Row::IntMethod),
    NumberKey("Gamma=", &S2kDirectHistory4Row::Gamma),
    NumberKey("Beta=", &S2kDirectHistory4Row::Beta),
    NumberKey("Theta=", &S2kDirectHistory4Row::Theta),
    NumberKey("Alpha=", &S2kDirectHistory4Row::Alpha),
    NumberKey("AlphaM=", &S2kDirectHistory4Row::AlphaM),
};

constexpr S2kField<S2kDirectHistory5Row> kDirect5Keys[] = {
    TextKey("Case=", &S2kDirectHistory5Row::Case),
    TextKey("GeoNonLin=", &S2kDirectHistory5Row::GeoNonLin),
    NumberKey("DTMax=", &S2kDirectHistory5Row::DTMax),
    NumberKey("DTMin=", &S2kDirectHistory5Row::DTMin),
    NumberKey("MaxIter=", &S2kDirectHistory5Row::MaxIter),
    NumberKey("ItConvTol=", &S2kDirectHistory5Row::ItConvTol),
    NumberKey("EvLumpTol=", &S2kDirectHistory5Row::EvLumpTol),
    FlagKey("FrameTC=", &S2kDirectHistory5Row::FrameTC),
    FlagKey("FrameHinge=", &S2kDirectHistory5Row::FrameHinge),
    FlagKey("CableTC=", &S2kDirectHistory5Row::CableTC),
    FlagKey("LinkTC=", &S2kDirectHistory5Row::LinkTC),
    FlagKey("LinkOther=", &S2kDirectHistory5Row::LinkOther),
};

constexpr S2kField<S2kModalHistory1Row> kModal1Keys[] = {
    TextKey("Case=", &S2kModalHistory1Row::Case),
    TextKey("HistoryType=", &S2kModalHistory1Row::HistoryType),
    NumberKey("OutSteps=", &S2kModalHistory1Row::OutSteps),
    NumberKey("StepSize=", &S2kModalHistory1Row::StepSize),
    TextKey("DampingType=", &S2kModalHistory1Row::DampingType),
    NumberKey("ConstDamp=", &S2kModalHistory1Row::ConstDamp),
};

constexpr S2kField<S2kModalHistory5Row> kModal5Keys[] = {
    TextKey("Case=", &S2kModalHistory5Row::Case),
    TextKey("Mode=", &S2kModalHistory5Row::Mode),
    NumberKey("Damping=", &S2kModalHistory5Row::Damping),
};

constexpr S2kField<S2kModalHistory6Row> kModal6Keys[] = {
    TextKey("Case=", &S2kModalHistory6Row::Case),
    NumberKey("PeriodStat=", &S2kModalHistory6Row::PeriodStat),
    NumberKey("DTMax=", &S2kModalHistory6Row::DTMax),
    NumberKey("DTMin=", &S2kModalHistory6Row::DTMin),
    NumberKey("FConvTol=", &S2kModalHistory6Row::FConvTol),
    NumberKey("EConvTol=", &S2kModalHistory6Row::EConvTol),
    NumberKey("ForceItMax=", &S2kModalHistory6Row::ForceItMax),
    NumberKey("ForceItMin=", &S2kModalHistory6Row::ForceItMin),
    NumberKey("ConvFactor=", &S2kModalHistory6Row::ConvFactor),
    FlagKey("FrameTC=", &S2kModalHistory6Row::FrameTC),
    FlagKey("FrameHinge=", &S2kModalHistory6Row::FrameHinge),
    FlagKey("CableTC=", &S2kModalHistory6Row::CableTC),
    FlagKey("LinkTC=", &S2kModalHistory6Row::LinkTC),
    FlagKey("LinkOther=", &S2kModalHistory6Row::LinkOther),
};

constexpr S2kField<S2kHistoryFromFileRow> kFromFileKeys[] = {
    TextKey("Name=", &S2kHistoryFromFileRow::Name),
    NumberKey("Time=", &S2kHistoryFromFileRow::Time),
    NumberKey("Value=", &S2kHistoryFromFileRow::Value),
    NumberKey("HeaderLines=", &S2kHistoryFromFileRow::HeaderLines),
    NumberKey("PrefixChars=", &S2kHistoryFromFileRow::PrefixChars),
    NumberKey("PtsPerLine=", &S2kHistoryFromFileRow::PtsPerLine),
    TextKey("FormatType=", &S2kHistoryFromFileRow::FormatType),
    NumberKey("FixedLength=", &S2kHistoryFromFileRow::FixedLength),
    NumberKey("Interval=", &S2kHistoryFromFileRow::Interval),
    TextKey("FileName=", &S2kHistoryFromFileRow::FileName),
};

constexpr S2kField<S2kHistoryUserRow> kUserKeys[] = {
    TextKey("Name=", &S2kHistoryUserRow::Name),
    NumberKey("Time=", &S2kHistoryUserRow::Time),
    NumberKey("Value=", &S2kHistoryUserRow::Value),
};

// A load row notes whether it gives its own scale.
int ParseHistoryLoads(CS2kConverter& engine, CKeyedTable<S2kHistoryLoadRow>& table) {
  engine.parsedRowCount += static_cast<int>(engine.TableRows().size());
  return ParseRows(engine.TableRows(), kHistoryLoadKeys, table, [](const S2kRowText& text, S2kHistoryLoadRow& row) {
    // A key that is there gives one item at least.
    row.LoadSFGiven = text.Find("LoadSF=") != std::string_view::npos;
    return true;
  });
}

}  // namespace

const std::vector<S2kTableParser>& HistoryTableParsers() {
  static const std::vector<S2kTableParser> parsers = {
      {173, RunStep<&CTimeHistory::ParseDirectHistory1>},
      {174, RunStep<&CTimeHistory::ParseDirectHistory2>},
      {175, RunStep<&CTimeHistory::ParseDirectHistory3>},
      {176, RunStep<&CTimeHistory::ParseDirectHistory4>},
      {177, RunStep<&CTimeHistory::ParseDirectHistory5>},
      {181, RunStep<&CTimeHistory::ParseModalHistory1>},
      {182, RunStep<&CTimeHistory::ParseModalHistory2>},
      {184, RunStep<&CTimeHistory::ParseModalHistory4>},
      {185, RunStep<&CTimeHistory::ParseModalHistory5>},
      {186, RunStep<&CTimeHistory::ParseModalHistory6>},
      {283, RunStep<&CTimeHistory::ParseFromFileFunctions>},
      {289, RunStep<&CTimeHistory::ParseUserFunctions>},
  };
  return parsers;
}

CTimeHistory::CTimeHistory(CS2kConverter& engine) : CSubject(engine) {
  fromFile_.Reset(10001);
  user_.Reset(10001);
  cases_.Reset(10001);
  functions_.Reset(10001);
  groundAcc_.Reset(10001);
  dynSloads_.Reset(10001);
}

int CTimeHistory::ParseDirectHistory1() { return engine.ParseRows(kDirect1Keys, direct1_); }
int CTimeHistory::ParseDirectHistory2() { return ParseHistoryLoads(engine, directLoads_); }
int CTimeHistory::ParseDirectHistory3() { return engine.ParseRows(kHistoryDampingKeys, direct3_); }
int CTimeHistory::ParseDirectHistory4() { return engine.ParseRows(kDirect4Keys, direct4_); }
int CTimeHistory::ParseDirectHistory5() { return engine.ParseRows(kDirect5Keys, direct5_); }
int CTimeHistory::ParseModalHistory1() { return engine.ParseRows(kModal1Keys, modal1_); }
int CTimeHistory::ParseModalHistory2() { return ParseHistoryLoads(engine, modalLoads_); }
int CTimeHistory::ParseModalHistory4() { return engine.ParseRows(kHistoryDampingKeys, modal4_); }
int CTimeHistory::ParseModalHistory5() { return engine.ParseRows(kModal5Keys, modal5_); }
int CTimeHistory::ParseModalHistory6() { return engine.ParseRows(kModal6Keys, modal6_); }
int CTimeHistory::ParseFromFileFunctions() { return engine.ParseRows(kFromFileKeys, fromFile_); }
int CTimeHistory::ParseUserFunctions() { return engine.ParseRows(kUserKeys, user_); }

int DirectOutputSteps(double outSteps, double dtMax) {
  const int steps = TruncateToInt(outSteps);
  const int divisor = TruncateToInt(dtMax);
  if (divisor == 0 || (steps == INT_MIN && divisor == -1)) return 0;
  return steps / divisor;
}

int CTimeHistory::ConvertHistoryCase(const std::string& Case, int iATYPE, int iAMETHOD,
                                     const std::string& initialCond) {
  return iAMETHOD == 1 ? ConvertModalHistoryCase(Case, iATYPE, initialCond)
                       : ConvertDirectHistoryCase(Case, iATYPE, initialCond);
}

void CTimeHistory::StartCase(TvtThldcaseRec& rec, const std::string& Case, double outSteps, double stepSize,
                             int iATYPE, int iAMETHOD, const std::string& initialCond) const {
  rec.NAME = Case;
  rec.ETIME = outSteps * stepSize;
  rec.INC = stepSize;
  rec.iOUT = 1;
  rec.iATYPE = iATYPE;
  rec.iAMETHOD = iAMETHOD;
  if (initialCond == "Zero") {
    rec.iICOND = 1;
  } else {
    rec.iICOND = 2;
    rec.FSPLC = initialCond;
  }
}

int CTimeHistory::ConvertModalHistoryCase(const std::string& Case, int iATYPE, const std::string& initialCond) {
  if (modal1_.Empty()) return 0;
  const auto* hit = modal1Cases_.Hits(modal1_, Case);
  if (!hit) return 1;
  for (int key : hit->keys) {
    const S2kModalHistory1Row& row = *modal1_.Lookup(key);
    TvtThldcaseRec rec;
    StartCase(rec, Case, row.OutSteps, row.StepSize, iATYPE, 1, initialCond);
    rec.iTHTYPE = row.HistoryType == "Transient" ? 1 : 2;
    const std::string& damping = row.DampingType;
    if (damping == "Constant") {
      rec.iMDTYPE = 1;
      rec.DALL = row.ConstDamp;
      FillModeDamping(Case, rec);
    } else if (damping == "Pro-Direct") {
      rec.iMDTYPE = 2;
      rec.iCOEF = 1;
      FillProportionalDamping(Case, "Direct", false, rec);
    } else if (damping == "Pro-Period") {
      rec.iMDTYPE = 2;
      rec.iCOEF = 2;
      rec.iCALC = 2;
      FillProportionalDamping(Case, "Period", false, rec);
    } else if (damping == "Pro-Freq") {
      rec.iMDTYPE = 2;
      rec.iCOEF = 2;
      rec.iCALC = 1;
      FillProportionalDamping(Case, "Frequency", false, rec);
    } else {
      // Interpolated damping: this row makes no case.
      historyDampingRefused_ = 1;
      continue;
    }
    if (damping != "Constant" && rec.bMASSP == "NO" && rec.bSTIFFP == "NO") {
      historyDataRefused_ = 1;
      return 1;
    }
    if (iATYPE == 2) FillNonlinearModal(Case, row.OutSteps, rec);
    ConvertModalHistoryLoads(Case);
    if (!InsertCase(std::move(rec))) return 0;
  }
  return 1;
}

int CTimeHistory::ConvertDirectHistoryCase(const std::string& Case, int iATYPE, const std::string& initialCond) {
  if (direct1_.Empty()) return 0;
  const auto* hit = direct1Cases_.Hits(direct1_, Case);
  if (!hit) return 1;
  for (int key : hit->keys) {
    const S2kDirectHistory1Row& row = *direct1_.Lookup(key);
    TvtThldcaseRec rec;
    StartCase(rec, Case, row.OutSteps, row.StepSize, iATYPE, 2, initialCond);
    rec.iTHTYPE = 1;
    rec.iMDTYPE = 2;
    // The case's own damping row says how its coefficients are given.
    const S2kHistoryDampingRow* damping = direct3Cases_.Find(direct3_, Case);
    const CText mode = damping ? damping->SpecifyType : CText();
    if (mode == "Direct") {
      rec.iCOEF = 1;
    } else {
      rec.iCOEF = 2;
      if (mode == "Frequency")
        rec.iCALC = 1;
      else if (mode == "Period")
        rec.iCALC = 2;
    }
    FillProportionalDamping(Case, mode, true, rec);
    if (rec.bMASSP == "NO" && rec.bSTIFFP == "NO") {
      historyDataRefused_ = 1;
      return 1;
    }
    FillNewmark(Case, rec);
    if (iATYPE == 2) FillNonlinearDirect(Case, row.OutSteps, rec);
    ConvertDirectHistoryLoads(Case);
    if (!InsertCase(std::move(rec))) return 0;
  }
  return 1;
}

int CTimeHistory::InsertCase(TvtThldcaseRec&& rec) {
  if (!cases_.SetAt(cases_.Count() + 1, std::move(rec))) return 0;
  engine.Get<CAnalysisControls>().SetDynamicCaseSeen();
  return 1;
}

void CTimeHistory::FillModeDamping(const std::string& Case, TvtThldcaseRec& rec) {
  const auto* hit = modal5Cases_.Hits(modal5_, Case);
  if (!hit) return;
  for (int key : hit->keys) {
    const S2kModalHistory5Row& row = *modal5_.Lookup(key);
    rec.iMODE.push_back(ParseInt(row.Mode));
    rec.DAMPING.push_back(row.Damping);
  }
}

void CTimeHistory::FillProportionalDamping(const std::string& Case, const std::string& mode, bool direct,
                                           TvtThldcaseRec& rec) {
  const S2kHistoryDampingRow* row =
      direct ? direct3Cases_.Find(direct3_, Case) : modal4Cases_.Find(modal4_, Case);
  if (!row) return;
  // A coefficient counts from the tolerance up; NaN never does.
  const double tolerance = engine.ZeroTolerance;
  const bool mass = std::fabs(row->MassCoeff) >= tolerance;
  const bool stiffness = std::fabs(row->StiffCoeff) >= tolerance;
  if (mode == "Direct") {
    rec.bMASSP = mass ? "YES" : "NO";
    if (mass) rec.MASSC = row->MassCoeff;
    rec.bSTIFFP = stiffness ? "YES" : "NO";
    if (stiffness) rec.STIFFC = row->StiffCoeff;
  } else if (mode == "Period" || mode == "Frequency") {
    const bool period = mode == "Period";
    if (mass) {
      rec.bMASSP = "YES";
      rec.FP1 = period ? row->Period1 : row->Frequency1;
      rec.DR1 = row->Damping1;
    }
    if (stiffness) {
      rec.bSTIFFP = "YES";
      rec.FP2 = period ? row->Period2 : row->Frequency2;
      rec.DR2 = row->Damping2;
    }
  }
}

void CTimeHistory::FillNewmark(const std::string& Case, TvtThldcaseRec& rec) {
  const S2kDirectHistory4Row* row = direct4Cases_.Find(direct4_, Case);
  if (!row) return;
  if (row->IntMethod == "Newmark") {
    rec.GAMMA = row->Gamma;
    rec.BETA = row->Beta;
    rec.iNMM = 3;
  } else {
    historyMethodRefused_ = 1;
  }
}

void CTimeHistory::FillNonlinearDirect(const std::string& Case, double outSteps, TvtThldcaseRec& rec) {
  const S2kDirectHistory5Row* row = direct5Cases_.Find(direct5_, Case);
  if (!row) return;
  rec.MINSSS = row->DTMin;
  rec.iMAXITER = TruncateToInt(row->MaxIter);
  rec.CONVTOL = row->ItConvTol;
  rec.INC = row->DTMax;
  // The direct case divides by the whole step where the modal one multiplies.
  rec.iOUT = DirectOutputSteps(outSteps, rec.INC);
}

void CTimeHistory::FillNonlinearModal(const std::string& Case, double outSteps, TvtThldcaseRec& rec) {
  const S2kModalHistory6Row* row = modal6Cases_.Find(modal6_, Case);
  if (!row) return;
  rec.MINSSS = row->DTMin;
  rec.iMAXITER = TruncateToInt(row->ForceItMax);
  rec.CONVTOL = row->FConvTol;
  rec.INC = row->DTMax;
  rec.iOUT = TruncateToInt(outSteps * rec.INC);
}
